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

const Color kFill = rgbColor(40, 80, 120);

SurfaceStyle Plain() {
  SurfaceStyle s;
  s.fill = s.gradientStart = s.gradientMid = s.gradientEnd = kFill;
  s.drawBorder = false;
  return s;
}

Image Paint(const SurfaceStyle& style, Size canvasSize, Rect rect,
            UiPerformanceProfile profile = UiPerformanceProfile::BestGraphics) {
  Image image = Image::blank(canvasSize.width, canvasSize.height);
  ImageCanvas canvas(image);
  drawSurface(canvas, rect, style, profile);
  return image;
}

Color ColorAt(const Image& image, int x, int y) {
  const uint8_t* p = image.pixel(x, y);
  return rgbColor(p[2], p[1], p[0]);
}

class SurfacePainter : public ::testing::Test {
 protected:
  void SetUp() override { clearLayerCache(); }
  void TearDown() override { clearLayerCache(); }
};

TEST_F(SurfacePainter, SolidFillIsOpaqueWhateverTheOpacity) {
  SurfaceStyle s = Plain();
  s.opacity = 128;
  const Image image = Paint(s, {20, 20}, {2, 2, 16, 16});
  EXPECT_EQ(image.alphaAt(10, 10), 255);
  EXPECT_EQ(ColorAt(image, 10, 10), kFill);
  EXPECT_EQ(image.alphaAt(1, 1), 0);
}

TEST_F(SurfacePainter, GradientRunsFromStartToEndWithOpacity) {
  SurfaceStyle s = Plain();
  s.useGradient = true;
  s.gradientStart = rgbColor(0, 0, 0);
  s.gradientEnd = rgbColor(200, 100, 50);
  const Image image = Paint(s, {10, 11}, {0, 0, 10, 11});
  EXPECT_EQ(ColorAt(image, 3, 0), rgbColor(0, 0, 0));
  EXPECT_EQ(ColorAt(image, 3, 10), rgbColor(200, 100, 50));
  EXPECT_EQ(ColorAt(image, 3, 5), rgbColor(100, 50, 25));
  s.opacity = 128;
  clearLayerCache();
  const Image half = Paint(s, {10, 11}, {0, 0, 10, 11});
  EXPECT_EQ(half.alphaAt(3, 10), 128);
  EXPECT_EQ(half.pixel(3, 10)[2], 200 * 128 / 255);
}

TEST_F(SurfacePainter, LargeGradientUnderBalancedFallsBackToFill) {
  SurfaceStyle s = Plain();
  s.useGradient = true;
  s.gradientStart = rgbColor(255, 0, 0);
  s.gradientEnd = rgbColor(0, 0, 255);
  // 600 x 600 = 360,000 is allowed; 601 x 600 is not.
  const Image allowed = Paint(s, {601, 600}, {0, 0, 600, 600}, UiPerformanceProfile::Balanced);
  EXPECT_EQ(ColorAt(allowed, 0, 0), rgbColor(255, 0, 0));
  const Image refused = Paint(s, {601, 600}, {0, 0, 601, 600}, UiPerformanceProfile::Balanced);
  EXPECT_EQ(ColorAt(refused, 0, 0), kFill);
}

TEST_F(SurfacePainter, ZeroShadowOffsetShowsNoShadow) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.showShadow = true;
  s.shadowOpacity = 200;
  EXPECT_EQ(Paint(s, {20, 20}, {4, 4, 10, 10}).alphaAt(8, 8), 0);
  s.shadowOffsetX = 3;
  const Image shadowed = Paint(s, {20, 20}, {4, 4, 10, 10});
  EXPECT_EQ(shadowed.alphaAt(15, 8), 200);  // moved right by 3
  EXPECT_EQ(shadowed.alphaAt(5, 8), 0);
}

