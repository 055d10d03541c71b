// The procedural layers a material lays over a surface's base: the overlay that gives glass,
// metal, stone and the other kinds their look (with its finish and relief light), the spatial
// shading that makes the outline a lit slab, and plain grain. Each fills a transparent
// premultiplied layer of the rectangle's size, writing only pixels inside the surface's outline
// (its coverage bitmap when it has one, else its vector shape), for the caller to blend.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"
#include "tessel/style/image.h"
#include "tessel/paint/ui_performance.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// Each function paints into `layer`, which must be zeroed and of `rect`'s size; an empty
// `layer` is created. `rect` gives the size and, under global mapping, the position. They return
// false, painting nothing, when the layer doesn't run: its gate under `profile` or its
// conditions say no, or `layer` has another size.

// The material overlay at the animation `phase` (0..1, see animationPhase).
bool drawMaterialOverlay(Image& layer, const SurfaceStyle& style, const Rect& rect,
                         UiPerformanceProfile profile, double phase);

// The relief that follows the outline, with a lit and a shaded side.
bool drawSpatialSurfaceShading(Image& layer, const SurfaceStyle& style, const Rect& rect,
                               UiPerformanceProfile profile);

// Grain in the colour `noise`, fixed to world coordinates under global mapping.
bool drawNoise(Image& layer, const SurfaceStyle& style, const Rect& rect,
               UiPerformanceProfile profile);

// The phase of LuminousGlass's motion at `tickMs`, in 64 steps per period; 0 (still) for every
// other kind, for a profile other than best-graphics, and for an animationSpeed below 1.
double animationPhase(const SurfaceStyle& style, UiPerformanceProfile profile, uint64_t tickMs);

}  // namespace tessel
