// A plain per-pixel transcription of the material layers, with the standard library's pow, exp
// and sin, written for reading rather than speed. The painter's row-wise code must stay within
// one step per channel of it. The overlay knows the kinds in kReferenceKinds, LuminousGlass in its
// cheap form only, no finish and no relief: the golden images hold the rest.
#pragma once

#include "tessel/style/geometry.h"
#include "tessel/style/image.h"
#include "tessel/style/surface_style.h"

namespace tessel::reference {

inline constexpr MaterialKind kReferenceKinds[] = {
    MaterialKind::Glass,        MaterialKind::FrostedGlass, MaterialKind::Gloss,
    MaterialKind::Metal,        MaterialKind::BrushedMetal, MaterialKind::Plastic,
    MaterialKind::Rubber,       MaterialKind::Paper,        MaterialKind::CarbonFiber,
    MaterialKind::LuminousGlass};

// The overlay of `style` over a surface at `rect` without relief, as if its gate had passed.
Image materialOverlay(const SurfaceStyle& style, const Rect& rect);
// The spatial shading, as if its conditions held (an intensity below 0.16 still gives nothing).
Image spatialShading(const SurfaceStyle& style, const Rect& rect);
// The noise layer, as if its gate had passed.
Image noiseLayer(const SurfaceStyle& style, const Rect& rect);

}  // namespace tessel::reference
