#include "tessel/style/geometry.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

struct UniteCase {
  const char* what;
  Rect a, b, united;
};

TEST(UniteRects, EmptyRectanglesCountForNothing) {
  const UniteCase cases[] = {
      {"overlapping", {0, 0, 10, 10}, {5, 5, 10, 10}, {0, 0, 15, 15}},
      {"apart", {-4, 2, 2, 2}, {6, -3, 1, 1}, {-4, -3, 11, 7}},
      {"empty first, far away", {100, 100, 0, 5}, {1, 2, 3, 4}, {1, 2, 3, 4}},
      {"negative size second", {1, 2, 3, 4}, {-50, -50, 10, -1}, {1, 2, 3, 4}},
      {"both empty", {3, 3, 0, 0}, {9, 9, 0, 2}, {9, 9, 0, 2}},
  };
  for (const UniteCase& c : cases) {
    EXPECT_EQ(uniteRects(c.a, c.b), c.united) << c.what;
    EXPECT_EQ(uniteRects(c.b, c.a).empty(), c.united.empty()) << c.what;
  }
}

TEST(InflateRect, GrowsAndShrinksOnEverySide) {
  EXPECT_EQ(inflateRect(Rect{10, 20, 30, 40}, 5), (Rect{5, 15, 40, 50}));
  EXPECT_EQ(inflateRect(Rect{10, 20, 30, 40}, -15), (Rect{25, 35, 0, 10}));
}

}  // namespace
}  // namespace tessel
