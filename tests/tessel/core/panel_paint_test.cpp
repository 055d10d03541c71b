#include "tessel/core/panel.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

const Color kRed = rgbColor(255, 0, 0);
const Color kBlue = rgbColor(0, 0, 255);
const Color kGreen = rgbColor(0, 255, 0);

TEST(PanelPaint, ZOrderThenTheLaterSiblingPaintsAboveAndIsHitFirst) {
  Panel root(L"root", Rect{0, 0, 40, 40});
  Box* first = root.add<Box>(L"first", Rect{0, 0, 30, 30}, kRed);
  Box* second = root.add<Box>(L"second", Rect{10, 10, 30, 30}, kBlue);
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 20, 20), kBlue);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), second);
  first->setZOrder(1);
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 20, 20), kRed);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), first);
  EXPECT_EQ(root.hitTest(Point{35, 35}, Point{}), second);

  // Attached children paint after their owner and are hit before it.
  Control* badge =
      first->addAttachedChild(std::make_unique<Box>(L"badge", Rect{5, 5, 10, 10}, kGreen));
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 8, 8), kGreen);
  EXPECT_EQ(root.hitTest(Point{8, 8}, Point{}), badge);
}

TEST(PanelPaint, ContentRegionsClipChildrenAndDeformedOnesAreSqueezedIn) {
  ShapedPanel root(L"root", Rect{0, 0, 100, 100});
  root.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};  // an L
  auto clipped = std::make_unique<Box>(L"clipped", Rect{0, 0, 100, 100}, kRed);
  clipped->setGeometryMode(kGeometryNone);
  root.addChild(std::move(clipped));
  Image image = PaintedImage(root, {100, 100});
  EXPECT_EQ(PixelAt(image, 25, 75), kRed);
  EXPECT_EQ(image.alphaAt(75, 75), 0);

  ShapedPanel squeezed(L"root", Rect{0, 0, 100, 100});
  squeezed.regions = root.regions;
  auto box = std::make_unique<Box>(L"box", Rect{0, 0, 100, 100}, kRed);
  box->setGeometryMode(kGeometryDeform);
  auto* child = static_cast<Box*>(squeezed.addChild(std::move(box)));
  image = PaintedImage(squeezed, {100, 100});
  EXPECT_EQ(PixelAt(image, 75, 25), kRed);
  EXPECT_EQ(PixelAt(image, 25, 75), kRed);
  EXPECT_EQ(image.alphaAt(75, 75), 0);
  EXPECT_EQ(child->paints, 1);
  EXPECT_FALSE(child->contourSpans().empty());  // the geometry is back after the paint

  struct Unshaped : Panel {  // no content regions: no clip at all
    using Panel::Panel;
    std::vector<Rect> contentRegions() const override { return {}; }
  } unshaped(L"root", Rect{0, 0, 40, 40});
  unshaped.add<Box>(L"box", Rect{0, 0, 40, 40}, kGreen);
  EXPECT_EQ(PixelAt(PaintedImage(unshaped, {40, 40}), 39, 39), kGreen);
}

TEST(PanelPaint, OnlyChildrenInTheClipArePainted) {
  Panel root(L"root", Rect{0, 0, 200, 40});
  Box* left = root.add<Box>(L"left", Rect{0, 0, 20, 20}, kRed);
  Box* right = root.add<Box>(L"right", Rect{150, 0, 20, 20}, kBlue);
  Image image = Image::blank(200, 40);
  ImageCanvas canvas(image);
  canvas.clipToRects({Rect{100, 0, 100, 40}});
  root.paint(canvas, Point{});
  EXPECT_EQ(left->paints, 0);
  EXPECT_EQ(right->paints, 1);
}

}  // namespace
}  // namespace tessel
