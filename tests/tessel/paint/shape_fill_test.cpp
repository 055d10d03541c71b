#include "tessel/paint/shape_fill.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tessel/paint/shape_geometry.h"

namespace tessel {
namespace {

const ShapeKind kAllKinds[] = {ShapeKind::Rectangle, ShapeKind::RoundedRect, ShapeKind::Capsule,
                               ShapeKind::Diamond,   ShapeKind::Bevel,       ShapeKind::Octagon,
                               ShapeKind::Hexagon,   ShapeKind::SlantRight,  ShapeKind::SlantLeft};

const Color kInk = rgbColor(0x11, 0x22, 0x33);

// One text row per image row: '#' for an opaque kInk pixel, '.' for a transparent one.
std::vector<std::string> picture(const Image& image) {
  std::vector<std::string> rows;
  for (int32_t y = 0; y < image.height; ++y) {
    std::string row;
    for (int32_t x = 0; x < image.width; ++x) {
      const uint8_t* p = image.pixel(x, y);
      if (p[0] == 0x33 && p[1] == 0x22 && p[2] == 0x11 && p[3] == 255)
        row += '#';
      else if (p[0] == 0 && p[1] == 0 && p[2] == 0 && p[3] == 0)
        row += '.';
      else
        row += '?';
    }
    rows.push_back(row);
  }
  return rows;
}

bool samePixels(const Image& a, const Image& b) {
  return a.width == b.width && a.height == b.height && *a.pixels == *b.pixels;
}

TEST(FillShape, WritesOpaqueBgraInsideTheShapeOnly) {
  Image image = Image::blank(3, 3);
  fillShape(image, {1, 1, 1, 1}, ShapeKind::Rectangle, kInk);
  const uint8_t* p = image.pixel(1, 1);
  EXPECT_EQ(p[0], 0x33);  // blue first
  EXPECT_EQ(p[1], 0x22);
  EXPECT_EQ(p[2], 0x11);
  EXPECT_EQ(p[3], 255);
  EXPECT_EQ(picture(image), (std::vector<std::string>{"...", ".#.", "..."}));
}

struct PictureCase {
  const char* what;
  ShapeKind kind;
  Rect rect;
  int32_t strokeWidth;  // 0 fills
  std::vector<std::string> rows;
};

const PictureCase kPictureCases[] = {
    {"diamond fill",
     ShapeKind::Diamond,
     {1, 1, 5, 5},
     0,
     {".......", "...#...", "..###..", ".#####.", "..###..", "...#...", "......."}},
    {"diamond ring",
     ShapeKind::Diamond,
     {1, 1, 5, 5},
     1,
     {".......", "...#...", "..#.#..", ".#...#.", "..#.#..", "...#...", "......."}},
    {"rectangle ring of 1",
     ShapeKind::Rectangle,
     {1, 1, 6, 4},
     1,
     {"........", ".######.", ".#....#.", ".#....#.", ".######.", "........"}},
    {"rectangle ring of 2",
     ShapeKind::Rectangle,
     {0, 0, 6, 6},
     2,
     {"######", "######", "##..##", "##..##", "######", "######"}},
    {"ring as wide as half the side fills",
     ShapeKind::Rectangle,
     {0, 0, 4, 3},
     2,
     {"####", "####", "####"}},
    {"bevel fill, cut 1", ShapeKind::Bevel, {0, 0, 5, 3}, 0, {".###.", "#####", ".###."}},
    {"hexagon fill, cut 2",
     ShapeKind::Hexagon,
     {0, 0, 8, 5},
     0,
     {"..####..", ".######.", "########", ".######.", "..####.."}},
    {"slant right fill, cut 2",
     ShapeKind::SlantRight,
     {0, 0, 8, 5},
     0,
     {"..######", ".#######", ".######.", "#######.", "######.."}},
    {"1x1 ring", ShapeKind::Capsule, {1, 1, 1, 1}, 2, {"...", ".#.", "..."}},
};

TEST(FillShape, SmallShapesPixelByPixel) {
  for (const PictureCase& c : kPictureCases) {
    Image image = Image::blank(int32_t(c.rows[0].size()), int32_t(c.rows.size()));
    if (c.strokeWidth == 0)
      fillShape(image, c.rect, c.kind, kInk);
    else
      strokeShape(image, c.rect, c.kind, kInk, c.strokeWidth);
    EXPECT_EQ(picture(image), c.rows) << c.what;
  }
}

TEST(FillShape, ClipsToTheImageWithoutShiftingTheShape) {
  // Drawn partly off the image, the result must be the matching crop of the whole drawing.
  const Rect kPlacements[] = {{-3, -2, 12, 9}, {4, 3, 12, 9}, {-5, 2, 20, 4}, {1, -6, 5, 14}};
  for (ShapeKind kind : kAllKinds) {
    for (const Rect& rect : kPlacements) {
      for (int32_t stroke = 0; stroke <= 3; ++stroke) {
        Image whole = Image::blank(40, 40);
        const Rect shifted{rect.x + 10, rect.y + 10, rect.width, rect.height};
        Image part = Image::blank(8, 8);
        if (stroke == 0) {
          fillShape(whole, shifted, kind, kInk);
          fillShape(part, rect, kind, kInk);
        } else {
          strokeShape(whole, shifted, kind, kInk, stroke);
          strokeShape(part, rect, kind, kInk, stroke);
        }
        const std::vector<std::string> partRows = picture(part);
        const std::vector<std::string> wholeRows = picture(whole);
        for (int32_t y = 0; y < 8; ++y) {
          for (int32_t x = 0; x < 8; ++x)
            ASSERT_EQ(partRows[y][x], wholeRows[y + 10][x + 10])
                << int(kind) << " stroke " << stroke << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST(FillShape, PixelsFollowTheInsideTest) {
  for (ShapeKind kind : kAllKinds) {
    Image image = Image::blank(44, 28);
    fillShape(image, {2, 2, 40, 24}, kind, kInk);
    const std::vector<std::string> rows = picture(image);
    for (int32_t y = 0; y < 28; ++y) {
      for (int32_t x = 0; x < 44; ++x)
        ASSERT_EQ(rows[y][x] == '#', isInsideShape(kind, 40, 24, x - 2, y - 2))
            << int(kind) << " at " << x << ", " << y;
    }
  }
}

TEST(FillShape, NothingForEmptyRectanglesOrImages) {
  const Rect kEmpty[] = {{1, 1, 0, 5}, {1, 1, 5, 0}, {1, 1, -4, 5}, {20, 20, 5, 5}, {-9, 0, 5, 5}};
  for (ShapeKind kind : kAllKinds) {
    for (const Rect& rect : kEmpty) {
      Image image = Image::blank(8, 8);
      const Image untouched = Image::blank(8, 8);
      fillShape(image, rect, kind, kInk);
      strokeShape(image, rect, kind, kInk, 1);
      fillShapeAlpha(image, rect, kind, kInk, 200);
      EXPECT_TRUE(samePixels(image, untouched)) << int(kind);
    }
  }
  Image none;
  fillShape(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk);
  strokeShape(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk, 1);
  fillShapeAlpha(none, {0, 0, 4, 4}, ShapeKind::Rectangle, kInk, 9);
  EXPECT_TRUE(none.empty());
}

TEST(StrokeShape, WidthBelowOneDrawsNothing) {
  for (int32_t width : {0, -1, -100}) {
    Image image = Image::blank(6, 6);
    strokeShape(image, {0, 0, 6, 6}, ShapeKind::Rectangle, kInk, width);
    EXPECT_TRUE(samePixels(image, Image::blank(6, 6))) << width;
  }
}

TEST(StrokeShape, RingStaysInsideTheFillAndAWideRingIsTheFill) {
  for (ShapeKind kind : kAllKinds) {
    Image filled = Image::blank(40, 24);
    fillShape(filled, {0, 0, 40, 24}, kind, kInk);
    const std::vector<std::string> fillRows = picture(filled);
    for (int32_t width : {1, 2, 5}) {
      Image ring = Image::blank(40, 24);
      strokeShape(ring, {0, 0, 40, 24}, kind, kInk, width);
      const std::vector<std::string> ringRows = picture(ring);
      int stroked = 0;
      for (int32_t y = 0; y < 24; ++y) {
        for (int32_t x = 0; x < 40; ++x) {
          const bool on = ringRows[y][x] == '#';
          stroked += on;
          if (on) {
            EXPECT_EQ(fillRows[y][x], '#') << int(kind) << " at " << x << ", " << y;
          }
        }
      }
      // The middle of every shape stays open.
      EXPECT_EQ(ringRows[12][20], '.') << int(kind) << " width " << width;
      EXPECT_GT(stroked, 0) << int(kind);
    }
    Image wide = Image::blank(40, 24);
    strokeShape(wide, {0, 0, 40, 24}, kind, kInk, 12);
    EXPECT_TRUE(samePixels(wide, filled)) << int(kind);
  }
}

// Counts the 8-connected groups of '#' pixels.
int inkGroups(std::vector<std::string> rows) {
  int groups = 0;
  for (size_t y = 0; y < rows.size(); ++y) {
    for (size_t x = 0; x < rows[y].size(); ++x) {
      if (rows[y][x] != '#') continue;
      ++groups;
      std::vector<std::pair<int, int>> pending{{int(x), int(y)}};
      rows[y][x] = '+';
      while (!pending.empty()) {
        const auto [px, py] = pending.back();
        pending.pop_back();
        for (int dy = -1; dy <= 1; ++dy) {
          for (int dx = -1; dx <= 1; ++dx) {
            const int nx = px + dx;
            const int ny = py + dy;
            if (ny < 0 || ny >= int(rows.size()) || nx < 0 || nx >= int(rows[ny].size())) continue;
            if (rows[ny][nx] != '#') continue;
            rows[ny][nx] = '+';
            pending.push_back({nx, ny});
          }
        }
      }
    }
  }
  return groups;
}

TEST(StrokeShape, ThinRingsStayClosedOnSlantedEdges) {
  const Size kSizes[] = {{40, 24}, {24, 40}, {100, 20}, {13, 9}, {64, 7}};
  for (ShapeKind kind : kAllKinds) {
    for (const Size& size : kSizes) {
      Image ring = Image::blank(size.width, size.height);
      strokeShape(ring, {0, 0, size.width, size.height}, kind, kInk, 1);
      EXPECT_EQ(inkGroups(picture(ring)), 1)
          << int(kind) << " " << size.width << "x" << size.height;
    }
  }
}

// The stroke's rule written out plainly: a pixel inside the shape whose distance to some pixel
// outside it (the frame around the rectangle counts as outside) is at most the width. The
// rectangle lies partly off the image, so clipping is covered too.
TEST(StrokeShape, EqualsTheDistanceRuleEverywhere) {
  const Size kSizes[] = {{1, 1}, {2, 7}, {9, 5}, {17, 12}, {31, 23}, {12, 40}, {60, 14}};
  for (ShapeKind kind : kAllKinds) {
    for (const Size& size : kSizes) {
      for (int32_t width : {1, 2, 3, 6}) {
        const Rect rect{-3, 2, size.width, size.height};
        Image ring = Image::blank(size.width, size.height + 1);
        strokeShape(ring, rect, kind, kInk, width);
        const auto inside = [&](int32_t x, int32_t y) {
          return isInsideShape(kind, size.width, size.height, x, y);
        };
        for (int32_t y = 0; y < ring.height; ++y) {
          for (int32_t x = 0; x < ring.width; ++x) {
            const int32_t sx = x - rect.x, sy = y - rect.y;
            bool expected = false;
            if (inside(sx, sy)) {
              for (int32_t oy = -1; oy <= size.height && !expected; ++oy)
                for (int32_t ox = -1; ox <= size.width && !expected; ++ox)
                  expected = !inside(ox, oy) &&
                             (ox - sx) * (ox - sx) + (oy - sy) * (oy - sy) <= width * width;
            }
            ASSERT_EQ(ring.alphaAt(x, y) == 255, expected)
                << int(kind) << " " << size.width << "x" << size.height << " width " << width
                << " at " << sx << "," << sy;
          }
        }
      }
    }
  }
}

TEST(FillShapeAlpha, PremultipliedLayerBlendedOver) {
  const Color color = rgbColor(200, 100, 50);
  const struct {
    const char* what;
    uint8_t under[4];  // B, G, R, A before
    uint8_t alpha;
    uint8_t expected[4];
  } cases[] = {
      {"on transparent: trunc(c * a / 255)", {0, 0, 0, 0}, 128, {25, 50, 100, 128}},
      {"on opaque white", {255, 255, 255, 255}, 128, {152, 177, 227, 255}},
      {"full alpha replaces", {255, 255, 255, 255}, 255, {50, 100, 200, 255}},
      {"alpha 0 leaves the pixel", {7, 8, 9, 10}, 0, {7, 8, 9, 10}},
      {"faint on transparent", {0, 0, 0, 0}, 1, {0, 0, 0, 1}},
  };
  for (const auto& c : cases) {
    Image image = Image::blank(2, 1);
    for (int32_t x = 0; x < 2; ++x)
      for (int channel = 0; channel < 4; ++channel)
        image.pixel(x, 0)[channel] = c.under[channel];
    fillShapeAlpha(image, {0, 0, 1, 1}, ShapeKind::Rectangle, color, c.alpha);
    for (int channel = 0; channel < 4; ++channel) {
      EXPECT_EQ(image.pixel(0, 0)[channel], c.expected[channel]) << c.what << " " << channel;
      EXPECT_EQ(image.pixel(1, 0)[channel], c.under[channel]) << c.what << " outside";
    }
  }
}

TEST(FillShapeAlpha, LimitedByTheInsideTest) {
  Image image = Image::blank(5, 5);
  fillShapeAlpha(image, {0, 0, 5, 5}, ShapeKind::Diamond, rgbColor(255, 255, 255), 51);
  for (int32_t y = 0; y < 5; ++y) {
    for (int32_t x = 0; x < 5; ++x) {
      const uint8_t expected = isInsideShape(ShapeKind::Diamond, 5, 5, x, y) ? 51 : 0;
      EXPECT_EQ(image.pixel(x, y)[3], expected) << x << ", " << y;
      EXPECT_EQ(image.pixel(x, y)[0], expected) << x << ", " << y;
    }
  }
}

}  // namespace
}  // namespace tessel
