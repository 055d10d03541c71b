#include "tessel/paint/color.h"

namespace tessel {

namespace {

uint32_t mixChannel(uint32_t a, uint32_t b, double t) {
  const double value = static_cast<double>(a) + (static_cast<double>(b) - a) * t;
  return static_cast<uint32_t>(static_cast<int>(value));
}

}  // namespace

Color mixColor(Color a, Color b, double t) {
  if (!(t > 0.0)) t = 0.0;
  if (t > 1.0) t = 1.0;
  return rgbColor(mixChannel(redOf(a), redOf(b), t), mixChannel(greenOf(a), greenOf(b), t),
                  mixChannel(blueOf(a), blueOf(b), t));
}

}  // namespace tessel
