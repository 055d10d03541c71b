#include "tessel/paint/line_raster.h"

#include <cstdlib>

namespace tessel {

std::vector<Rect> lineStamps(Point from, Point to, int32_t width) {
  std::vector<Rect> stamps;
  if (width < 1) return stamps;
  const int32_t dx = std::abs(to.x - from.x);
  const int32_t dy = -std::abs(to.y - from.y);
  const int32_t sx = from.x < to.x ? 1 : -1;
  const int32_t sy = from.y < to.y ? 1 : -1;
  int32_t error = dx + dy;
  Point p = from;
  const int32_t half = width / 2;
  for (;;) {
    stamps.push_back(Rect{p.x - half, p.y - half, width, width});
    if (p == to) break;
    const int32_t twice = 2 * error;
    if (twice >= dy) {
      error += dy;
      p.x += sx;
    }
    if (twice <= dx) {
      error += dx;
      p.y += sy;
    }
  }
  return stamps;
}

}  // namespace tessel