TEST_F(SurfacePainter, GlowStepsGrowOutwardAndFaintest) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.showGlow = true;
  s.glowRadius = 20;
  s.glowOpacity = 12;
  const Rect rect{30, 30, 10, 10};
  const Image image = Paint(s, {100, 100}, rect);
  // The outermost of the eight shapes reaches 20 pixels and has alpha 1.
  EXPECT_EQ(image.alphaAt(30 - 20, 35), 1);
  EXPECT_EQ(image.alphaAt(30 - 21, 35), 0);
  // Inward the shapes stack: alpha never falls.
  int previous = 0;
  for (int x = 30 - 20; x < 30; ++x) {
    EXPECT_GE(image.alphaAt(x, 35), previous);
    previous = image.alphaAt(x, 35);
  }
  EXPECT_GT(previous, 4);
  // Under maximum performance the glow gate is shut.
  EXPECT_EQ(Paint(s, {100, 100}, rect, UiPerformanceProfile::MaximumPerformance).alphaAt(25, 35),
            0);
}

TEST_F(SurfacePainter, BorderAloneIsARectangularFrame) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.drawBorder = true;
  s.shape = ShapeKind::Capsule;
  s.border = rgbColor(9, 9, 9);
  const Image image = Paint(s, {20, 20}, {2, 2, 16, 10});
  EXPECT_EQ(ColorAt(image, 2, 2), rgbColor(9, 9, 9));  // the corner a capsule wouldn't have
  EXPECT_EQ(image.alphaAt(8, 6), 0);
}

TEST_F(SurfacePainter, WithoutFillBorderOrBitmapOutlineStillDraws) {
  SurfaceStyle s = Plain();
  s.drawFill = false;
  s.drawBorder = false;
  s.showOutline = true;
  s.outlineWidth = 2;
  s.outline = rgbColor(1, 2, 3);
  s.useNoise = true;
  s.noiseOpacity = 255;
  s.noise = rgbColor(255, 255, 255);
  const Image image = Paint(s, {20, 20}, {0, 0, 20, 20});
  EXPECT_EQ(ColorAt(image, 0, 10), rgbColor(1, 2, 3));
  int noisy = 0;
  for (int x = 4; x < 16; ++x)
    noisy += image.alphaAt(x, 10) > 0;
  EXPECT_GT(noisy, 6);  // grain over an empty base
}

TEST_F(SurfacePainter, HugeLayersArePaintedButNotKept) {
  SurfaceStyle s = Plain();
  s.useGradient = true;
  s.gradientEnd = rgbColor(250, 250, 250);
  Image image = Image::blank(4, 4);
  ImageCanvas canvas(image);
  drawSurface(canvas, Rect{0, 0, 3000, 3000}, s, UiPerformanceProfile::BestGraphics);
  EXPECT_TRUE(layerCacheKeys().empty());
  EXPECT_EQ(image.alphaAt(2, 2), 255);
  drawSurface(canvas, Rect{0, 0, 30, 30}, s, UiPerformanceProfile::BestGraphics);
  EXPECT_EQ(layerCacheKeys().size(), 1u);
}

// A segmented body equals one surface painted on the straightened spans: each row (or column)
// of the body is the same row of a reference painted on a rectangle of the longest span, over
// the same ground, shifted to the row's start. Pixels outside every span keep the ground.
struct SegmentedCase {
  const char* what;
  std::vector<Rect> segments;
  Size straight;  // longest span by the other side of the box
  bool rows;
};

