// Which outline rules a surface: a mask, its visible bitmap, or its vector shape; and whether a
// point of a control hits that outline. Layout, hit-testing and every per-pixel layer follow
// the same choice.
#pragma once

#include "tessel/style/geometry.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// The mask under MaskAlphaLayout, else the visible bitmap when an alpha mode or
// `useSkinAlphaHitTest` asks for it; null when the vector shape rules.
const Image* surfaceCoverageBitmap(const SurfaceStyle& style);

// A point of a control of the given size, tested inside the rectangle left by `hitInsets`.
bool hitTestSurface(const SurfaceStyle& style, Size size, Point point);

}  // namespace tessel
