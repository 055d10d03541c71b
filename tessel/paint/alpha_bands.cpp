#include "tessel/paint/alpha_bands.h"

#include <algorithm>

#include "tessel/paint/shape_geometry.h"

namespace tessel {

uint8_t coverageAt(const Image& bitmap, int32_t width, int32_t height, int32_t x, int32_t y) {
  if (bitmap.empty() || width < 1 || height < 1) return 0;
  const int64_t sx = std::clamp<int64_t>(int64_t(bitmap.width) * x / width, 0, bitmap.width - 1);
  const int64_t sy = std::clamp<int64_t>(int64_t(bitmap.height) * y / height, 0, bitmap.height - 1);
  return bitmap.alphaAt(int32_t(sx), int32_t(sy));
}

bool isInsideOutline(ShapeKind kind, const Image* coverage, uint8_t threshold, int32_t width,
                     int32_t height, int32_t x, int32_t y) {
  if (x < 0 || y < 0 || x >= width || y >= height) return false;
  if (coverage != nullptr && !coverage->empty())
    return coverageAt(*coverage, width, height, x, y) >= threshold;
  return isInsideShape(kind, width, height, x, y);
}

std::vector<Rect> alphaBands(const Rect& rect, const Rect& area, const Image& bitmap,
                             uint8_t threshold, int32_t bandHeight) {
  std::vector<Rect> bands;
  if (area.empty()) return bands;
  if (bitmap.empty()) {
    bands.push_back(area);
    return bands;
  }
  const auto covered = [&](int32_t x, int32_t y) {
    return coverageAt(bitmap, rect.width, rect.height, x - rect.x, y - rect.y) >= threshold;
  };
  const int32_t step = std::clamp(bandHeight, 1, area.height);
  for (int32_t top = area.y; top < area.bottom(); top += step) {
    const int32_t height = std::min(step, area.bottom() - top);
    int32_t left = area.x;
    int32_t right = area.right();
    bool rejected = false;
    for (int32_t y = top; y < top + height && !rejected; ++y) {
      int32_t first = area.x;
      while (first < area.right() && !covered(first, y))
        ++first;
      if (first == area.right()) {
        rejected = true;
        break;
      }
      int32_t last = area.right() - 1;
      while (!covered(last, y))
        --last;
      left = std::max(left, first);
      right = std::min(right, last + 1);
    }
    if (rejected || left >= right) continue;
    Rect* previous = bands.empty() ? nullptr : &bands.back();
    if (previous != nullptr && previous->x == left && previous->right() == right &&
        previous->bottom() == top) {
      previous->height += height;
    } else {
      bands.push_back({left, top, right - left, height});
    }
  }
  return bands;
}

}  // namespace tessel
