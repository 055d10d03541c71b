// Outlines ruled by a bitmap's alpha (a skin image or a separate mask), and the bands that turn
// any outline into a stack of rectangles lying wholly inside it, safe for text and children.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/style/image.h"
#include "tessel/style/shape_kind.h"

namespace tessel {

// The alpha of `bitmap` stretched to width x height, at (x, y): the nearest source pixel by
// integer division, clamped to the bitmap, so points beyond the edge take the edge's value.
// An empty bitmap or a non-positive size covers nothing (0).
uint8_t coverageAt(const Image& bitmap, int32_t width, int32_t height, int32_t x, int32_t y);

// Whether pixel (x, y) of a surface of the given size lies inside its outline: a non-empty
// `coverage` bitmap decides by coverage at or above `threshold`; otherwise the vector shape.
bool isInsideOutline(ShapeKind kind, const Image* coverage, uint8_t threshold, int32_t width,
                     int32_t height, int32_t x, int32_t y);

// The bitmap's outline as bands of up to `bandHeight` rows (at least 1) walked over `area`,
// from the top: each band is the widest column range covered in every one of its rows, a band
// with an uncovered row is dropped whole, and a band equal in columns to the one just above it
// joins that one. `bitmap` is stretched over `rect`; `area` (normally a part of `rect`, such as
// `rect` after insets) and the bands are in the same coordinates as `rect`. Without a bitmap
// the outline is the rectangle, and the whole non-empty `area` is the one band.
std::vector<Rect> alphaBands(const Rect& rect, const Rect& area, const Image& bitmap,
                             uint8_t threshold, int32_t bandHeight);

}  // namespace tessel
