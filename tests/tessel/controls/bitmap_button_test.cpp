#include "tessel/controls/bitmap_button.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10);
constexpr Color kHot = rgbColor(20, 20, 20);
constexpr Color kPressed = rgbColor(30, 30, 30);

BitmapButtonImages ThreeStates() {
  BitmapButtonImages images;
  images.normal = OpaqueImage(4, 4, kNormal);
  images.hot = OpaqueImage(4, 4, kHot);
  images.pressed = OpaqueImage(4, 4, kPressed);
  return images;  // no disabled or active image
}

BitmapButtonStyle PlainStyle() {
  BitmapButtonStyle style;
  style.text = PlainText(rgbColor(250, 250, 250));
  return style;
}

Color Painted(BitmapButton& button) {
  Image image = Image::blank(20, 20);
  ImageCanvas canvas(image);
  button.paint(canvas, Point{0, 0});
  return PixelAt(image, 10, 10);
}

TEST(BitmapButton, StateImagesFallBackToTheNormalOne) {
  struct Case {
    const char* what;
    bool enabled, pressed, active, hot;
    Color shown;
  };
  const Case kCases[] = {
      {"rest", true, false, false, false, kNormal},
      {"hot", true, false, false, true, kHot},
      {"pressed beats hot", true, true, false, true, kPressed},
      {"active without an image", true, false, true, true, kNormal},
      {"disabled without an image", false, true, false, false, kNormal},
  };
  for (const Case& c : kCases) {
    BitmapButton button(L"b", Rect{0, 0, 20, 20}, ThreeStates(), L"", PlainStyle());
    button.setEnabled(c.enabled);
    button.setPressed(c.pressed);
    button.setActive(c.active);
    button.setHot(c.hot);
    EXPECT_EQ(Painted(button), c.shown) << c.what;
  }
}

TEST(BitmapButton, StateTintRecoloursTheImage) {
  BitmapButtonStyle style = PlainStyle();
  style.tints.hot.mode = TintMode::Tint;
  style.tints.hot.color = rgbColor(200, 0, 0);
  BitmapButton button(L"b", Rect{0, 0, 20, 20}, ThreeStates(), L"", style);
  const Color rest = Painted(button);
  button.setHot(true);
  EXPECT_NE(Painted(button), rest);
  EXPECT_NE(Painted(button), kHot);
}

TEST(BitmapButton, ClicksHitOnlyWhereTheImageIsOpaque) {
  BitmapButtonImages images;
  images.normal = Image::blank(2, 1);
  images.normal.pixel(1, 0)[3] = 255;  // right half opaque
  BitmapButton button(L"b", Rect{0, 0, 20, 10}, images, L"", PlainStyle());
  EXPECT_FALSE(button.containsPoint(Point{3, 5}));
  EXPECT_TRUE(button.containsPoint(Point{15, 5}));
  EXPECT_FALSE(button.containsPoint(Point{25, 5}));

  BitmapButton imageless(L"b", Rect{0, 0, 20, 10}, BitmapButtonImages{}, L"X", PlainStyle());
  EXPECT_TRUE(imageless.containsPoint(Point{3, 5}));
}

TEST(BitmapButton, ClickEmitsThenCallsOnClickedUnlessHandled) {
  BitmapButton button(L"close", Rect{0, 0, 20, 20}, ThreeStates(), L"", PlainStyle());
  int clicks = 0;
  std::wstring command;
  button.setOnClicked([&] { ++clicks; });
  Connection veto = button.onCommand([&](CommandEvent& event) { command = event.command; });
  button.clicked();
  EXPECT_EQ(command, L"close");
  EXPECT_EQ(clicks, 1);
  veto.disconnect();
  button.onCommand([](CommandEvent& event) { event.handled = true; });
  button.clicked();
  EXPECT_EQ(clicks, 1);
  button.setEnabled(false);
  command.clear();
  button.clicked();
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace tessel
