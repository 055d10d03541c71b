#include "tessel/core/panel.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

// A small dialog designed at 400 x 300: a title across the top, a list that takes the rest,
// two buttons in the bottom right corner and a status centred by placement.
struct Dialog {
  Dialog() : root(L"root", Rect{0, 0, 400, 300}) {
    title = root.add<Box>(L"title", Rect{20, 10, 360, 24});
    title->setAnchors(kAnchorLeft | kAnchorTop | kAnchorRight);
    list = root.add<Box>(L"list", Rect{20, 44, 360, 200});
    list->setAnchors(kAnchorLeft | kAnchorTop | kAnchorRight | kAnchorBottom);
    list->setMinimumSize(Size{200, 100});
    ok = root.add<Box>(L"ok", Rect{300, 260, 80, 28});
    ok->setAnchors(kAnchorRight | kAnchorBottom);
    cancel = root.add<Box>(L"cancel", Rect{210, 260, 80, 28});
    cancel->setAnchors(kAnchorRight | kAnchorBottom);
    status = root.add<Box>(L"status", Rect{150, 260, 100, 28});
    RelativePlacement placement;
    placement.enabled = true;
    placement.centerX = PlacementEdge{0.5, 0, true};
    placement.width = PlacementSize{100, true};
    placement.top = PlacementEdge{0.0, 260, true};
    placement.height = PlacementSize{28, true};
    status->setPlacement(placement);
  }
  Panel root;
  Box *title, *list, *ok, *cancel, *status;
};

struct SizeCase {
  Size size;
  Rect title, list, ok, cancel, status;
};

TEST(PanelLayout, DialogThroughSeveralSizes) {
  const SizeCase cases[] = {
      {{600, 400},
       {20, 10, 560, 24},
       {20, 44, 560, 300},
       {500, 360, 80, 28},
       {410, 360, 80, 28},
       {250, 260, 100, 28}},
      // The title has no explicit minimum, so its design width is its minimum; the list was
      // given a smaller one and shrinks to it.
      {{300, 250},
       {20, 10, 360, 24},
       {20, 44, 260, 150},
       {200, 210, 80, 28},
       {110, 210, 80, 28},
       {100, 260, 100, 28}},
      // Below the list's minimum it stops at 200 x 100 and overflows right and down.
      {{200, 150},
       {20, 10, 360, 24},
       {20, 44, 200, 100},
       {100, 110, 80, 28},
       {10, 110, 80, 28},
       {50, 260, 100, 28}},
      {{400, 300},
       {20, 10, 360, 24},
       {20, 44, 360, 200},
       {300, 260, 80, 28},
       {210, 260, 80, 28},
       {150, 260, 100, 28}},
  };
  Dialog dialog;
  for (const SizeCase& c : cases) {
    dialog.root.setBounds(Rect{0, 0, c.size.width, c.size.height});
    EXPECT_EQ(dialog.title->bounds(), c.title) << c.size.width;
    EXPECT_EQ(dialog.list->bounds(), c.list) << c.size.width;
    EXPECT_EQ(dialog.ok->bounds(), c.ok) << c.size.width;
    EXPECT_EQ(dialog.cancel->bounds(), c.cancel) << c.size.width;
    EXPECT_EQ(dialog.status->bounds(), c.status) << c.size.width;
    // Layout never rewrites the design.
    EXPECT_EQ(dialog.list->designBounds(), (Rect{20, 44, 360, 200}));
  }
}

TEST(PanelLayout, MinimumSizesFlowUp) {
  Dialog dialog;
  // Title: design width 360 plus both margins. Buttons: their design position plus height.
  EXPECT_EQ(dialog.root.minimumContentSizeHint(), (Size{400, 288}));
  dialog.title->setMinimumSize(Size{100, 24});
  EXPECT_EQ(dialog.root.minimumContentSizeHint(), (Size{380, 288}));  // the ok button now
  dialog.ok->setCollapsed(true);
  dialog.cancel->setCollapsed(true);
  dialog.status->setCollapsed(true);
  // List: minimum 200 plus margins 20 + 20; 100 plus 44 above and 56 below.
  EXPECT_EQ(dialog.root.minimumContentSizeHint(), (Size{240, 200}));
  EXPECT_EQ(dialog.root.minimumSize(), (Size{400, 300}));  // never below its own design
}

struct EdgeCase {
  const char* what;
  Rect design;
  uint32_t anchors;
  RelativePlacement placement;
  Size minimum;  // 0: none
  int32_t parentWidth;
  Rect expected;
};

RelativePlacement Centred(int32_t width) {
  RelativePlacement p;
  p.enabled = true;
  p.centerX = PlacementEdge{0.5, 0, true};
  p.width = PlacementSize{width, true};
  return p;
}

RelativePlacement LeftRatio(double ratio) {
  RelativePlacement p;
  p.enabled = true;
  p.left = PlacementEdge{ratio, 5, true};
  p.width = PlacementSize{10, true};
  return p;
}

RelativePlacement RightEdge(double ratio, int32_t offset) {
  RelativePlacement p;
  p.enabled = true;
  p.right = PlacementEdge{ratio, offset, true};
  return p;
}

