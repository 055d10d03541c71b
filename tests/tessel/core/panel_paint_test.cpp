#include "tessel/core/panel.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

const Color kRed = rgbColor(255, 0, 0);
const Color kBlue = rgbColor(0, 0, 255);
const Color kGreen = rgbColor(0, 255, 0);

Image Painted(Panel& panel, int width, int height) {
  Image image = Image::blank(width, height);
  ImageCanvas canvas(image);
  panel.paint(canvas, Point{});
  return image;
}

TEST(PanelPaint, EqualZOrderLaterSiblingPaintsAboveAndIsHitFirst) {
  Panel root(L"root", Rect{0, 0, 40, 40});
  Box* first = root.add<Box>(L"first", Rect{0, 0, 30, 30}, kRed);
  Box* second = root.add<Box>(L"second", Rect{10, 10, 30, 30}, kBlue);
  Image image = Painted(root, 40, 40);
  EXPECT_EQ(PixelAt(image, 20, 20), kBlue);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), second);
  first->setZOrder(1);
  image = Painted(root, 40, 40);
  EXPECT_EQ(PixelAt(image, 20, 20), kRed);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), first);
  EXPECT_EQ(root.hitTest(Point{35, 35}, Point{}), second);
}

TEST(PanelPaint, ContentRegionsClipChildren) {
  ShapedPanel root(L"root", Rect{0, 0, 40, 40});
  root.regions = {Rect{0, 0, 20, 40}};
  auto box = std::make_unique<Box>(L"box", Rect{0, 0, 40, 40}, kRed);
  box->setGeometryMode(kGeometryNone);
  root.addChild(std::move(box));
  const Image image = Painted(root, 40, 40);
  EXPECT_EQ(PixelAt(image, 10, 10), kRed);
  EXPECT_EQ(image.alphaAt(30, 10), 0);
}

TEST(PanelPaint, EmptyContentRegionsPaintWithoutClip) {
  struct Unshaped : Panel {
    using Panel::Panel;
    std::vector<Rect> contentRegions() const override { return {}; }
  };
  Unshaped root(L"root", Rect{0, 0, 40, 40});
  root.add<Box>(L"box", Rect{0, 0, 40, 40}, kGreen);
  const Image image = Painted(root, 40, 40);
  EXPECT_EQ(PixelAt(image, 39, 39), kGreen);
}

TEST(PanelPaint, DeformedChildIsSqueezedIntoItsSpans) {
  ShapedPanel root(L"root", Rect{0, 0, 100, 100});
  root.regions = {Rect{0, 0, 100, 50}, Rect{0, 50, 50, 50}};
  auto box = std::make_unique<Box>(L"box", Rect{0, 0, 100, 100}, kRed);
  box->setGeometryMode(kGeometryDeform);
  Box* child = static_cast<Box*>(root.addChild(std::move(box)));
  const Image image = Painted(root, 100, 100);
  EXPECT_EQ(PixelAt(image, 75, 25), kRed);
  EXPECT_EQ(PixelAt(image, 25, 75), kRed);
  EXPECT_EQ(image.alphaAt(75, 75), 0);
  EXPECT_EQ(child->paints, 1);
  EXPECT_FALSE(child->contourSpans().empty());  // the geometry is back after the paint
}

TEST(PanelPaint, AttachedChildrenPaintAfterTheirOwnerAndHitFirst) {
  Panel root(L"root", Rect{0, 0, 40, 40});
  Box* owner = root.add<Box>(L"owner", Rect{0, 0, 40, 40}, kRed);
  Control* badge =
      owner->addAttachedChild(std::make_unique<Box>(L"badge", Rect{5, 5, 10, 10}, kBlue));
  root.add<Box>(L"later", Rect{30, 30, 10, 10}, kGreen);
  const Image image = Painted(root, 40, 40);
  EXPECT_EQ(PixelAt(image, 8, 8), kBlue);
  EXPECT_EQ(PixelAt(image, 35, 35), kGreen);
  EXPECT_EQ(root.hitTest(Point{8, 8}, Point{}), badge);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), owner);
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
