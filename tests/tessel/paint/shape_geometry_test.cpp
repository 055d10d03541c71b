#include "tessel/paint/shape_geometry.h"

#include <climits>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(ShapeGeometry, ArcsAndCutsKeepTheirBounds) {
  // A radius of a quarter of the smaller side kept to 4..12, no wider than that side, at least 1.
  const struct {
    int32_t width, height, expected;
  } kDiameters[] = {{10, 10, 8}, {100, 30, 14}, {200, 200, 24}, {5, 20, 5}, {-5, 10, 1}};
  for (const auto& c : kDiameters)
    EXPECT_EQ(cornerDiameter(c.width, c.height), c.expected) << c.width << "x" << c.height;
  // The smaller side over the divisor within 1 and half that side (1 below a side of 4).
  const struct {
    int32_t width, height, divisor, expected;
  } kCuts[] = {{100, 100, 3, 33}, {30, 12, 3, 4}, {3, 3, 1, 1}, {4, 4, 1, 2}, {100, 100, 0, 50}};
  for (const auto& c : kCuts)
    EXPECT_EQ(polygonCut(c.width, c.height, c.divisor), c.expected)
        << c.width << "x" << c.height << "/" << c.divisor;
  // min(width / 4, height / 2) within 1 and width / 2 (1 when that is below 2).
  const struct {
    int32_t width, height, expected;
  } kHexagonCuts[] = {{100, 20, 10}, {24, 40, 6}, {200, 6, 3}, {3, 3, 1}};
  for (const auto& c : kHexagonCuts)
    EXPECT_EQ(hexagonCut(c.width, c.height), c.expected) << c.width << "x" << c.height;
}

// Worked out by hand from the outline rules at sizes the golden images don't have
// (shape_golden_test.cpp has 1x1, 3x50, 40x24, 24x40): pixel centres where the rule says so.
TEST(IsInsideShape, HandComputedPoints) {
  const struct {
    const char* what;
    ShapeKind kind;
    int32_t width, height, x, y;
    bool inside;
  } kCases[] = {
      // RoundedRect 10x10: radius 4, corner centres at 4 and 6.
      {"rounded arc, 14.5 <= 16", ShapeKind::RoundedRect, 10, 10, 0, 2, true},
      {"rounded arc, 18.5 > 16", ShapeKind::RoundedRect, 10, 10, 0, 1, false},
      // Capsule 40x10: radius 5, end centres (5, 5) and (35, 5), integer coordinates.
      {"wide capsule just off the cap", ShapeKind::Capsule, 40, 10, 4, 0, false},
      {"wide capsule cap tip", ShapeKind::Capsule, 40, 10, 0, 5, true},
      {"tall capsule straight side", ShapeKind::Capsule, 10, 40, 0, 5, true},
      {"tall capsule off the cap", ShapeKind::Capsule, 10, 40, 0, 4, false},
      {"diamond 2x2 is full", ShapeKind::Diamond, 2, 2, 0, 0, true},
      {"bevel 3x3 corner", ShapeKind::Bevel, 3, 3, 2, 2, false},
      {"hexagon middle row misses the tip", ShapeKind::Hexagon, 100, 20, 0, 9, false},
      {"slant right single row skips x 0", ShapeKind::SlantRight, 20, 1, 0, 0, false},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(isInsideShape(c.kind, c.width, c.height, c.x, c.y), c.inside) << c.what;
  // A square capsule is a circle.
  for (int32_t y = 0; y < 40; ++y)
    for (int32_t x = 0; x < 40; ++x)
      ASSERT_EQ(isInsideShape(ShapeKind::Capsule, 40, 40, x, y),
                (x - 20) * (x - 20) + (y - 20) * (y - 20) <= 400)
          << x << ", " << y;
}

TEST(IsInsideShape, NeverOutsideTheSizeAndSymmetricShapesMirror) {
  const struct {
    int32_t width, height, x, y;
  } kOutside[] = {{10, 6, -1, 0}, {10, 6, 0, -1}, {10, 6, 10, 0}, {10, 6, 0, 6},
                  {0, 6, 0, 0},   {10, 0, 0, 0},  {-3, 5, 0, 0},  {1, 1, INT_MIN, 0}};
  for (int kind = 0; kind < 9; ++kind)
    for (const auto& c : kOutside)
      EXPECT_FALSE(isInsideShape(ShapeKind(kind), c.width, c.height, c.x, c.y))
          << kind << ": (" << c.x << ", " << c.y << ") of " << c.width << "x" << c.height;
  // These mirror both ways (a capsule's middle is an integer), the slants each other.
  const ShapeKind kMirrored[] = {ShapeKind::RoundedRect, ShapeKind::Diamond, ShapeKind::Bevel,
                                 ShapeKind::Octagon, ShapeKind::Hexagon};
  for (const Size& s : {Size{40, 24}, Size{24, 40}, Size{7, 7}, Size{100, 20}, Size{13, 9}}) {
    for (int32_t y = 0; y < s.height; ++y) {
      for (int32_t x = 0; x < s.width; ++x) {
        const int32_t mx = s.width - 1 - x, my = s.height - 1 - y;
        for (ShapeKind kind : kMirrored) {
          const bool inside = isInsideShape(kind, s.width, s.height, x, y);
          ASSERT_EQ(isInsideShape(kind, s.width, s.height, mx, y), inside) << int(kind);
          ASSERT_EQ(isInsideShape(kind, s.width, s.height, x, my), inside) << int(kind);
        }
        ASSERT_EQ(isInsideShape(ShapeKind::SlantRight, s.width, s.height, x, y),
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
    for (int32_t width = 1; width <= 48; ++width) {
      for (int32_t height = 1; height <= 48; ++height) {
        for (int32_t y = -1; y <= height; ++y) {
          int32_t first = -7, last = -7;
          const bool any = shapeRowSpan(ShapeKind(kind), width, height, y, first, last);
          for (int32_t x = -1; x <= width; ++x)
            ASSERT_EQ(any && x >= first && x <= last,
                      isInsideShape(ShapeKind(kind), width, height, x, y))
                << kind << " " << width << "x" << height << " at " << x << "," << y;
        }
      }
    }
  }
}

TEST(ShapeGeometry, InsetsAndIntersections) {
  // Insets are clamped side by side so that nothing grows and no size goes negative.
  const struct {
    Rect rect;
    Insets insets;
    Rect expected;
  } kInsets[] = {
      {{10, 20, 100, 50}, {5, 6, 7, 8}, {15, 26, 88, 36}},
      {{3, 4, 10, 10}, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}, {13, 14, 0, 0}},
      {{0, 0, 10, 10}, {-5, -5, -5, -5}, {0, 0, 10, 10}},
      {{5, 5, -3, -3}, {1, 1, 1, 1}, {5, 5, 0, 0}},
  };
  for (const auto& c : kInsets)
    EXPECT_EQ(applyInsets(c.rect, c.insets), c.expected);
  // The common part, or empty at the origin.
  const struct {
    Rect a, b, expected;
  } kIntersections[] = {
      {{0, 0, 10, 10}, {5, 5, 10, 10}, {5, 5, 5, 5}},
      {{0, 0, 10, 10}, {10, 0, 5, 5}, {}},
      {{2, 2, 0, 10}, {0, 0, 10, 10}, {}},
  };
  for (const auto& c : kIntersections) {
    EXPECT_EQ(intersectRects(c.a, c.b), c.expected);
    EXPECT_EQ(intersectRects(c.b, c.a), c.expected);
  }
}

}  // namespace
}  // namespace tessel
