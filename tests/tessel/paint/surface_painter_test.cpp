#include "tessel/paint/surface_painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tessel/paint/gradient.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/layer_cache.h"

namespace tessel {
namespace {

using P = UiPerformanceProfile;
const Color kFill = rgbColor(40, 80, 120);

SurfaceStyle Plain() {
  SurfaceStyle s;
  s.fill = s.gradientStart = s.gradientMid = s.gradientEnd = kFill;
  s.drawBorder = false;
  return s;
}

Image Paint(const SurfaceStyle& style, Size size, Rect rect, P profile = P::BestGraphics) {
  clearPaintCaches();
  Image image = Image::blank(size.width, size.height);
  ImageCanvas canvas(image);
  drawSurface(canvas, rect, style, profile);
  return image;
}

Color ColorAt(const Image& image, int x, int y) {
  const uint8_t* p = image.pixel(x, y);
  return rgbColor(p[2], p[1], p[0]);
}

// The whole look of every layer is in the golden sheets (surface_golden_test.cpp); here what
// they don't show: opacity, gates, offsets and the cache.
TEST(SurfacePainter, SolidFillIsOpaqueAndGradientsTakeTheOpacity) {
  SurfaceStyle s = Plain();
  s.opacity = 128;
  const Image solid = Paint(s, {20, 20}, {2, 2, 16, 16});
  EXPECT_EQ(solid.alphaAt(10, 10), 255);
  EXPECT_EQ(ColorAt(solid, 10, 10), kFill);
  EXPECT_EQ(solid.alphaAt(1, 1), 0);
  s.useGradient = true;
  s.gradientStart = rgbColor(0, 0, 0);
  s.gradientEnd = rgbColor(200, 100, 50);
  const Image half = Paint(s, {10, 11}, {0, 0, 10, 11});
  EXPECT_EQ(half.alphaAt(3, 10), 128);
  EXPECT_EQ(half.pixel(3, 10)[2], 200 * 128 / 255);
  EXPECT_EQ(half.pixel(3, 5)[2], 100 * 128 / 255);
  // A one-pixel extent has no direction to run in.
  EXPECT_EQ(gradientPosition(2, 0, 0, 0, 1, 1), 1.0);
}

TEST(SurfacePainter, LargeGradientUnderBalancedFallsBackToFill) {
  SurfaceStyle s = Plain();
  s.useGradient = true;
  s.gradientStart = rgbColor(255, 0, 0);
  // 600 x 600 = 360,000 is allowed; 601 x 600 is not.
  EXPECT_EQ(ColorAt(Paint(s, {601, 600}, {0, 0, 600, 600}, P::Balanced), 0, 0), s.gradientStart);
  EXPECT_EQ(ColorAt(Paint(s, {601, 600}, {0, 0, 601, 600}, P::Balanced), 0, 0), kFill);
}

TEST(SurfacePainter, ShadowNeedsAnOffsetAndGlowReachesItsRadius) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.showShadow = true;
  s.shadowOpacity = 200;
  EXPECT_EQ(Paint(s, {20, 20}, {4, 4, 10, 10}).alphaAt(8, 8), 0);
  s.shadowOffsetX = 3;
  const Image shadowed = Paint(s, {20, 20}, {4, 4, 10, 10});
  EXPECT_EQ(shadowed.alphaAt(16, 8), 200);  // moved right by 3
  EXPECT_EQ(shadowed.alphaAt(17, 8), 0);
  EXPECT_EQ(shadowed.alphaAt(6, 8), 0);

