#include "tessel/core/window_frame.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

struct HitCase {
  const char* what;
  Point point;
  int32_t thickness;
  bool customFrame, zoomed;
  int32_t expected;
};

TEST(FrameHitTest, CornersWinThenEdgesThenClient) {
  const Size client{200, 100};
  const HitCase cases[] = {
      {"top-left corner", {0, 0}, 6, true, false, kHitTopLeft},
      {"top-right corner", {199, 5}, 6, true, false, kHitTopRight},
      {"bottom-left corner", {5, 94}, 6, true, false, kHitBottomLeft},
      {"bottom-right corner", {194, 99}, 6, true, false, kHitBottomRight},
      {"top edge", {100, 5}, 6, true, false, kHitTop},
      {"bottom edge", {100, 94}, 6, true, false, kHitBottom},
      {"left edge", {5, 50}, 6, true, false, kHitLeft},
      {"right edge", {194, 50}, 6, true, false, kHitRight},
      {"just inside the border", {6, 6}, 6, true, false, kHitClient},
      {"outside the client", {-1, 50}, 6, true, false, kHitClient},
      {"no custom frame", {0, 0}, 6, false, false, kHitClient},
      {"zoomed", {0, 0}, 6, true, true, kHitClient},
      {"thickness zero", {0, 0}, 0, true, false, kHitClient},
      {"thickness one", {0, 50}, 1, true, false, kHitLeft},
  };
  for (const HitCase& c : cases)
    EXPECT_EQ(frameHitTest(c.point, client, c.thickness, c.customFrame, c.zoomed), c.expected)
        << c.what;
}

TEST(WindowPlacement, CentredAndKeptInsideTheWorkArea) {
  const Rect work{1920, 40, 1280, 984};  // a second monitor below a top task bar
  EXPECT_EQ(centreOnWorkArea(Size{400, 300}, work), (Rect{1920 + 440, 40 + 342, 400, 300}));
  // Larger than the work area: kept at its top-left, size unchanged.
  EXPECT_EQ(centreOnWorkArea(Size{1500, 1200}, work), (Rect{1920, 40, 1500, 1200}));
  EXPECT_EQ(keepInsideWorkArea(Rect{3100, 900, 300, 200}, work), (Rect{2900, 824, 300, 200}));
  EXPECT_EQ(keepInsideWorkArea(Rect{1800, 0, 300, 200}, work), (Rect{1920, 40, 300, 200}));
}

TEST(WindowPlacement, DialogsCentreOnTheirOwner) {
  const Rect work{0, 0, 1280, 760};
  const Rect owner{100, 100, 600, 400};
  EXPECT_EQ(centreOnOwner(Size{200, 100}, &owner, work), (Rect{300, 250, 200, 100}));
  EXPECT_EQ(centreOnOwner(Size{200, 100}, nullptr, work), (Rect{540, 330, 200, 100}));
  // An owner near the edge: the dialog stays on the work area.
  const Rect corner{1100, 650, 200, 150};
  EXPECT_EQ(centreOnOwner(Size{400, 300}, &corner, work), (Rect{880, 460, 400, 300}));
}

TEST(MinimumSize, ConfiguredRaisedByContentOnlyWhenAutomatic) {
  EXPECT_EQ(effectiveMinimumClientSize({300, 0}, {420, 180}, true), (Size{420, 180}));
  EXPECT_EQ(effectiveMinimumClientSize({300, 0}, {420, 180}, false), (Size{300, 0}));
  EXPECT_EQ(effectiveMinimumClientSize({-5, 0}, {0, -3}, true), (Size{0, 0}));
}

struct SizingCase {
  const char* what;
  int32_t edge;
  Rect proposed, held;
};

TEST(MinimumSize, TheDraggedEdgeStopsAndTheOppositeStays) {
  const Size minimum{300, 200};
  const SizingCase cases[] = {
      {"left", kSizeLeft, {150, 100, 250, 300}, {100, 100, 300, 300}},
      {"right", kSizeRight, {100, 100, 250, 300}, {100, 100, 300, 300}},
      {"top-left", kSizeTopLeft, {150, 150, 250, 150}, {100, 100, 300, 200}},
      {"top-right", kSizeTopRight, {100, 150, 250, 150}, {100, 100, 300, 200}},
      {"bottom-left", kSizeBottomLeft, {150, 100, 250, 150}, {100, 100, 300, 200}},
      {"bottom", kSizeBottom, {100, 100, 400, 150}, {100, 100, 400, 200}},
      {"large enough", kSizeBottomRight, {0, 0, 500, 400}, {0, 0, 500, 400}},
  };
  for (const SizingCase& c : cases)
    EXPECT_EQ(holdMinimumWhileSizing(c.proposed, c.edge, minimum), c.held) << c.what;
}

TEST(WindowLimits, WorkAreaOfTheMonitorCapsTheMinimum) {
  const WindowLimits defaults{{1, 1}, {0, 0}, {120, 40}, {800, 600}};
  // A small second monitor with the task bar on its left.
  const Rect monitor{-1024, 0, 1024, 768};
  const Rect work{-984, 0, 984, 768};
  const WindowLimits limits = windowLimits(defaults, monitor, work, Size{1200, 300});
  EXPECT_EQ(limits.maxSize, (Size{984, 768}));
  EXPECT_EQ(limits.maxPosition, (Point{40, 0}));
  EXPECT_EQ(limits.maxTrackSize, (Size{984, 768}));
  EXPECT_EQ(limits.minTrackSize, (Size{984, 300}));  // capped by the work area
  // No minimum of its own: the system's defaults stay.
  EXPECT_EQ(windowLimits(defaults, monitor, work, Size{}).minTrackSize, (Size{120, 40}));
}

}  // namespace
}  // namespace tessel
