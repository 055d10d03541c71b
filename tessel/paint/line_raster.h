// The pixels of a wide straight line for targets without a pen: the points of a Bresenham
// walk from one end to the other, both included, each covered by a square of `width` pixels
// whose top-left lies at (x - width / 2, y - width / 2). For a width of 2 that is the pair of
// pixel rows and columns a GDI pen of width 2 straddles along the ideal line.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"

namespace tessel {

// The squares to fill, one per point of the walk, in order from `from`; none when `width` < 1.
std::vector<Rect> lineStamps(Point from, Point to, int32_t width);

}  // namespace tessel
