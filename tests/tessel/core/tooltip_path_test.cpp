#include "tessel/core/tooltip_path.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

const Rect kTip{100, 100, 80, 40};  // grown by 10: (90, 90) to (189, 149)

TEST(TooltipPath, DistanceAndTheSafeTriangleThatFacesTheTooltip) {
  EXPECT_EQ(distanceToRect(kTip, Point{96, 97}), 5.0);
  EXPECT_EQ(distanceToRect(kTip, Point{183, 120}), 4.0);  // the right edge is x 179
  struct Case {
    Point from, point;
    bool inside;
  };
  const Case cases[] = {{{40, 120}, {80, 100}, true},   {{40, 120}, {80, 70}, false},
                        {{40, 120}, {30, 120}, false},  {{140, 220}, {60, 210}, false},
                        {{140, 20}, {95, 88}, true},    {{240, 120}, {191, 92}, true},
                        {{100, 120}, {100, 120}, false}};
  for (const Case& c : cases)
    EXPECT_EQ(insideSafeTriangle(kTip, c.from, c.point), c.inside) << c.from.x << "," << c.from.y;
}

TEST(TooltipPath, OnItsWayItStaysAndInsideItPins) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(path, Point{97, 119}, 1900, 350));  // within 5 pixels
  EXPECT_FALSE(path.pinned);
  EXPECT_TRUE(followTooltipPath(path, Point{110, 120}, 2000, 350));
  EXPECT_TRUE(path.pinned);
  // Pinned: outside for less than the grace time it stays, then it closes.
  EXPECT_TRUE(followTooltipPath(path, Point{300, 300}, 2100, 350));
  EXPECT_FALSE(followTooltipPath(path, Point{300, 300}, 2450, 350));

  path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_FALSE(followTooltipPath(path, Point{20, 125}, 1010, 350));  // moving away
  path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(path, Point{60, 120}, 1100, 350));  // in the triangle
  // The timer's checks from the same spot: no longer safe, not on the grown rectangle.
  EXPECT_FALSE(followTooltipPath(path, Point{60, 120}, 1225, 350, false));
}

}  // namespace
}  // namespace tessel
