#include "tessel/core/panel.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

// A placement of one horizontal edge, with a width when one is given.
RelativePlacement Along(PlacementEdge RelativePlacement::*edge, double ratio, int32_t offset,
                        int32_t width = -1) {
  RelativePlacement placement;
  placement.enabled = true;
  placement.*edge = PlacementEdge{ratio, offset, true};
  placement.width = PlacementSize{width, width >= 0};
  return placement;
}

// A dialog designed at 400 x 300: a title across the top, a list that takes the rest and a
// button in the bottom right corner.
struct Dialog {
  Dialog() : root(L"root", Rect{0, 0, 400, 300}) {
    title = root.add<Box>(L"title", Rect{20, 10, 360, 24});
    title->setAnchors(kAnchorLeft | kAnchorTop | kAnchorRight);
    list = root.add<Box>(L"list", Rect{20, 44, 360, 200});
    list->setAnchors(kAnchorLeft | kAnchorTop | kAnchorRight | kAnchorBottom);
    list->setMinimumSize(Size{200, 100});
    ok = root.add<Box>(L"ok", Rect{300, 260, 80, 28});
    ok->setAnchors(kAnchorRight | kAnchorBottom);
  }
  Panel root;
  Box *title, *list, *ok;
};

TEST(PanelLayout, ADialogThroughSeveralSizes) {
  struct Case {
    Size client;
    int32_t titleWidth, listWidth, listHeight, okX, okY;
  };
  const Case cases[] = {
      {{600, 400}, 560, 560, 300, 500, 360},
      // Below the list's minimum it stops at 200 x 100 and overflows right and down.
      {{200, 150}, 360, 200, 100, 100, 110},
      {{400, 300}, 360, 360, 200, 300, 260}};  // layout never rewrote the design
  Dialog dialog;
  for (const Case& c : cases) {
    dialog.root.setBounds(Rect{0, 0, c.client.width, c.client.height});
    EXPECT_EQ(dialog.title->bounds(), (Rect{20, 10, c.titleWidth, 24})) << c.client.width;
    EXPECT_EQ(dialog.list->bounds(), (Rect{20, 44, c.listWidth, c.listHeight})) << c.client.width;
    EXPECT_EQ(dialog.ok->bounds(), (Rect{c.okX, c.okY, 80, 28})) << c.client.width;
  }
}

TEST(PanelLayout, AnchorAndPlacementEdges) {
  using P = RelativePlacement;
  struct Case {
    Rect design;
    uint32_t anchors;
    RelativePlacement placement;
    int32_t minimumWidth, parentWidth;
    Rect expected;
  };
  const Case cases[] = {
      // Right only, stopped by a minimum, moves left.
      {{300, 10, 80, 20}, kAnchorRight, {}, 120, 400, {260, 10, 120, 20}},
      // Centred and stopped by a minimum: the odd difference favours the left.
      {{0, 0, 50, 20}, kAnchorLeft, Along(&P::centerX, 0.5, 0, 50), 61, 200, {70, 0, 61, 20}},
      // Ratios act as -1 below -1; halves round away from zero.
      {{0, 0, 10, 10}, kAnchorLeft, Along(&P::left, -5.0, 5, 10), 0, 100, {-95, 0, 10, 10}},
      {{0, 0, 10, 10}, kAnchorLeft, Along(&P::left, 0.5, 5, 10), 0, 101, {56, 0, 10, 10}},
      // A right edge alone keeps the design width; with a width and a minimum it grows left.
      {{0, 0, 30, 10}, kAnchorLeft, Along(&P::right, 1.0, -4), 0, 200, {166, 0, 30, 10}},
      {{0, 0, 30, 10}, kAnchorLeft, Along(&P::right, 1.0, 0, 30), 50, 200, {150, 0, 50, 10}}};
  for (const Case& c : cases) {
    Panel parent(L"parent", Rect{0, 0, 400, 100});
    Box* child = parent.add<Box>(L"child", c.design);
    child->setAnchors(c.anchors);
    child->setPlacement(c.placement);
    if (c.minimumWidth > 0) child->setMinimumSize(Size{c.minimumWidth, 10});
    parent.setBounds(Rect{0, 0, c.parentWidth, 100});
    parent.layoutChildren();  // the minimum was set after the child was first placed
    EXPECT_EQ(child->bounds(), c.expected) << c.expected.x;
  }
}

TEST(FitToRegions, AShapedParentGivesSpansBandsAndHits) {
  ShapedPanel parent(L"parent", Rect{0, 0, 100, 100});
  parent.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};  // an L
  auto owned = std::make_unique<Box>(L"child", Rect{0, 0, 100, 100});
  owned->setGeometryMode(kGeometryDeform);
  owned->setAnchors(kAnchorRight);
  Box* child = static_cast<Box*>(parent.addChild(std::move(owned)));
  EXPECT_EQ(child->contourSpans(), (std::vector<Rect>{{0, 0, 100, 50}, {0, 50, 50, 50}}));
  const std::vector<GeometryBand> bands{{0, 50, 0, 0}, {50, 50, 0, 50}};
  EXPECT_EQ(child->rowBands(), bands);
  EXPECT_EQ(child->columnBands(), bands);
  EXPECT_TRUE(child->bandsFromRight());  // anchored right, not bottom
  EXPECT_FALSE(child->bandsFromBottom());
  EXPECT_EQ(parent.hitTest(Point{25, 75}, Point{}), child);
  EXPECT_EQ(parent.hitTest(Point{75, 75}, Point{}), &parent);  // outside the spans

  // In band mode a child that doesn't fit moves sideways to where all its rows are usable.
  Box* moved = parent.add<Box>(L"moved", Rect{60, 60, 30, 10});
  EXPECT_EQ(moved->followBounds(), (Rect{20, 60, 30, 10}));
  EXPECT_EQ(moved->followOffset(), (Point{-40, 0}));
  EXPECT_EQ(parent.hitTest(Point{25, 65}, Point{}), moved);
}

const Color kRed = rgbColor(255, 0, 0);

TEST(PanelPaint, ContentRegionsClipChildrenAndDeformedOnesAreSqueezedIn) {
  for (int32_t mode : {kGeometryNone, kGeometryDeform}) {
    ShapedPanel root(L"root", Rect{0, 0, 100, 100});
    root.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};  // an L
    auto box = std::make_unique<Box>(L"box", Rect{0, 0, 100, 100}, kRed);
    box->setGeometryMode(mode);
    auto* child = static_cast<Box*>(root.addChild(std::move(box)));
    const Image image = PaintedImage(root, {100, 100});
    EXPECT_EQ(PixelAt(image, 25, 75), kRed) << mode;
    EXPECT_EQ(image.alphaAt(75, 75), 0) << mode;
    EXPECT_EQ(child->paints, 1);
  }
  Panel root(L"root", Rect{0, 0, 200, 40});  // only children in the clip are painted
  Box* left = root.add<Box>(L"left", Rect{0, 0, 20, 20}, kRed);
  Image image = Image::blank(200, 40);
  ImageCanvas canvas(image);
  canvas.clipToRects({Rect{100, 0, 100, 40}});
  root.paint(canvas, Point{});
  EXPECT_EQ(left->paints, 0);
}

}  // namespace
}  // namespace tessel
