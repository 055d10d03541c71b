#include "tessel/paint/line_raster.h"

#include <gtest/gtest.h>

#include <vector>

#include "tessel/paint/image_canvas.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

TEST(LineRaster, StampsFollowTheWalkWithBothEnds) {
  const struct {
    const char* what;
    Point from, to;
    int32_t width;
    std::vector<Rect> stamps;
  } kCases[] = {
      {"one point", {3, 4}, {3, 4}, 1, {{3, 4, 1, 1}}},
      {"diagonal down, width 2", {3, 7}, {5, 9}, 2, {{2, 6, 2, 2}, {3, 7, 2, 2}, {4, 8, 2, 2}}},
      {"backwards and up", {2, 2}, {0, 0}, 1, {{2, 2, 1, 1}, {1, 1, 1, 1}, {0, 0, 1, 1}}},
      {"steep", {0, 0}, {1, 3}, 1, {{0, 0, 1, 1}, {0, 1, 1, 1}, {1, 2, 1, 1}, {1, 3, 1, 1}}},
      {"shallow", {0, 0}, {3, 1}, 3, {{-1, -1, 3, 3}, {0, -1, 3, 3}, {1, 0, 3, 3}, {2, 0, 3, 3}}},
      {"no width, no line", {0, 0}, {5, 5}, 0, {}},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(lineStamps(c.from, c.to, c.width), c.stamps) << c.what;
}

TEST(LineRaster, ImageCanvasDrawsTheStampsUnderItsClip) {
  Image image = Image::blank(10, 10);
  ImageCanvas canvas(image);
  canvas.clipToRects({Rect{0, 0, 10, 5}});
  canvas.drawLine(Point{1, 1}, Point{8, 8}, rgbColor(255, 0, 0), 2);
  EXPECT_EQ(PixelAt(image, 0, 0), rgbColor(255, 0, 0));
  EXPECT_EQ(PixelAt(image, 4, 4), rgbColor(255, 0, 0));
  EXPECT_EQ(image.alphaAt(8, 8), 0);  // clipped away
  EXPECT_EQ(image.alphaAt(8, 1), 0);
}

}  // namespace
}  // namespace tessel
