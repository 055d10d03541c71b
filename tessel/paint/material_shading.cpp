#include "tessel/paint/material_shading.h"

#include <algorithm>

#include "tessel/paint/material_layers.h"

namespace tessel {

namespace {

bool prepareLayer(Image& layer, const Rect& rect) {
  if (layer.empty()) layer = Image::blank(rect.width, rect.height);
  return !layer.empty() && layer.width == rect.width && layer.height == rect.height;
}

bool overlayAllowed(const SurfaceStyle& style, const Rect& rect, UiPerformanceProfile profile) {
  if (style.material == MaterialKind::None || style.materialStrength == 0) return false;
  if (rect.width < 1 || rect.height < 1) return false;
  // LuminousGlass alone stays on under every profile (in its cheap form under
  // maximum-performance), up to a larger area when balanced.
  if (style.material == MaterialKind::LuminousGlass) return allowsLuminousGlass(rect, profile);
  return allowsMaterial(rect, profile);
}

}  // namespace

bool drawMaterialOverlay(Image& layer, const SurfaceStyle& style, const Rect& rect,
                         UiPerformanceProfile profile, double phase) {
  if (!overlayAllowed(style, rect, profile)) return false;
  if (!prepareLayer(layer, rect)) return false;
  // The relief light follows the glow gate: off where glow and shadow would be.
  const uint8_t depth = allowsGlow(rect, profile) ? style.materialDepth : 0;
  const bool cheap = profile == UiPerformanceProfile::MaximumPerformance;
  if (material_layers::avx2Available())
    material_layers::avx2::paintOverlay(layer, style, rect, depth, cheap, phase);
  else
    material_layers::baseline::paintOverlay(layer, style, rect, depth, cheap, phase);
  return true;
}

bool drawSpatialSurfaceShading(Image& layer, const SurfaceStyle& style, const Rect& rect,
                               UiPerformanceProfile profile) {
  if (rect.width < 7 || rect.height < 7) return false;
  // The raw materialDepth: no preset supplies a default here.
  if (style.material == MaterialKind::None || style.materialDepth == 0) return false;
  if (!allowsGlow(rect, profile)) return false;
  if (material_layers::spatialIntensity(style) < 0.16) return false;
  if (!prepareLayer(layer, rect)) return false;
  if (material_layers::avx2Available())
    material_layers::avx2::paintSpatialShading(layer, style, rect);
  else
    material_layers::baseline::paintSpatialShading(layer, style, rect);
  return true;
}

bool drawNoise(Image& layer, const SurfaceStyle& style, const Rect& rect,
               UiPerformanceProfile profile) {
  if (!style.useNoise || style.noiseOpacity == 0) return false;
  if (rect.width < 1 || rect.height < 1 || !allowsNoise(rect, profile)) return false;
  if (!prepareLayer(layer, rect)) return false;
  if (material_layers::avx2Available())
    material_layers::avx2::paintNoise(layer, style, rect);
  else
    material_layers::baseline::paintNoise(layer, style, rect);
  return true;
}

double animationPhase(const SurfaceStyle& style, UiPerformanceProfile profile, uint64_t tickMs) {
  if (style.material != MaterialKind::LuminousGlass) return 0.0;
  if (profile != UiPerformanceProfile::BestGraphics || style.animationSpeed < 1) return 0.0;
  const uint64_t speed = uint64_t(std::min(style.animationSpeed, 255));
  const uint64_t period = std::max<uint64_t>(60000 / speed, 1600);
  return double((tickMs % period) * 64 / period) / 64.0;
}

}  // namespace tessel
