// Whole surfaces through drawSurface against reviewed PNG sheets (tests/tessel/paint/golden/
// surfaces/): every shape with all layers a plain surface has (glow, shadow, gradient with a
// middle stop, border, outline), every gradient kind in every direction, and segmented bodies.
// Regenerate from the project root after a deliberate change and look at the sheets:
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/tessel_tests --gtest_filter='SurfaceGolden.*'
#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/layer_cache.h"
#include "tessel/paint/surface_painter.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

using P = UiPerformanceProfile;

Image Ground(int32_t width, int32_t height) {
  clearPaintCaches();
  Image image = Image::blank(width, height);
  ImageCanvas(image).fillRect(Rect{0, 0, width, height}, rgbColor(38, 44, 52));
  return image;
}

SurfaceStyle Layered(ShapeKind shape) {
  SurfaceStyle s;
  s.shape = shape;
  s.useGradient = s.useGradientMid = true;
  s.gradientStart = rgbColor(120, 170, 230);
  s.gradientMid = rgbColor(40, 90, 160);
  s.gradientEnd = rgbColor(20, 40, 90);
  s.border = rgbColor(200, 220, 255);
  s.showGlow = true;
  s.glowRadius = 6;
  s.glowOpacity = 120;
  s.glow = rgbColor(90, 200, 255);
  s.showShadow = true;
  s.shadowOffsetX = 3;
  s.shadowOffsetY = 4;
  s.shadowOpacity = 140;
  s.showOutline = true;
  s.outlineWidth = 2;
  s.outline = rgbColor(255, 210, 120);
  return s;
}

TEST(SurfaceGolden, EveryShapeWithEveryPlainLayer) {
  Image sheet = Ground(3 * 96, 3 * 64);
  ImageCanvas canvas(sheet);
  for (int32_t kind = 0; kind <= 8; ++kind) {
    const Rect rect{(kind % 3) * 96 + 14, (kind / 3) * 64 + 12, 66, 38};
    drawSurface(canvas, rect, Layered(static_cast<ShapeKind>(kind)), P::BestGraphics);
  }
  EXPECT_TRUE(MatchesGoldenPng(sheet, "tests/tessel/paint/golden/surfaces/shapes.png", 1));
}

// Rows: linear, reflected, radial, diamond, conic. Columns: the eight directions.
TEST(SurfaceGolden, EveryGradientKindInEveryDirection) {
  Image sheet = Ground(8 * 52, 5 * 40);
  ImageCanvas canvas(sheet);
  for (int32_t kind = 0; kind < 5; ++kind) {
    for (int32_t direction = 0; direction < 8; ++direction) {
      SurfaceStyle s;
      s.shape = ShapeKind::RoundedRect;
      s.drawBorder = false;
      s.useGradient = true;
      s.useGradientMid = kind % 2 == 0;
      s.gradientStart = rgbColor(250, 240, 120);
      s.gradientMid = rgbColor(230, 90, 60);
      s.gradientEnd = rgbColor(40, 30, 110);
      s.gradientKind = kind;
      s.gradientDirection = direction;
      drawSurface(canvas, Rect{direction * 52 + 4, kind * 40 + 4, 44, 32}, s, P::BestGraphics);
    }
  }
  EXPECT_TRUE(MatchesGoldenPng(sheet, "tests/tessel/paint/golden/surfaces/gradients.png", 1));
}

// A notched popup (tall, row spans) and a grouped pair of buttons (wide, column spans), each
// with a gradient and a material that must run through without seams.
TEST(SurfaceGolden, SegmentedBodies) {
  Image sheet = Ground(200, 120);
  ImageCanvas canvas(sheet);
  SurfaceStyle s = Layered(ShapeKind::Rectangle);
  s.showGlow = s.showShadow = false;
  s.material = MaterialKind::BrushedMetal;
  s.materialStrength = 230;
  s.textureOpacity = 160;
  s.highlightOpacity = 110;
  s.materialDepth = 70;
  drawSegmentedSurface(canvas, {Rect{10, 10, 30, 14}, Rect{10, 24, 70, 86}}, s, P::BestGraphics);
  s.gradientDirection = 2;
  s.material = MaterialKind::Granite;
  drawSegmentedSurface(canvas, {Rect{96, 20, 44, 30}, Rect{140, 30, 50, 20}}, s, P::BestGraphics);
  EXPECT_TRUE(MatchesGoldenPng(sheet, "tests/tessel/paint/golden/surfaces/segmented.png", 1));
}

}  // namespace
}  // namespace tessel
