#include "tessel/core/tooltip_path.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

const Rect kTip{100, 100, 80, 40};  // grown by 10: (90, 90) to (189, 149)

TEST(TooltipPath, DistanceToTheRectangle) {
  EXPECT_EQ(distanceToRect(kTip, Point{120, 120}), 0.0);
  EXPECT_EQ(distanceToRect(kTip, Point{97, 120}), 3.0);
  EXPECT_EQ(distanceToRect(kTip, Point{96, 97}), 5.0);
  EXPECT_EQ(distanceToRect(kTip, Point{183, 120}), 4.0);  // right edge is x 179
}

struct TriangleCase {
  const char* what;
  Point from, point;
  bool inside;
};

TEST(TooltipPath, TheSafeTriangleFacesTheTooltip) {
  const TriangleCase cases[] = {
      {"straight on from the left", {40, 120}, {70, 120}, true},
      {"towards the top corner", {40, 120}, {80, 100}, true},
      {"above the triangle", {40, 120}, {80, 70}, false},
      {"behind the start", {40, 120}, {30, 120}, false},
      {"from below, upwards", {140, 220}, {140, 180}, true},
      {"from below, sideways", {140, 220}, {60, 210}, false},
  };
  for (const TriangleCase& c : cases)
    EXPECT_EQ(insideSafeTriangle(kTip, c.from, c.point), c.inside) << c.what;
}

TEST(TooltipPath, OnItsWayItStaysAndInsideItPins) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(path, Point{60, 118}, 1100, 350));
  EXPECT_TRUE(followTooltipPath(path, Point{97, 119}, 1900, 350));  // within 5 pixels
  EXPECT_FALSE(path.pinned);
  EXPECT_TRUE(followTooltipPath(path, Point{110, 120}, 2000, 350));
  EXPECT_TRUE(path.pinned);
  // Pinned: outside for less than the grace time it stays, then it closes.
  EXPECT_TRUE(followTooltipPath(path, Point{300, 300}, 2100, 350));
  EXPECT_TRUE(followTooltipPath(path, Point{300, 300}, 2449, 350));
  EXPECT_FALSE(followTooltipPath(path, Point{300, 300}, 2450, 350));
}

TEST(TooltipPath, ARestingPointerIsOnItsWayNoLonger) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(path, Point{60, 120}, 1100, 350));  // in the triangle
  // The timer's checks from the same spot: no longer safe, not on the grown rectangle.
  EXPECT_FALSE(followTooltipPath(path, Point{60, 120}, 1225, 350, false));
  // Resting on the grown rectangle lingers 220 ms.
  TooltipPath near = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(near, Point{80, 120}, 1100, 350));
  EXPECT_TRUE(followTooltipPath(near, Point{92, 92}, 1150, 350));
  EXPECT_TRUE(followTooltipPath(near, Point{92, 92}, 1320, 350, false));
  EXPECT_FALSE(followTooltipPath(near, Point{92, 92}, 1321, 350, false));
}

TEST(TooltipPath, MovingAwayClosesAtOnce) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_FALSE(followTooltipPath(path, Point{20, 125}, 1010, 350));
}

TEST(TooltipPath, OnTheGrownRectangleItLingers220Ms) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  EXPECT_TRUE(followTooltipPath(path, Point{80, 120}, 1050, 350));  // safe: in the triangle
  // Drifting up along the grown rectangle, outside the triangle and not coming closer.
  EXPECT_TRUE(followTooltipPath(path, Point{92, 92}, 1200, 350));
  EXPECT_TRUE(followTooltipPath(path, Point{91, 91}, 1270, 350));
  EXPECT_FALSE(followTooltipPath(path, Point{90, 90}, 1271, 350));
}

TEST(TooltipPath, ComingCloserItLingers320Ms) {
  TooltipPath path = beginTooltipPath(kTip, Point{40, 120}, 1000);
  // Each step closer, yet outside the triangle from the step before and off the grown rectangle.
  EXPECT_TRUE(followTooltipPath(path, Point{70, 80}, 1100, 350));
  EXPECT_TRUE(followTooltipPath(path, Point{85, 75}, 1320, 350));
  EXPECT_FALSE(followTooltipPath(path, Point{83, 85}, 1321, 350));
}

}  // namespace
}  // namespace tessel
