#include "tessel/controls/bitmap_button.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10);
constexpr Color kHot = rgbColor(20, 20, 20);
constexpr Color kPressed = rgbColor(30, 30, 30);

Image Filled(Color color) {
  Image image = Image::blank(4, 4);
  ImageCanvas(image).fillRect(Rect{0, 0, 4, 4}, color);
  return image;
}

// No disabled or active image.
BitmapButton ThreeStates(const wchar_t* id = L"b") {
  return BitmapButton(id, Rect{0, 0, 20, 20},
                      BitmapButtonImages{Filled(kNormal), Filled(kHot), Filled(kPressed), {}, {}},
                      L"", BitmapButtonStyle{});
}

TEST(BitmapButton, StateImagesFallBackToTheNormalOneAndTintsRecolourThem) {
  struct Case {
    bool enabled, pressed, active, hot;
    Color shown;
  };
  const Case cases[] = {{true, true, false, true, kPressed}, {false, true, true, true, kNormal}};
  for (const Case& c : cases) {
    BitmapButton button = ThreeStates();
    button.setEnabled(c.enabled);
    button.setPressed(c.pressed);
    button.setActive(c.active);
    button.setHot(c.hot);
    EXPECT_EQ(PixelAt(PaintedImage(button, {20, 20}), 10, 10), c.shown) << c.hot << c.active;
  }
  BitmapButton tinted = ThreeStates();
  BitmapButtonStyle style = tinted.style();
  style.tints.hot.mode = TintMode::Tint;
  style.tints.hot.color = rgbColor(200, 0, 0);
  tinted.setStyle(style);
  tinted.setHot(true);
  const Color shown = PixelAt(PaintedImage(tinted, {20, 20}), 10, 10);
  EXPECT_TRUE(shown != kHot && shown != kNormal);
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

TEST(BitmapButton, AClickEmitsThenCallsOnClickedUnlessHandledOrDisabled) {
  BitmapButton button = ThreeStates(L"close");
  std::wstring seen;
  button.setOnClicked([&] { seen += L" clicked"; });
  Connection veto = button.onCommand([&](CommandEvent& event) { seen += event.command; });
  button.clicked();
  EXPECT_EQ(seen, L"close clicked");
  veto.disconnect();
  button.onCommand([](CommandEvent& event) { event.handled = true; });
  button.clicked();
  button.setEnabled(false);
  button.clicked();
  EXPECT_EQ(seen, L"close clicked");
}

}  // namespace
}  // namespace tessel
