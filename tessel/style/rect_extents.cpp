#include "tessel/style/rect_extents.h"

#include <algorithm>

namespace tessel {

std::vector<Extent> rectExtents(const Rect& area, const std::vector<Rect>& rects, bool rows) {
  const int32_t count = rows ? area.height : area.width;
  std::vector<Extent> result(std::max(count, 0));
  for (const Rect& r : rects) {
    if (r.empty()) continue;
    const int32_t from = rows ? std::max(r.y, area.y) : std::max(r.x, area.x);
    const int32_t to =
        rows ? std::min(r.bottom(), area.bottom()) : std::min(r.right(), area.right());
    const int32_t low = rows ? r.x : r.y;
    const int32_t high = rows ? r.right() : r.bottom();
    for (int32_t i = from; i < to; ++i) {
      Extent& e = result[i - (rows ? area.y : area.x)];
      if (!e.any) {
        e = Extent{low, high, true};
      } else {
        e.low = std::min(e.low, low);
        e.high = std::max(e.high, high);
      }
    }
  }
  return result;
}

}  // namespace tessel
