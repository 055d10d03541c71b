#include "tessel/paint/surface_outline.h"

#include "tessel/paint/alpha_bands.h"
#include "tessel/paint/shape_geometry.h"

namespace tessel {

const Image* surfaceCoverageBitmap(const SurfaceStyle& style) {
  if (style.geometryMode == GeometryMode::MaskAlphaLayout && !style.mask.empty()) {
    return &style.mask;
  }
  const bool alphaMode = style.geometryMode == GeometryMode::SkinAlphaHitTest ||
                         style.geometryMode == GeometryMode::SkinAlphaLayout ||
                         style.useSkinAlphaHitTest;
  if (alphaMode && !style.image.empty()) return &style.image;
  return nullptr;
}

bool hitTestSurface(const SurfaceStyle& style, Size size, Point point) {
  const Rect area = applyInsets(Rect{0, 0, size.width, size.height}, style.hitInsets);
  if (!area.contains(point.x, point.y)) return false;
  return isInsideOutline(style.shape, surfaceCoverageBitmap(style), style.alphaThreshold,
                         area.width, area.height, point.x - area.x, point.y - area.y);
}

}  // namespace tessel
