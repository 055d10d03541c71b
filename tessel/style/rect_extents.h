// Where a body made of rectangles lies, row by row (or column by column): for each line of an
// area, the hull of the rectangles that cross it. Shaped layout, deforming paints and segmented
// surfaces all straighten bodies along these extents.
#pragma once

#include <vector>

#include "tessel/style/geometry.h"

namespace tessel {

struct Extent {
  int32_t low = 0;   // first x (of a row) or y (of a column) covered
  int32_t high = 0;  // one past the last
  bool any = false;  // false: no rectangle crosses this line
};

// One entry per row of `area` when `rows` is set, else per column. Empty rectangles and the
// parts outside the area's lines are left out; the extents themselves aren't clipped.
std::vector<Extent> rectExtents(const Rect& area, const std::vector<Rect>& rects, bool rows);

}  // namespace tessel
