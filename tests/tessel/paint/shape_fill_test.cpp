#include "tessel/paint/shape_fill.h"

#include <gtest/gtest.h>

#include "tessel/paint/shape_geometry.h"

namespace tessel {
namespace {

const Color kInk = rgbColor(0x11, 0x22, 0x33);

// Fills (stroke 0) or strokes `rect` on `image`.
void draw(Image& image, const Rect& rect, ShapeKind kind, int32_t stroke) {
  if (stroke == 0)
    fillShape(image, rect, kind, kInk);
  else
    strokeShape(image, rect, kind, kInk, stroke);
}

// The stroke against its rule, written out plainly, at more sizes than the golden images have: a
// pixel inside the shape whose distance to some pixel outside it (the frame around the rectangle
// counts as outside) is at most the width. The rectangle lies partly off the image.
TEST(StrokeShape, EqualsTheDistanceRuleEverywhere) {
  const Size kSizes[] = {{1, 1}, {2, 7}, {9, 5}, {17, 12}, {31, 23}, {12, 40}, {64, 7}};
  for (int kind = 0; kind < 9; ++kind) {
    for (const Size& size : kSizes) {
      for (int32_t width : {1, 2, 3, 6}) {
        const Rect rect{-3, 2, size.width, size.height};
        Image ring = Image::blank(size.width, size.height + 1);
        strokeShape(ring, rect, ShapeKind(kind), kInk, width);
        const auto inside = [&](int32_t x, int32_t y) {
          return isInsideShape(ShapeKind(kind), size.width, size.height, x, y);
        };
        for (int32_t y = 0; y < ring.height; ++y) {
          for (int32_t x = 0; x < ring.width; ++x) {
            const int32_t sx = x - rect.x, sy = y - rect.y;
            bool expected = false;
            for (int32_t oy = -1; oy <= size.height && !expected && inside(sx, sy); ++oy)
              for (int32_t ox = -1; ox <= size.width && !expected; ++ox)
                expected = !inside(ox, oy) &&
                           (ox - sx) * (ox - sx) + (oy - sy) * (oy - sy) <= width * width;
            const uint8_t* p = ring.pixel(x, y);
            ASSERT_EQ(p[3] == 255 && p[0] == 0x33 && p[1] == 0x22 && p[2] == 0x11, expected)
                << kind << " " << size.width << "x" << size.height << " width " << width << " at "
                << sx << "," << sy;
            ASSERT_TRUE(p[3] == 0 || p[3] == 255);
          }
        }
      }
    }
  }
}

// Drawn partly off the image, the result must be the matching crop of the whole drawing.
TEST(FillShape, ClipsToTheImageWithoutShiftingTheShape) {
  const Rect kPlacements[] = {{-3, -2, 12, 9}, {4, 3, 12, 9}, {-5, 2, 20, 4}, {1, -6, 5, 14}};
  for (int kind = 0; kind < 9; ++kind) {
    for (const Rect& rect : kPlacements) {
      for (int32_t stroke = 0; stroke <= 3; ++stroke) {
        Image whole = Image::blank(40, 40), part = Image::blank(8, 8);
        draw(whole, {rect.x + 10, rect.y + 10, rect.width, rect.height}, ShapeKind(kind), stroke);
        draw(part, rect, ShapeKind(kind), stroke);
        for (int32_t y = 0; y < 8; ++y)
          for (int32_t x = 0; x < 8; ++x)
            ASSERT_EQ(part.alphaAt(x, y), whole.alphaAt(x + 10, y + 10))
                << kind << " stroke " << stroke << " at " << x << ", " << y;
      }
    }
  }
}

TEST(FillShape, NothingForEmptyRectanglesImagesOrStrokeWidths) {
  const Rect kEmpty[] = {{1, 1, 0, 5}, {1, 1, 5, 0}, {1, 1, -4, 5}, {20, 20, 5, 5}, {-9, 0, 5, 5}};
  const Image untouched = Image::blank(8, 8);
  for (int kind = 0; kind < 9; ++kind) {
    for (const Rect& rect : kEmpty) {
      Image image = Image::blank(8, 8);
      fillShape(image, rect, ShapeKind(kind), kInk);
      strokeShape(image, rect, ShapeKind(kind), kInk, 1);
      fillShapeAlpha(image, rect, ShapeKind(kind), kInk, 200);
      strokeShape(image, {0, 0, 8, 8}, ShapeKind(kind), kInk, kind - 8);  // widths 0 to -8
      EXPECT_EQ(*image.pixels, *untouched.pixels) << kind;
    }
  }
  Image none;
  fillShape(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk);
  strokeShape(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk, 1);
  fillShapeAlpha(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk, 9);
  EXPECT_TRUE(none.empty());
}

}  // namespace
}  // namespace tessel
