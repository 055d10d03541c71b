#include "tessel/skin/surface_builder.h"

#include "base/wide_text.h"

namespace tessel {

SurfaceStyle buildSurface(const Theme& theme, SurfaceMode mode, const SurfaceRecipe& recipe) {
  SurfaceStyle surface;
  surface.shape = recipe.shape;
  surface.fill = recipe.from;
  surface.border = recipe.border;
  surface.gradientStart = recipe.from;
  surface.gradientMid = mixColor(recipe.from, recipe.to, 0.5);
  surface.gradientEnd = recipe.to;
  surface.gradientDirection = 0;
  surface.noiseSeed = recipe.seed;
  switch (mode) {
    case SurfaceMode::Flat2d:
      surface.gradientMid = surface.gradientEnd = recipe.from;
      break;
    case SurfaceMode::Sculpted3d:
      surface.useGradient = true;
      if (recipe.elevated) {
        surface.showShadow = true;
        surface.shadowOffsetX = 7;
        surface.shadowOffsetY = 9;
        surface.shadowOpacity = 100;
        surface.showGlow = true;
        surface.glow = theme.accentHot;
        surface.glowRadius = 5;
        surface.glowOpacity = 34;
      }
      break;
    case SurfaceMode::Textured:
      surface.useGradient = true;
      if (recipe.elevated) {
        surface.showShadow = true;
        surface.shadowOffsetX = 5;
        surface.shadowOffsetY = 6;
        surface.shadowOpacity = 72;
      }
      surface.useNoise = true;
      surface.noise = rgbColor(0xFF, 0xFF, 0xFF);
      surface.noiseOpacity = 9;
      break;
    case SurfaceMode::BitmapPlates:
      surface.useGradient = true;
      if (recipe.elevated) {
        surface.showShadow = true;
        surface.shadowOffsetX = 6;
        surface.shadowOffsetY = 8;
        surface.shadowOpacity = 96;
      }
      surface.showOutline = true;
      surface.outlineWidth = 1;
      surface.outline = mixColor(recipe.border, theme.text, 0.35);
      surface.useNoise = true;
      surface.noise = rgbColor(0xFF, 0xFF, 0xFF);
      surface.noiseOpacity = 5;
      break;
    case SurfaceMode::WindowsClean:
      surface.useGradient = true;
      surface.gradientEnd = mixColor(recipe.from, recipe.to, 0.24);
      surface.gradientMid = mixColor(recipe.from, surface.gradientEnd, 0.5);
      surface.showOutline = true;
      surface.outlineWidth = 1;
      surface.outline = mixColor(recipe.border, theme.textHot, 0.10);
      break;
  }
  return surface;
}

}  // namespace tessel