TEST(PanelLayout, AnchorAndPlacementEdges) {
  const EdgeCase cases[] = {
      {"right only, stopped by a minimum, moves left",
       {300, 10, 80, 20},
       kAnchorRight,
       {},
       {120, 20},
       400,
       {260, 10, 120, 20}},
      {"left and right grow and keep the right margin",
       {10, 10, 80, 20},
       kAnchorLeft | kAnchorRight,
       {},
       {0, 0},
       600,
       {10, 10, 280, 20}},
      {"centred, stopped by a minimum, odd difference favours the left",
       {0, 0, 50, 20},
       kAnchorLeft | kAnchorTop,
       Centred(50),
       {61, 20},
       200,
       {70, 0, 61, 20}},
      {"ratio above 2 acts as 2",
       {0, 0, 10, 10},
       kAnchorLeft,
       LeftRatio(3.0),
       {0, 0},
       100,
       {205, 0, 10, 10}},
      {"ratio below -1 acts as -1",
       {0, 0, 10, 10},
       kAnchorLeft,
       LeftRatio(-5.0),
       {0, 0},
       100,
       {-95, 0, 10, 10}},
      {"half rounds away from zero",
       {0, 0, 10, 10},
       kAnchorLeft,
       LeftRatio(0.5),
       {0, 0},
       101,
       {56, 0, 10, 10}},
      {"right edge alone keeps the design width",
       {0, 0, 30, 10},
       kAnchorLeft,
       RightEdge(1.0, -4),
       {0, 0},
       200,
       {166, 0, 30, 10}},
  };
  for (const EdgeCase& c : cases) {
    Panel parent(L"parent", Rect{0, 0, 400, 100});
    Box* child = parent.add<Box>(L"child", c.design);
    child->setAnchors(c.anchors);
    child->setPlacement(c.placement);
    if (c.minimum.width > 0) child->setMinimumSize(c.minimum);
    parent.setBounds(Rect{0, 0, c.parentWidth, 100});
    parent.layoutChildren();  // the minimum was set after the child was first placed
    EXPECT_EQ(child->bounds(), c.expected) << c.what;
  }
}

TEST(PanelLayout, ChildOutsideTheFirstSizeWidensTheDesign) {
  Panel parent(L"parent", Rect{0, 0, 100, 100});
  Box* child = parent.add<Box>(L"child", Rect{90, 0, 30, 10});
  child->setAnchors(kAnchorRight);
  EXPECT_EQ(child->designParentSize(), (Size{120, 100}));
  parent.setBounds(Rect{0, 0, 200, 100});
  EXPECT_EQ(child->bounds(), (Rect{170, 0, 30, 10}));  // margin 0, not -20
}

TEST(PanelLayout, NonPositiveParentLeavesChildren) {
  Panel parent(L"parent", Rect{0, 0, 0, 0});
  Box* child = parent.add<Box>(L"child", Rect{5, 5, 10, 10});
  EXPECT_FALSE(child->designCaptured());
  parent.setBounds(Rect{0, 0, 50, 0});
  EXPECT_EQ(child->bounds(), (Rect{5, 5, 10, 10}));
  parent.setBounds(Rect{0, 0, 50, 50});
  EXPECT_TRUE(child->designCaptured());
}

TEST(Panel, CaptureStateTreeDescendsThroughUnnamedControls) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  Panel* unnamed = root.add<Panel>(L"", Rect{0, 0, 50, 50});
  unnamed->add<Box>(L"inner", Rect{});
  root.add<Box>(L"after", Rect{});
  std::vector<ControlState> states;
  root.captureStateTree(states);
  ASSERT_EQ(states.size(), 2u);
  EXPECT_EQ(states[0].id, L"inner");
  EXPECT_EQ(states[1].id, L"after");
}

TEST(FitToRegions, ShapedParentGivesSpansBandsAndHits) {
  ShapedPanel parent(L"parent", Rect{0, 0, 100, 100});
  parent.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};  // an L
  auto owned = std::make_unique<Box>(L"child", Rect{0, 0, 100, 100});
  owned->setGeometryMode(kGeometryDeform);
  Box* child = static_cast<Box*>(parent.addChild(std::move(owned)));
  EXPECT_EQ(child->contourSpans(), (std::vector<Rect>{{0, 0, 100, 50}, {0, 50, 50, 50}}));
  EXPECT_EQ(child->rowBands(), (std::vector<GeometryBand>{{0, 50, 0, 0}, {50, 50, 0, 50}}));
  EXPECT_EQ(child->columnBands(), (std::vector<GeometryBand>{{0, 50, 0, 0}, {50, 50, 0, 50}}));
  EXPECT_EQ(parent.hitTest(Point{25, 75}, Point{}), child);
  EXPECT_EQ(parent.hitTest(Point{75, 75}, Point{}), &parent);  // outside the spans
  EXPECT_EQ(child->geometryBands(3, 100), child->contourSpans());
  EXPECT_EQ(child->geometryInnerBounds(), (Rect{0, 0, 50, 100}));
}

TEST(FitToRegions, PlainFitClearsAndBandModeShifts) {
  ShapedPanel parent(L"parent", Rect{0, 0, 100, 100});
  parent.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};
  Box* inside = parent.add<Box>(L"inside", Rect{10, 10, 20, 20});
  EXPECT_TRUE(inside->contourSpans().empty());
  EXPECT_FALSE(inside->hasFollowBounds());
  Box* moved = parent.add<Box>(L"moved", Rect{60, 60, 30, 10});
  ASSERT_TRUE(moved->hasFollowBounds());
  EXPECT_EQ(moved->followBounds(), (Rect{20, 60, 30, 10}));
  EXPECT_EQ(moved->followOffset(), (Point{-40, 0}));
  EXPECT_EQ(parent.hitTest(Point{25, 65}, Point{}), moved);
  EXPECT_EQ(parent.hitTest(Point{75, 65}, Point{}), &parent);
  moved->setGeometryMode(kGeometryNone);
  parent.layoutChildren();
  EXPECT_FALSE(moved->hasFollowBounds());
}

}  // namespace
}  // namespace tessel
