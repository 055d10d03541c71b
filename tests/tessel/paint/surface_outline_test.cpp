#include "tessel/paint/surface_outline.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// A 2x1 image: left pixel opaque, right one transparent.
Image HalfOpaque() {
  Image image = Image::blank(2, 1);
  image.pixel(0, 0)[3] = 255;
  return image;
}

TEST(SurfaceCoverageBitmap, ChoosesTheRulingOutline) {
  const struct {
    const char* what;
    GeometryMode mode;
    bool hasImage, hasMask, useSkinAlpha;
    int expected;  // 0 none, 1 the image, 2 the mask
  } kCases[] = {
      {"fallback shape ignores a bitmap", GeometryMode::FallbackShape, true, true, false, 0},
      {"fallback with the alpha switch", GeometryMode::FallbackShape, true, false, true, 1},
      {"alpha hit test", GeometryMode::SkinAlphaHitTest, true, false, false, 1},
      {"alpha layout", GeometryMode::SkinAlphaLayout, true, true, false, 1},
      {"alpha layout without image", GeometryMode::SkinAlphaLayout, false, true, false, 0},
      {"mask layout", GeometryMode::MaskAlphaLayout, true, true, false, 2},
      {"mask layout without mask", GeometryMode::MaskAlphaLayout, true, false, false, 0},
      {"mask layout without mask, switch on", GeometryMode::MaskAlphaLayout, true, false, true, 1},
  };
  for (const auto& c : kCases) {
    SurfaceStyle style;
    style.geometryMode = c.mode;
    style.useSkinAlphaHitTest = c.useSkinAlpha;
    if (c.hasImage) style.image = HalfOpaque();
    if (c.hasMask) style.mask = HalfOpaque();
    const Image* expected[] = {nullptr, &style.image, &style.mask};
    EXPECT_EQ(surfaceCoverageBitmap(style), expected[c.expected]) << c.what;
  }
}

TEST(HitTestSurface, InsetsThenOutline) {
  SurfaceStyle style;
  style.shape = ShapeKind::Diamond;
  style.hitInsets = {10, 0, 10, 0};
  // 100x21 control: the diamond spans x 10..89 after the insets.
  EXPECT_FALSE(hitTestSurface(style, {100, 21}, {5, 10}));    // inside the inset
  EXPECT_TRUE(hitTestSurface(style, {100, 21}, {50, 10}));    // diamond centre
  EXPECT_TRUE(hitTestSurface(style, {100, 21}, {88, 10}));    // the outline starts at the inset
  EXPECT_FALSE(hitTestSurface(style, {100, 21}, {12, 1}));    // diamond's corner cut
  EXPECT_FALSE(hitTestSurface(style, {100, 21}, {100, 10}));  // outside the control

  style.hitInsets = {};
  style.geometryMode = GeometryMode::SkinAlphaHitTest;
  style.image = HalfOpaque();  // stretched: the left half is solid, the right half empty
  EXPECT_TRUE(hitTestSurface(style, {100, 21}, {10, 1}));
  EXPECT_FALSE(hitTestSurface(style, {100, 21}, {60, 10}));
  style.alphaThreshold = 0;  // every pixel counts when the threshold is zero
  EXPECT_TRUE(hitTestSurface(style, {100, 21}, {60, 10}));
}

}  // namespace
}  // namespace tessel
