// Builds the surfaces of the style builders from a pair of palette colours, a border and a
// role seed, in the look of the skin's surface mode.
#pragma once

#include <cstdint>

#include "tessel/style/surface_mode.h"
#include "tessel/style/surface_style.h"
#include "tessel/skin/theme.h"

namespace tessel {

struct SurfaceRecipe {
  Color from = 0;  // fill, and where the gradient starts
  Color to = 0;    // where the gradient ends
  Color border = 0;
  ShapeKind shape = ShapeKind::Rectangle;
  uint32_t seed = 20742;  // noise seed of the role, so kinds don't share a pattern
  bool elevated = true;   // casts the mode's shadow and glow; inner parts such as rows don't
};

SurfaceStyle buildSurface(const Theme& theme, SurfaceMode mode, const SurfaceRecipe& recipe);

}  // namespace tessel
