#include "tessel/paint/shape_geometry.h"

#include <climits>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {

// Readable failures for rectangles and point lists.
static void PrintTo(const Rect& r, std::ostream* os) {
  *os << "{" << r.x << ", " << r.y << ", " << r.width << ", " << r.height << "}";
}
static void PrintTo(const Point& p, std::ostream* os) {
  *os << "(" << p.x << ", " << p.y << ")";
}

namespace {

const ShapeKind kAllKinds[] = {ShapeKind::Rectangle, ShapeKind::RoundedRect, ShapeKind::Capsule,
                               ShapeKind::Diamond,   ShapeKind::Bevel,       ShapeKind::Octagon,
                               ShapeKind::Hexagon,   ShapeKind::SlantRight,  ShapeKind::SlantLeft};

struct SizeCase {
  int32_t width;
  int32_t height;
  int32_t expected;
};

TEST(CornerDiameter, RadiusGrowsWithTheControlBetweenFourAndTwelve) {
  const SizeCase cases[] = {
      {10, 10, 8},  {100, 30, 14}, {200, 200, 24}, {1, 1, 1}, {47, 47, 22}, {48, 48, 24},
      {16, 100, 8}, {5, 20, 5},    {7, 300, 7},    {0, 0, 1}, {-5, 10, 1},
  };
  for (const SizeCase& c : cases)
    EXPECT_EQ(cornerDiameter(c.width, c.height), c.expected) << c.width << "x" << c.height;
}

TEST(PolygonCut, SmallerSideOverDivisorWithinOneAndHalfTheSide) {
  const struct {
    int32_t width, height, divisor, expected;
  } cases[] = {
      {3, 3, 5, 1}, {100, 100, 5, 20}, {100, 100, 3, 33}, {30, 12, 3, 4},
      {4, 4, 3, 1}, {8, 8, 3, 2},      {10, 10, 1, 5},    {1, 1, 5, 1},
      {0, 0, 5, 1}, {40, 24, 5, 4},    {100, 100, 0, 50},
  };
  for (const auto& c : cases)
    EXPECT_EQ(polygonCut(c.width, c.height, c.divisor), c.expected)
        << c.width << "x" << c.height << "/" << c.divisor;
}

TEST(HexagonCut, QuarterWidthOrHalfHeightWithinOneAndHalfTheWidth) {
  const SizeCase cases[] = {
      {100, 20, 10}, {3, 50, 1},  {40, 24, 10}, {24, 40, 6}, {1, 1, 1},
      {3, 3, 1},     {8, 100, 2}, {200, 6, 3},  {0, 0, 1},
  };
  for (const SizeCase& c : cases)
    EXPECT_EQ(hexagonCut(c.width, c.height), c.expected) << c.width << "x" << c.height;
}

TEST(ShapePolygon, CornersClockwiseFromTheTop) {
  const struct {
    const char* what;
    ShapeKind kind;
    Rect rect;
    std::vector<Point> points;
  } cases[] = {
      {"diamond", ShapeKind::Diamond, {10, 20, 40, 24}, {{30, 20}, {50, 32}, {30, 44}, {10, 32}}},
      {"bevel, cut 4",
       ShapeKind::Bevel,
       {0, 0, 40, 24},
       {{4, 0}, {36, 0}, {40, 4}, {40, 20}, {36, 24}, {4, 24}, {0, 20}, {0, 4}}},
      {"octagon, cut 10",
       ShapeKind::Octagon,
       {5, 5, 30, 30},
       {{15, 5}, {25, 5}, {35, 15}, {35, 25}, {25, 35}, {15, 35}, {5, 25}, {5, 15}}},
      {"hexagon, cut 10",
       ShapeKind::Hexagon,
       {0, 0, 100, 20},
       {{10, 0}, {90, 0}, {100, 10}, {90, 20}, {10, 20}, {0, 10}}},
      {"slant right", ShapeKind::SlantRight, {2, 3, 40, 24}, {{12, 3}, {42, 3}, {32, 27}, {2, 27}}},
      {"slant left", ShapeKind::SlantLeft, {2, 3, 40, 24}, {{2, 3}, {32, 3}, {42, 27}, {12, 27}}},
      {"rectangle is no polygon", ShapeKind::Rectangle, {0, 0, 10, 10}, {}},
      {"rounded rect is no polygon", ShapeKind::RoundedRect, {0, 0, 10, 10}, {}},
      {"capsule is no polygon", ShapeKind::Capsule, {0, 0, 10, 10}, {}},
      {"empty rect", ShapeKind::Diamond, {0, 0, 0, 10}, {}},
      {"negative size", ShapeKind::Hexagon, {0, 0, 10, -1}, {}},
  };
  for (const auto& c : cases)
    EXPECT_EQ(shapePolygon(c.kind, c.rect), c.points) << c.what;
}

struct PointCase {
  const char* what;
  ShapeKind kind;
  int32_t width;
  int32_t height;
  int32_t x;
  int32_t y;
  bool inside;
};

// Worked out by hand from the outline rules, at pixel centres (x + 0.5, y + 0.5) where they say so.
const PointCase kPointCases[] = {
    {"rectangle corner", ShapeKind::Rectangle, 5, 3, 0, 0, true},
    {"rectangle far corner", ShapeKind::Rectangle, 5, 3, 4, 2, true},
    // RoundedRect 10x10: diameter 8, radius 4, corner centres at 4 and 6.
    {"rounded corner pixel", ShapeKind::RoundedRect, 10, 10, 0, 0, false},
    {"rounded inside the arc", ShapeKind::RoundedRect, 10, 10, 1, 1, true},
    {"rounded arc, 14.5 <= 16", ShapeKind::RoundedRect, 10, 10, 0, 2, true},
    {"rounded arc, 18.5 > 16", ShapeKind::RoundedRect, 10, 10, 0, 1, false},
    {"rounded straight top edge", ShapeKind::RoundedRect, 10, 10, 4, 0, true},
    {"rounded straight left edge", ShapeKind::RoundedRect, 10, 10, 0, 5, true},
    {"rounded far corner", ShapeKind::RoundedRect, 10, 10, 9, 9, false},
    {"rounded far arc", ShapeKind::RoundedRect, 10, 10, 8, 8, true},
    {"rounded 1x1", ShapeKind::RoundedRect, 1, 1, 0, 0, true},
    // Capsule 40x10: radius 5, end centres (5, 5) and (35, 5), integer coordinates.
    {"wide capsule straight part", ShapeKind::Capsule, 40, 10, 5, 0, true},
    {"wide capsule straight end", ShapeKind::Capsule, 40, 10, 35, 9, true},
    {"wide capsule just off the cap", ShapeKind::Capsule, 40, 10, 4, 0, false},
    {"wide capsule cap tip", ShapeKind::Capsule, 40, 10, 0, 5, true},
    {"wide capsule beside the tip", ShapeKind::Capsule, 40, 10, 0, 4, false},
    {"wide capsule right cap", ShapeKind::Capsule, 40, 10, 38, 8, true},
    {"wide capsule right corner", ShapeKind::Capsule, 40, 10, 39, 9, false},
    {"tall capsule top tip", ShapeKind::Capsule, 10, 40, 5, 0, true},
    {"tall capsule beside the tip", ShapeKind::Capsule, 10, 40, 4, 0, false},
    {"tall capsule straight side", ShapeKind::Capsule, 10, 40, 0, 5, true},
    {"tall capsule off the cap", ShapeKind::Capsule, 10, 40, 0, 4, false},
    {"capsule 1x1", ShapeKind::Capsule, 1, 1, 0, 0, true},
    {"capsule 3x50 top corner", ShapeKind::Capsule, 3, 50, 0, 0, false},
    {"capsule 3x50 top middle", ShapeKind::Capsule, 3, 50, 1, 0, true},
    {"capsule 3x50 second row", ShapeKind::Capsule, 3, 50, 0, 1, true},
    // Diamond 5x5: centre (2, 2), half extents 2.
    {"diamond top tip", ShapeKind::Diamond, 5, 5, 2, 0, true},
    {"diamond left tip", ShapeKind::Diamond, 5, 5, 0, 2, true},
    {"diamond on the edge", ShapeKind::Diamond, 5, 5, 1, 1, true},
    {"diamond beyond the edge", ShapeKind::Diamond, 5, 5, 0, 1, false},
    {"diamond corner", ShapeKind::Diamond, 5, 5, 0, 0, false},
    {"diamond lower right edge", ShapeKind::Diamond, 5, 5, 3, 3, true},
    {"diamond beyond lower right", ShapeKind::Diamond, 5, 5, 4, 3, false},
    {"diamond 7x3 left tip", ShapeKind::Diamond, 7, 3, 0, 1, true},
    {"diamond 7x3 top tip", ShapeKind::Diamond, 7, 3, 3, 0, true},
    {"diamond 7x3 beside the top", ShapeKind::Diamond, 7, 3, 2, 0, false},
    {"diamond 4x4 centre", ShapeKind::Diamond, 4, 4, 1, 1, true},
    {"diamond 4x4 top row", ShapeKind::Diamond, 4, 4, 1, 0, false},
    {"diamond 2x2 is full", ShapeKind::Diamond, 2, 2, 0, 0, true},
    {"diamond 1x1", ShapeKind::Diamond, 1, 1, 0, 0, true},
    // Bevel 40x24: cut 4.
    {"bevel corner", ShapeKind::Bevel, 40, 24, 0, 0, false},
    {"bevel top cut", ShapeKind::Bevel, 40, 24, 3, 0, false},
    {"bevel top after the cut", ShapeKind::Bevel, 40, 24, 4, 0, true},
    {"bevel diagonal, x + y = c", ShapeKind::Bevel, 40, 24, 2, 2, true},
    {"bevel diagonal, x + y < c", ShapeKind::Bevel, 40, 24, 1, 2, false},
    {"bevel top right cut", ShapeKind::Bevel, 40, 24, 36, 0, false},
    {"bevel top right after", ShapeKind::Bevel, 40, 24, 35, 0, true},
    {"bevel bottom right diagonal", ShapeKind::Bevel, 40, 24, 37, 21, true},
    {"bevel bottom right cut", ShapeKind::Bevel, 40, 24, 38, 21, false},
    {"bevel 3x3 corner", ShapeKind::Bevel, 3, 3, 2, 2, false},
    {"bevel 3x3 edge", ShapeKind::Bevel, 3, 3, 1, 0, true},
    {"bevel 1x1 is all corner", ShapeKind::Bevel, 1, 1, 0, 0, false},
    // Octagon 30x30: cut 10.
    {"octagon left cut", ShapeKind::Octagon, 30, 30, 0, 9, false},
    {"octagon left side", ShapeKind::Octagon, 30, 30, 0, 10, true},
    {"octagon diagonal", ShapeKind::Octagon, 30, 30, 5, 5, true},
    {"octagon inside the cut", ShapeKind::Octagon, 30, 30, 4, 5, false},
    {"octagon bottom right diagonal", ShapeKind::Octagon, 30, 30, 24, 24, true},
    {"octagon bottom right cut", ShapeKind::Octagon, 30, 30, 25, 24, false},
    // Hexagon 100x20: cut 10, centre row 9.5.
    {"hexagon top before the cut", ShapeKind::Hexagon, 100, 20, 9, 0, false},
    {"hexagon top at the cut", ShapeKind::Hexagon, 100, 20, 10, 0, true},
    {"hexagon top right end", ShapeKind::Hexagon, 100, 20, 89, 0, true},
    {"hexagon top right cut", ShapeKind::Hexagon, 100, 20, 90, 0, false},
    {"hexagon bottom at the cut", ShapeKind::Hexagon, 100, 20, 10, 19, true},
    {"hexagon bottom before the cut", ShapeKind::Hexagon, 100, 20, 9, 19, false},
    {"hexagon middle row misses the tip", ShapeKind::Hexagon, 100, 20, 0, 9, false},
    {"hexagon middle row", ShapeKind::Hexagon, 100, 20, 1, 9, true},
    {"hexagon middle row right", ShapeKind::Hexagon, 100, 20, 98, 9, true},
    {"hexagon middle row right tip", ShapeKind::Hexagon, 100, 20, 99, 9, false},
    {"hexagon row 5, s 4.74", ShapeKind::Hexagon, 100, 20, 5, 5, true},
    {"hexagon row 5 outside", ShapeKind::Hexagon, 100, 20, 4, 5, false},
    {"hexagon 40x24 centre row tip", ShapeKind::Hexagon, 40, 24, 0, 11, true},
    {"hexagon 40x24 centre row right", ShapeKind::Hexagon, 40, 24, 39, 11, true},
    {"hexagon 1x1", ShapeKind::Hexagon, 1, 1, 0, 0, true},
    {"hexagon 3x50 top left", ShapeKind::Hexagon, 3, 50, 0, 0, false},
    {"hexagon 3x50 top middle", ShapeKind::Hexagon, 3, 50, 1, 0, true},
    {"hexagon 3x50 top right", ShapeKind::Hexagon, 3, 50, 2, 0, false},
    // Slants 40x24: cut 10, t = y / 23.
    {"slant right top before the cut", ShapeKind::SlantRight, 40, 24, 9, 0, false},
    {"slant right top at the cut", ShapeKind::SlantRight, 40, 24, 10, 0, true},
    {"slant right top right", ShapeKind::SlantRight, 40, 24, 39, 0, true},
    {"slant right bottom left", ShapeKind::SlantRight, 40, 24, 0, 23, true},
    {"slant right bottom end", ShapeKind::SlantRight, 40, 24, 29, 23, true},
    {"slant right bottom past the end", ShapeKind::SlantRight, 40, 24, 30, 23, false},
    {"slant right row 10 left out", ShapeKind::SlantRight, 40, 24, 5, 10, false},
    {"slant right row 10 left in", ShapeKind::SlantRight, 40, 24, 6, 10, true},
    {"slant right row 10 right in", ShapeKind::SlantRight, 40, 24, 35, 10, true},
    {"slant right row 10 right out", ShapeKind::SlantRight, 40, 24, 36, 10, false},
    {"slant left top left", ShapeKind::SlantLeft, 40, 24, 0, 0, true},
    {"slant left top end", ShapeKind::SlantLeft, 40, 24, 29, 0, true},
    {"slant left top past the end", ShapeKind::SlantLeft, 40, 24, 30, 0, false},
    {"slant left bottom before the cut", ShapeKind::SlantLeft, 40, 24, 9, 23, false},
    {"slant left bottom at the cut", ShapeKind::SlantLeft, 40, 24, 10, 23, true},
    {"slant left bottom right", ShapeKind::SlantLeft, 40, 24, 39, 23, true},
    {"slant left row 10 left out", ShapeKind::SlantLeft, 40, 24, 3, 10, false},
    {"slant left row 10 left in", ShapeKind::SlantLeft, 40, 24, 4, 10, true},
    {"slant left row 10 right in", ShapeKind::SlantLeft, 40, 24, 33, 10, true},
    {"slant left row 10 right out", ShapeKind::SlantLeft, 40, 24, 34, 10, false},
    {"slant right single row skips x 0", ShapeKind::SlantRight, 20, 1, 0, 0, false},
    {"slant right single row", ShapeKind::SlantRight, 20, 1, 1, 0, true},
    {"slant right single row end", ShapeKind::SlantRight, 20, 1, 19, 0, true},
    {"slant left single row", ShapeKind::SlantLeft, 20, 1, 0, 0, true},
    {"slant left single row end", ShapeKind::SlantLeft, 20, 1, 19, 0, false},
};

TEST(IsInsideShape, HandComputedPoints) {
  for (const PointCase& c : kPointCases)
    EXPECT_EQ(isInsideShape(c.kind, c.width, c.height, c.x, c.y), c.inside)
        << c.what << " (" << c.x << ", " << c.y << ") of " << c.width << "x" << c.height;
}

TEST(IsInsideShape, FortyByFortyCapsuleIsACircleOfRadiusTwenty) {
  int inside = 0;
  for (int32_t y = 0; y < 40; ++y) {
    for (int32_t x = 0; x < 40; ++x) {
      const bool circle = (x - 20) * (x - 20) + (y - 20) * (y - 20) <= 20 * 20;
      EXPECT_EQ(isInsideShape(ShapeKind::Capsule, 40, 40, x, y), circle) << x << ", " << y;
      inside += circle;
    }
  }
  EXPECT_GT(inside, 1200);  // most of the square, so the loop above compared real pixels
}

TEST(IsInsideShape, PointsOutsideTheSizeAndEmptySizesAreNeverInside) {
  const struct {
    int32_t width, height, x, y;
  } cases[] = {
      {10, 6, -1, 0}, {10, 6, 0, -1}, {10, 6, 10, 0}, {10, 6, 0, 6}, {10, 6, 10, 6},
      {10, 6, 5, 99}, {0, 6, 0, 0},   {10, 0, 0, 0},  {-3, 5, 0, 0}, {1, 1, INT_MIN, 0},
  };
  for (ShapeKind kind : kAllKinds) {
    for (const auto& c : cases)
      EXPECT_FALSE(isInsideShape(kind, c.width, c.height, c.x, c.y))
          << int(kind) << ": (" << c.x << ", " << c.y << ") of " << c.width << "x" << c.height;
  }
}

TEST(IsInsideShape, SymmetricShapesMirrorAndTheSlantsMirrorEachOther) {
  const struct {
    int32_t width, height;
  } sizes[] = {{40, 24}, {24, 40}, {3, 50}, {7, 7}, {100, 20}, {13, 9}};
  const ShapeKind kMirrored[] = {ShapeKind::RoundedRect, ShapeKind::Diamond, ShapeKind::Bevel,
                                 ShapeKind::Octagon, ShapeKind::Hexagon};
  for (const auto& s : sizes) {
    for (int32_t y = 0; y < s.height; ++y) {
      for (int32_t x = 0; x < s.width; ++x) {
        const int32_t mx = s.width - 1 - x;
        const int32_t my = s.height - 1 - y;
        for (ShapeKind kind : kMirrored) {
          const bool inside = isInsideShape(kind, s.width, s.height, x, y);
          EXPECT_EQ(isInsideShape(kind, s.width, s.height, mx, y), inside)
              << int(kind) << " " << s.width << "x" << s.height << " at " << x << ", " << y;
          EXPECT_EQ(isInsideShape(kind, s.width, s.height, x, my), inside)
              << int(kind) << " " << s.width << "x" << s.height << " at " << x << ", " << y;
        }
        EXPECT_EQ(isInsideShape(ShapeKind::SlantRight, s.width, s.height, x, y),
                  isInsideShape(ShapeKind::SlantLeft, s.width, s.height, mx, y))
            << s.width << "x" << s.height << " at " << x << ", " << y;
      }
    }
  }
}

// Fills and strokes work row by row on the span; it must hold exactly the pixels the inside
// test accepts, for every outline at every size up to 48 by 48.
TEST(ShapeRowSpan, HoldsExactlyTheInsidePixelsOfEachRow) {
  for (int32_t kind = 0; kind <= 8; ++kind) {
    const ShapeKind shape = static_cast<ShapeKind>(kind);
    for (int32_t width = 1; width <= 48; ++width) {
      for (int32_t height = 1; height <= 48; ++height) {
        for (int32_t y = -1; y <= height; ++y) {
          int32_t first = -7, last = -7;
          const bool any = shapeRowSpan(shape, width, height, y, first, last);
          for (int32_t x = -1; x <= width; ++x) {
            const bool want = isInsideShape(shape, width, height, x, y);
            ASSERT_EQ(any && x >= first && x <= last, want)
                << kind << " " << width << "x" << height << " at " << x << "," << y;
          }
        }
      }
    }
  }
}

TEST(StrokePenRect, PenStaysInsideAndNeverCollapses) {
  const struct {
    Rect rect;
    int32_t width;
    Rect pen;
  } cases[] = {
      {{0, 0, 40, 24}, 2, {1, 1, 38, 22}}, {{0, 0, 40, 24}, 1, {0, 0, 39, 23}},
      {{0, 0, 40, 24}, 3, {1, 1, 37, 21}}, {{5, 7, 40, 24}, 0, {5, 7, 39, 23}},
      {{0, 0, 1, 1}, 2, {1, 1, 1, 1}},     {{10, 10, 3, 50}, 4, {12, 12, 1, 46}},
  };
  for (const auto& c : cases)
    EXPECT_EQ(strokePenRect(c.rect, c.width), c.pen) << c.width;
}

TEST(ApplyInsets, ClampsEachSideSoNothingGoesNegative) {
  const struct {
    const char* what;
    Rect rect;
    Insets insets;
    Rect expected;
  } cases[] = {
      {"plain", {10, 20, 100, 50}, {5, 6, 7, 8}, {15, 26, 88, 36}},
      {"none", {10, 20, 100, 50}, {0, 0, 0, 0}, {10, 20, 100, 50}},
      {"left larger than the width", {0, 0, 10, 10}, {20, 0, 0, 0}, {10, 0, 0, 10}},
      {"right takes what left leaves", {0, 0, 10, 10}, {4, 4, 8, 8}, {4, 4, 0, 0}},
      {"all sides huge", {3, 4, 10, 10}, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}, {13, 14, 0, 0}},
      {"negative insets do not grow", {0, 0, 10, 10}, {-5, -5, -5, -5}, {0, 0, 10, 10}},
      {"negative size", {5, 5, -3, -3}, {1, 1, 1, 1}, {5, 5, 0, 0}},
      {"bottom only", {0, 0, 10, 10}, {0, 0, 0, 12}, {0, 0, 10, 0}},
  };
  for (const auto& c : cases) {
    const Rect result = applyInsets(c.rect, c.insets);
    EXPECT_EQ(result, c.expected) << c.what;
    EXPECT_GE(result.width, 0) << c.what;
    EXPECT_GE(result.height, 0) << c.what;
  }
}

TEST(IntersectRects, CommonPartOrEmptyAtTheOrigin) {
  const struct {
    const char* what;
    Rect a;
    Rect b;
    Rect expected;
  } cases[] = {
      {"overlap", {0, 0, 10, 10}, {5, 5, 10, 10}, {5, 5, 5, 5}},
      {"contained", {0, 0, 10, 10}, {2, 3, 4, 5}, {2, 3, 4, 5}},
      {"negative origin", {-5, -5, 10, 10}, {0, 0, 10, 10}, {0, 0, 5, 5}},
      {"touching edges", {0, 0, 10, 10}, {10, 0, 5, 5}, {0, 0, 0, 0}},
      {"apart", {30, 30, 10, 10}, {50, 50, 5, 5}, {0, 0, 0, 0}},
      {"one empty", {2, 2, 0, 10}, {0, 0, 10, 10}, {0, 0, 0, 0}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(intersectRects(c.a, c.b), c.expected) << c.what;
    EXPECT_EQ(intersectRects(c.b, c.a), c.expected) << c.what << ", swapped";
  }
}

}  // namespace
}  // namespace tessel
