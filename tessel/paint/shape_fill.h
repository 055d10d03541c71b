// Filling and stroking the vector outlines into a memory image. A pixel belongs to a shape
// exactly when isInsideShape says so, so these agree with every per-pixel layer and hit test.
// All of them clip to the image; an empty rectangle or image draws nothing.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"
#include "tessel/style/color.h"
#include "tessel/style/image.h"
#include "tessel/style/shape_kind.h"

namespace tessel {

// Replaces the pixels of the shape over `rect` with `color`, opaque.
void fillShape(Image& image, const Rect& rect, ShapeKind kind, Color color);

// An opaque ring `width` pixels wide along the inside of the outline: the pixels of the shape
// that lie within `width` of a pixel outside it (outside `rect` counts as outside), so that
// slanted edges stay closed. A width below 1 draws nothing.
void strokeShape(Image& image, const Rect& rect, ShapeKind kind, Color color, int32_t width);

// A layer of `color` at constant `alpha` over the shape (premultiplied, trunc(c * alpha / 255)),
// composited source-over onto the image as an alpha blend with per-pixel alpha would; on
// transparent pixels that leaves exactly the layer. An alpha of 0 draws nothing.
void fillShapeAlpha(Image& image, const Rect& rect, ShapeKind kind, Color color, uint8_t alpha);

}  // namespace tessel
