#include "tessel/core/window_frame.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(FrameHitTest, CornersWinThenEdgesThenClient) {
  // A 200 x 100 client with a border of 6, probed on each part and just beside it.
  const std::pair<Point, int32_t> cases[] = {
      {{0, 0}, kHitTopLeft},        {{199, 5}, kHitTopRight}, {{5, 94}, kHitBottomLeft},
      {{194, 99}, kHitBottomRight}, {{100, 5}, kHitTop},      {{194, 50}, kHitRight},
      {{6, 6}, kHitClient}};
  for (const auto& [at, hit] : cases)
    EXPECT_EQ(frameHitTest(at, Size{200, 100}, 6, true, false), hit) << at.x << "," << at.y;
  EXPECT_EQ(frameHitTest(Point{0, 0}, Size{200, 100}, 6, false, false), kHitClient);  // no frame
  EXPECT_EQ(frameHitTest(Point{0, 0}, Size{200, 100}, 6, true, true), kHitClient);    // zoomed
  EXPECT_EQ(frameHitTest(Point{0, 50}, Size{200, 100}, 1, true, false), kHitLeft);
}

TEST(WindowPlacement, CentredOnTheOwnerOrTheWorkAreaAndKeptInsideIt) {
  const Rect work{1920, 40, 1280, 984};  // a second monitor below a top task bar
  EXPECT_EQ(centreOnWorkArea(Size{400, 300}, work), (Rect{2360, 382, 400, 300}));
  EXPECT_EQ(centreOnWorkArea(Size{1500, 1200}, work), (Rect{1920, 40, 1500, 1200}));
  EXPECT_EQ(keepInsideWorkArea(Rect{3100, 900, 300, 200}, work), (Rect{2900, 824, 300, 200}));
  const Rect owner{2020, 140, 600, 400};
  EXPECT_EQ(centreOnOwner(Size{200, 100}, &owner, work), (Rect{2220, 290, 200, 100}));
}

TEST(MinimumSize, ContentRaisesItWhenAutomaticAndTheDraggedEdgeStops) {
  EXPECT_EQ(effectiveMinimumClientSize({300, 0}, {420, 180}, true), (Size{420, 180}));
  EXPECT_EQ(effectiveMinimumClientSize({300, 0}, {420, 180}, false), (Size{300, 0}));
  EXPECT_EQ(effectiveMinimumClientSize({-5, 0}, {0, -3}, true), (Size{0, 0}));
  // Against a minimum of 300 x 200 the dragged edges stop and the opposite ones stay.
  const std::pair<int32_t, Rect> cases[] = {{kSizeLeft, {100, 100, 300, 300}},
                                            {kSizeRight, {150, 100, 300, 300}},
                                            {kSizeTopRight, {150, 50, 300, 200}},
                                            {kSizeBottomLeft, {100, 100, 300, 200}}};
  for (const auto& [edge, held] : cases) {
    const Rect proposed{150, 100, 250, edge == kSizeLeft || edge == kSizeRight ? 300 : 150};
    EXPECT_EQ(holdMinimumWhileSizing(proposed, edge, Size{300, 200}), held) << edge;
  }
}

}  // namespace
}  // namespace tessel
