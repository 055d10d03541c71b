// Paints one surface in its fixed order of layers: glow, shadow, the base (bitmap, or gradient
// or fill, and border), material overlay, spatial shading, noise, outline. Gradient, material,
// noise and spatial layers are kept in the layer cache; glow, shadow, solid fill, border and
// outline are drawn anew each time, as they are cheap.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/paint/canvas.h"
#include "tessel/paint/ui_performance.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// `tickMs` drives the animation of luminous glass; 0 paints it still.
void drawSurface(Canvas& canvas, const Rect& rect, const SurfaceStyle& style,
                 UiPerformanceProfile profile, uint64_t tickMs = 0);
inline void drawSurface(Canvas& canvas, const Rect& rect, const SurfaceStyle& style) {
  drawSurface(canvas, rect, style, activeUiPerformanceProfile());
}

// Several rectangles that form one body, painted as one straightened surface so that
// gradients and materials run through without seams.
void drawSegmentedSurface(Canvas& canvas, const std::vector<Rect>& segments,
                          const SurfaceStyle& style, UiPerformanceProfile profile);

// The gradient layer of a surface: every pixel inside the vector shape, written with the
// alpha `opacity`.
void produceGradientLayer(Image& layer, const SurfaceStyle& style, const Rect& rect);

// Empties the layer cache and the kept glow, shadow and stroke layers.
void clearPaintCaches();

// Shapes onto a canvas: an opaque fill, a constant-alpha fill and a stroke inside the rect.
void fillShapeOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color);
void fillShapeAlphaOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color, uint8_t alpha);
void strokeShapeOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color, int32_t width);

}  // namespace tessel
