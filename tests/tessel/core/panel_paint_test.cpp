#include "tessel/core/panel.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

const Color kRed = rgbColor(255, 0, 0);
const Color kBlue = rgbColor(0, 0, 255);

TEST(PanelPaint, ZOrderThenTheLaterSiblingPaintsAboveAndIsHitFirst) {
  Panel root(L"root", Rect{0, 0, 40, 40});
  Box* first = root.add<Box>(L"first", Rect{0, 0, 30, 30}, kRed);
  Box* second = root.add<Box>(L"second", Rect{10, 10, 30, 30}, kBlue);
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 20, 20), kBlue);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), second);
  first->setZOrder(1);
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 20, 20), kRed);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), first);
  // Attached children paint after their owner and are hit before it.
  Control* badge =
      first->addAttachedChild(std::make_unique<Box>(L"badge", Rect{5, 5, 10, 10}, kBlue));
  EXPECT_EQ(PixelAt(PaintedImage(root, {40, 40}), 8, 8), kBlue);
  EXPECT_EQ(root.hitTest(Point{8, 8}, Point{}), badge);
}

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
