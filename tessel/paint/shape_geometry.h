// The vector outlines of a surface: the sizes of their arcs and cuts, their polygons, and the
// per-pixel inside test that every software layer and hit test follows. Plain integer
// geometry; non-positive sizes give empty lists and points that are never inside.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/style/shape_kind.h"

namespace tessel {

// The RoundedRect arc: a radius of a quarter of the smaller side, kept between 4 and 12, and a
// diameter never larger than that side nor below 1.
int32_t cornerDiameter(int32_t width, int32_t height);

// The corner cut of Bevel (divisor 5) and Octagon (divisor 3): the smaller side over the
// divisor (below 1 counts as 1), at least 1 and at most half that side (exactly 1 below a side
// of 4).
int32_t polygonCut(int32_t width, int32_t height, int32_t divisor);

// The side cut of Hexagon, SlantRight and SlantLeft: min(width / 4, height / 2), at least 1 and
// at most width / 2 (exactly 1 when that is below 2).
int32_t hexagonCut(int32_t width, int32_t height);

// The corners of the polygonal kinds (Diamond to SlantLeft), clockwise from the top left.
// Rectangle, RoundedRect and Capsule are not polygons and give an empty list, as does an
// empty rectangle.
std::vector<Point> shapePolygon(ShapeKind kind, const Rect& rect);

// Whether pixel (x, y) of a shape of the given size lies inside its outline. Points outside
// 0..width-1 and 0..height-1 never do.
bool isInsideShape(ShapeKind kind, int32_t width, int32_t height, int32_t x, int32_t y);

// Every outline is convex along a row: the pixels of row y for which isInsideShape holds are
// one run [first, last]. False when the row has none (or lies outside the rectangle).
bool shapeRowSpan(ShapeKind kind, int32_t width, int32_t height, int32_t y, int32_t& first,
                  int32_t& last);

// The rectangle a GDI pen of `width` follows so that its stroke stays inside `rect`: moved in by
// width / 2, shrunk by max(width, 1), but never below 1 on either side.
Rect strokePenRect(const Rect& rect, int32_t width);

// `rect` less `insets`, each side clamped so that nothing grows and no size goes negative.
Rect applyInsets(const Rect& rect, const Insets& insets);

// The common part of two rectangles; {0, 0, 0, 0} when they don't overlap.
Rect intersectRects(const Rect& a, const Rect& b);

}  // namespace tessel
