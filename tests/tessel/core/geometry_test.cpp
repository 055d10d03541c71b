#include "tessel/style/geometry.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(Geometry, EmptyRectanglesCountForNothingInAUnion) {
  const Rect cases[][3] = {{{-4, 2, 2, 2}, {6, -3, 1, 1}, {-4, -3, 11, 7}},
                           {{100, 100, 0, 5}, {1, 2, 3, 4}, {1, 2, 3, 4}},
                           {{1, 2, 3, 4}, {-50, -50, 10, -1}, {1, 2, 3, 4}},
                           {{3, 3, 0, 0}, {9, 9, 0, 2}, {9, 9, 0, 2}}};
  for (const auto& test : cases) {
    EXPECT_EQ(uniteRects(test[0], test[1]), test[2]);
    EXPECT_EQ(uniteRects(test[1], test[0]).empty(), test[2].empty());
  }
  EXPECT_EQ(inflateRect(Rect{10, 20, 30, 40}, -15), (Rect{25, 35, 0, 10}));
}

}  // namespace
}  // namespace tessel
