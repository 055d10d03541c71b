#include "tessel/controls/bitmap_button.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10), kPressed = rgbColor(30, 30, 30);

// A normal and a pressed image, neither a hot, a disabled nor an active one.
BitmapButton TwoStates() {
  const auto filled = [](Color color) {
    Image image = Image::blank(4, 4);
    ImageCanvas(image).fillRect(Rect{0, 0, 4, 4}, color);
    return image;
  };
  return BitmapButton(L"close", Rect{0, 0, 20, 20},
                      BitmapButtonImages{filled(kNormal), {}, filled(kPressed), {}, {}}, L"",
                      BitmapButtonStyle{});
}

TEST(BitmapButton, StateImagesFallBackToTheNormalOne) {
  BitmapButton button = TwoStates();
  button.setHot(true);
  button.setPressed(true);
  EXPECT_EQ(PixelAt(PaintedImage(button, {20, 20}), 10, 10), kPressed);
  button.setEnabled(false);
  EXPECT_EQ(PixelAt(PaintedImage(button, {20, 20}), 10, 10), kNormal);
}

TEST(BitmapButton, ClicksHitOnlyWhereTheImageIsOpaque) {
  BitmapButtonImages images;
  images.normal = Image::blank(2, 1);
  images.normal.pixel(1, 0)[3] = 255;  // the right half is opaque
  BitmapButton button(L"b", Rect{0, 0, 20, 10}, images, L"", BitmapButtonStyle{});
  EXPECT_FALSE(button.containsPoint(Point{3, 5}));
  EXPECT_TRUE(button.containsPoint(Point{15, 5}));
  EXPECT_FALSE(button.containsPoint(Point{25, 5}));
  BitmapButton imageless(L"b", Rect{0, 0, 20, 10}, BitmapButtonImages{}, L"X", BitmapButtonStyle{});
  EXPECT_TRUE(imageless.containsPoint(Point{3, 5}));
}

}  // namespace
}  // namespace tessel