  s = Plain();
  s.drawFill = false;
  s.showGlow = true;
  s.glowRadius = 20;
  s.glowOpacity = 12;
  // The outermost of the eight shapes reaches 20 pixels and has alpha 1.
  const Image glow = Paint(s, {100, 100}, {30, 30, 10, 10});
  EXPECT_EQ(glow.alphaAt(10, 35), 1);
  EXPECT_EQ(glow.alphaAt(9, 35), 0);
  EXPECT_EQ(Paint(s, {100, 100}, {30, 30, 10, 10}, P::MaximumPerformance).alphaAt(25, 35), 0);
}

TEST(SurfacePainter, BorderAloneIsARectangularFrameAndNoiseNeedsNoBase) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.drawBorder = true;
  s.shape = ShapeKind::Capsule;
  s.border = rgbColor(9, 9, 9);
  const Image frame = Paint(s, {20, 20}, {2, 2, 16, 10});
  EXPECT_EQ(ColorAt(frame, 2, 2), s.border);  // the corner a capsule wouldn't have
  EXPECT_EQ(frame.alphaAt(8, 6), 0);
  s.drawBorder = false;
  s.useNoise = true;
  s.noiseOpacity = 255;
  const Image image = Paint(s, {20, 20}, {0, 0, 20, 20});
  int noisy = 0;
  for (int x = 4; x < 16; ++x)
    noisy += image.alphaAt(x, 10) > 0;
  EXPECT_GT(noisy, 6);
}

TEST(SurfacePainter, HugeLayersArePaintedButNotKept) {
  SurfaceStyle s = Plain();
  s.useGradient = true;
  Image image = Paint(s, {4, 4}, {0, 0, 3000, 3000});
  EXPECT_TRUE(layerCacheKeys().empty());
  EXPECT_EQ(image.alphaAt(2, 2), 255);
  ImageCanvas canvas(image);
  drawSurface(canvas, Rect{0, 0, 30, 30}, s, P::BestGraphics);
  EXPECT_EQ(layerCacheKeys().size(), 1u);
}

// The usual bodies are golden images (surface_golden_test.cpp); here rows without a segment and
// empty segments leave the ground as it was, and a translucent body blends over the ground it
// covers, row by row or column by column.
TEST(SurfacePainter, SegmentedBodiesKeepTheirGround) {
  SurfaceStyle s = Plain();
  s.useGradient = true;  // of one colour, but it takes the opacity
  s.opacity = 160;
  const auto paint = [&](const std::vector<Rect>& segments) {
    clearPaintCaches();
    Image image = Image::blank(48, 20);
    ImageCanvas canvas(image);
    canvas.fillRect({0, 0, 48, 20}, rgbColor(180, 20, 20));
    if (segments.size() == 1) drawSurface(canvas, segments[0], s, P::BestGraphics);
    if (segments.size() > 1) drawSegmentedSurface(canvas, segments, s, P::BestGraphics);
    return image;
  };
  const Image ground = paint({}), whole = paint({{0, 0, 48, 20}});
  EXPECT_EQ(*paint({{1, 1, 0, 5}, {2, 2, 4, 0}}).pixels, *ground.pixels);
  const Image rows = paint({{0, 0, 10, 5}, {3, 3, 0, 9}, {2, 10, 10, 5}, {4, 4, 5, -2}});
  const Image columns = paint({{0, 0, 10, 8}, {10, 2, 30, 10}});
  const auto same = [](const Image& a, const Image& b, int32_t x, int32_t y) {
    return std::equal(a.pixel(x, y), a.pixel(x, y) + 4, b.pixel(x, y));
  };
  EXPECT_FALSE(same(ground, whole, 0, 0));
  const struct {
    const Image* body;
    int32_t x, y;
    bool painted;
  } kPixels[] = {{&rows, 0, 0, true},     {&rows, 9, 4, true},      {&rows, 5, 5, false},
                 {&rows, 5, 7, false},    {&rows, 1, 12, false},    {&rows, 2, 12, true},
                 {&rows, 11, 14, true},   {&rows, 12, 12, false},   {&columns, 5, 7, true},
                 {&columns, 20, 5, true}, {&columns, 20, 1, false}, {&columns, 5, 8, false}};
  for (const auto& p : kPixels)
    EXPECT_TRUE(same(*p.body, p.painted ? whole : ground, p.x, p.y)) << p.x << "," << p.y;
}

}  // namespace
}  // namespace tessel