TEST_F(SurfacePainter, SegmentedBodiesPaintOneStraightenedSurface) {
  const SegmentedCase cases[] = {
      {"notched popup: row spans", {{0, 0, 20, 10}, {5, 10, 30, 30}}, {30, 40}, true},
      {"grouped buttons: column spans", {{0, 0, 10, 8}, {10, 2, 30, 10}}, {40, 10}, false},
      {"rows without a segment stay untouched", {{0, 0, 10, 5}, {2, 10, 10, 5}}, {10, 15}, true},
      {"empty segments are left out",
       {{3, 3, 0, 9}, {0, 0, 12, 12}, {4, 4, 5, -2}},
       {12, 12},
       true},
  };
  const Color ground = rgbColor(180, 20, 20);
  SurfaceStyle s = Plain();
  s.useGradient = true;
  s.useGradientMid = true;
  s.gradientStart = rgbColor(0, 0, 0);
  s.gradientMid = rgbColor(40, 200, 90);
  s.gradientEnd = rgbColor(250, 250, 250);
  s.gradientDirection = 4;  // diagonal: both axes count
  s.opacity = 160;          // the ground must travel along to blend right
  for (const SegmentedCase& c : cases) {
    SCOPED_TRACE(c.what);
    clearPaintCaches();
    Image body = Image::blank(48, 48);
    ImageCanvas canvas(body);
    canvas.fillRect(Rect{0, 0, 48, 48}, ground);
    drawSegmentedSurface(canvas, c.segments, s, UiPerformanceProfile::BestGraphics);
    Image reference = Image::blank(c.straight.width, c.straight.height);
    ImageCanvas referenceCanvas(reference);
    referenceCanvas.fillRect(Rect{0, 0, c.straight.width, c.straight.height}, ground);
    drawSurface(referenceCanvas, Rect{0, 0, c.straight.width, c.straight.height}, s,
                UiPerformanceProfile::BestGraphics);
    Image groundOnly = Image::blank(1, 1);
    ImageCanvas(groundOnly).fillRect(Rect{0, 0, 1, 1}, ground);
    const uint32_t groundPixel = *reinterpret_cast<const uint32_t*>(groundOnly.pixel(0, 0));
    for (int32_t y = 0; y < 48; ++y) {
      for (int32_t x = 0; x < 48; ++x) {
        // The span this pixel belongs to, from the segments that cross its row or column.
        int32_t start = INT32_MAX, end = INT32_MIN;
        for (const Rect& r : c.segments) {
          if (r.empty()) continue;
          if (c.rows ? (y >= r.y && y < r.bottom()) : (x >= r.x && x < r.right())) {
            start = std::min(start, c.rows ? r.x : r.y);
            end = std::max(end, c.rows ? r.right() : r.bottom());
          }
        }
        const int32_t along = c.rows ? x : y;
        const bool inside = along >= start && along < end;
        const uint32_t got = *reinterpret_cast<const uint32_t*>(body.pixel(x, y));
        const uint32_t want =
            inside ? *reinterpret_cast<const uint32_t*>(c.rows ? reference.pixel(x - start, y)
                                                               : reference.pixel(x, y - start))
                   : groundPixel;
        ASSERT_EQ(got, want) << "at " << x << "," << y;
      }
    }
  }
}

TEST_F(SurfacePainter, SegmentedBodyWithoutSegmentsPaintsNothing) {
  SurfaceStyle s = Plain();
  Image image = Image::blank(8, 8);
  ImageCanvas canvas(image);
  drawSegmentedSurface(canvas, {}, s, UiPerformanceProfile::BestGraphics);
  drawSegmentedSurface(canvas, {Rect{1, 1, 0, 5}, Rect{2, 2, 4, 0}}, s,
                       UiPerformanceProfile::BestGraphics);
  for (int32_t y = 0; y < 8; ++y)
    for (int32_t x = 0; x < 8; ++x)
      EXPECT_EQ(image.alphaAt(x, y), 0);
}

struct PositionCase {
  int32_t kind, direction;
  double x, y;
  double expected;
};

TEST(GradientPosition, KindsAndDirections) {
  const PositionCase cases[] = {
      {0, 0, 0, 10, 1.0},  {0, 1, 0, 10, 0.0},  {0, 2, 10, 0, 1.0}, {0, 3, 10, 0, 0.0},
      {0, 4, 10, 10, 1.0}, {0, 5, 10, 10, 0.0}, {0, 6, 10, 0, 1.0}, {0, 7, 10, 0, 0.0},
      {1, 0, 0, 5, 1.0},   {1, 0, 0, 0, 0.0},   {2, 0, 5, 5, 0.0},  {2, 0, 0, 0, 1.0},
      {3, 0, 5, 5, 0.0},   {3, 0, 0, 5, 1.0},   {4, 0, 10, 5, 0.5}, {4, 1, 10, 5, 0.5},
      {4, 0, 5, 0, 0.25},  {4, 1, 5, 0, 0.75},
  };
  for (const PositionCase& c : cases) {
    EXPECT_NEAR(gradientPosition(c.kind, c.direction, c.x, c.y, 11, 11), c.expected, 1e-9)
        << c.kind << "/" << c.direction << " at " << c.x << "," << c.y;
  }
  // A one-pixel extent has no direction to run in.
  EXPECT_EQ(gradientPosition(0, 0, 0, 0, 1, 1), 0.0);
}

}  // namespace
}  // namespace tessel
