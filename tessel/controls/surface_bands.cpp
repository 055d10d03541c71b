#include "tessel/controls/surface_bands.h"

#include <algorithm>

#include "tessel/paint/alpha_bands.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"

namespace tessel {

std::vector<Rect> surfaceBands(const SurfaceStyle& style, const Rect& rect, const Rect& area) {
  const Rect usable = intersectRects(rect, area);
  if (usable.empty()) return {};
  if (const Image* coverage = surfaceCoverageBitmap(style)) {
    return alphaBands(rect, usable, *coverage, style.alphaThreshold, style.bandHeight);
  }
  if (style.shape == ShapeKind::Rectangle) return {usable};
  std::vector<Rect> bands;
  const int32_t bandHeight = std::max(style.bandHeight, 1);
  for (int32_t top = usable.y; top < usable.bottom(); top += bandHeight) {
    const int32_t bottom = std::min(top + bandHeight, usable.bottom());
    int32_t left = usable.x;
    int32_t right = usable.right();  // exclusive
    bool covered = true;
    for (int32_t y = top; y < bottom && covered; ++y) {
      int32_t first = 0;
      int32_t last = 0;
      covered = shapeRowSpan(style.shape, rect.width, rect.height, y - rect.y, first, last);
      left = std::max(left, rect.x + first);
      right = std::min(right, rect.x + last + 1);
    }
    if (!covered || right <= left) continue;
    const Rect band{left, top, right - left, bottom - top};
    if (!bands.empty() && bands.back().x == band.x && bands.back().width == band.width &&
        bands.back().bottom() == band.y) {
      bands.back().height += band.height;
    } else {
      bands.push_back(band);
    }
  }
  return bands;
}

}  // namespace tessel
