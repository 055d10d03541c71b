#include "tessel/paint/surface_painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
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

// A segmented body equals one surface painted on the straightened spans: each row (or column)
// of the body is the same row of a reference painted on a rectangle of the longest span, over
// the same ground, shifted to the row's start. Pixels outside every span keep the ground.
TEST(SurfacePainter, SegmentedBodiesPaintOneStraightenedSurface) {
  const struct {
    const char* what;
    std::vector<Rect> segments;
    Size straight;  // longest span by the other side of the box
    bool rows;
  } kCases[] = {
      {"notched popup: row spans", {{0, 0, 20, 10}, {5, 10, 30, 30}}, {30, 40}, true},
      {"grouped buttons: column spans", {{0, 0, 10, 8}, {10, 2, 30, 10}}, {40, 10}, false},
      {"rows without a segment stay untouched", {{0, 0, 10, 5}, {2, 10, 10, 5}}, {10, 15}, true},
      {"empty segments are left out",
       {{3, 3, 0, 9}, {0, 0, 12, 12}, {4, 4, 5, -2}},
       {12, 12},
       true},
      {"nothing but empty segments", {{1, 1, 0, 5}, {2, 2, 4, 0}}, {1, 1}, true},
  };
  const Color ground = rgbColor(180, 20, 20);
  SurfaceStyle s = Plain();
  s.useGradient = s.useGradientMid = true;
  s.gradientStart = rgbColor(0, 0, 0);
  s.gradientMid = rgbColor(40, 200, 90);
  s.gradientEnd = rgbColor(250, 250, 250);
  s.gradientDirection = 4;  // diagonal: both axes count
  s.opacity = 160;          // the ground must travel along to blend right
  const auto onGround = [&](Size size) {
    Image image = Image::blank(size.width, size.height);
    ImageCanvas(image).fillRect(Rect{0, 0, size.width, size.height}, ground);
    return image;
  };
  const Image groundOnly = onGround({1, 1});
  for (const auto& c : kCases) {
    clearPaintCaches();
    Image body = onGround({48, 48}), reference = onGround(c.straight);
    ImageCanvas bodyCanvas(body), referenceCanvas(reference);
    drawSegmentedSurface(bodyCanvas, c.segments, s, P::BestGraphics);
    drawSurface(referenceCanvas, {0, 0, c.straight.width, c.straight.height}, s, P::BestGraphics);
    for (int32_t y = 0; y < 48; ++y) {
      for (int32_t x = 0; x < 48; ++x) {
        // The span this pixel belongs to, from the segments that cross its row or column.
        int32_t start = INT32_MAX, end = INT32_MIN;
        for (const Rect& r : c.segments) {
          if (!r.empty() && (c.rows ? (y >= r.y && y < r.bottom()) : (x >= r.x && x < r.right()))) {
            start = std::min(start, c.rows ? r.x : r.y);
            end = std::max(end, c.rows ? r.right() : r.bottom());
          }
        }
        const int32_t along = c.rows ? x : y;
        const uint8_t* want = along < start || along >= end ? groundOnly.pixel(0, 0)
                              : c.rows                      ? reference.pixel(x - start, y)
                                                            : reference.pixel(x, y - start);
        ASSERT_EQ(*reinterpret_cast<const uint32_t*>(body.pixel(x, y)),
                  *reinterpret_cast<const uint32_t*>(want))
            << c.what << " at " << x << "," << y;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
