#include "tessel/paint/gradient.h"

#include <algorithm>
#include <cmath>

namespace tessel {

namespace {

double sat(double v) {
  return std::clamp(v, 0.0, 1.0);
}

}  // namespace

double gradientAxis(int32_t direction, double tx, double ty) {
  switch (direction) {
    case 1:
      return 1 - ty;
    case 2:
      return tx;
    case 3:
      return 1 - tx;
    case 4:
      return (tx + ty) / 2;
    case 5:
      return 1 - (tx + ty) / 2;
    case 6:
      return (tx + 1 - ty) / 2;
    case 7:
      return 1 - (tx + 1 - ty) / 2;
    default:
      return ty;
  }
}

double gradientPosition(int32_t kind, int32_t direction, double x, double y, double width,
                        double height) {
  const double tx = width < 2 ? 0.0 : x / (width - 1);
  const double ty = height < 2 ? 0.0 : y / (height - 1);
  const double a = gradientAxis(direction, tx, ty);
  switch (kind) {
    case 1:
      return sat(1 - std::abs(2 * sat(a) - 1));
    case 2:
      return sat(std::sqrt((tx - 0.5) * (tx - 0.5) + (ty - 0.5) * (ty - 0.5)) / std::sqrt(0.5));
    case 3:
      return sat((std::abs(tx - 0.5) + std::abs(ty - 0.5)) * 2);
    case 4: {
      const double pi = 3.14159265358979323846;
      double t = (std::atan2(ty - 0.5, tx - 0.5) + pi) / (2 * pi);
      // The odd directions turn the cone the other way.
      if (direction % 2 == 1) t = 1 - t;
      return sat(t);
    }
    default:
      return sat(a);
  }
}

}  // namespace tessel
