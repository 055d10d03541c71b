#include "tessel/controls/themed_button.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10);
constexpr Color kHot = rgbColor(20, 20, 20);
constexpr Color kPressed = rgbColor(30, 30, 30);
constexpr Color kDisabled = rgbColor(40, 40, 40);
constexpr Color kActive = rgbColor(50, 50, 50);
constexpr Color kText = rgbColor(250, 250, 250);

ButtonStyle StateColouredStyle() {
  ButtonStyle style;
  style.surface.normal = FlatSurface(kNormal);
  style.surface.hot = FlatSurface(kHot);
  style.surface.pressed = FlatSurface(kPressed);
  style.surface.disabled = FlatSurface(kDisabled);
  style.surface.active = FlatSurface(kActive);
  style.text = PlainText(kText);
  return style;
}

Image Paint(ThemedButton& button, Size size = {60, 24}) {
  Image image = Image::blank(size.width, size.height);
  ImageCanvas canvas(image);
  button.paint(canvas, Point{0, 0});
  return image;
}

TEST(ThemedButton, StatePriorityPicksSurfaceAndTextColour) {
  struct Case {
    const char* what;
    bool enabled, pressed, active, hot;
    Color surface;
    Color text;
  };
  const Case kCases[] = {
      {"rest", true, false, false, false, kNormal, kText},
      {"hot", true, false, false, true, kHot, kText},
      {"active beats hot", true, false, true, true, kActive, kText},
      {"pressed beats active", true, true, true, true, kPressed, kText},
      {"disabled beats everything", false, true, true, true, kDisabled, kText ^ 0x00FFFFFFu},
  };
  for (const Case& c : kCases) {
    ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", StateColouredStyle());
    button.setEnabled(c.enabled);
    button.setPressed(c.pressed);
    button.setActive(c.active);
    button.setHot(c.hot);
    const Image image = Paint(button);
    EXPECT_EQ(PixelAt(image, 1, 1), c.surface) << c.what;
    EXPECT_GT(CountColor(image, c.text), 0) << c.what;
  }
}

TEST(ThemedButton, ADisabledButtonWhilePressedDrawsDisabledAndIsNotClicked) {
  ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", StateColouredStyle());
  int commands = 0;
  int clicks = 0;
  button.onCommand([&](CommandEvent&) { ++commands; });
  button.setOnClicked([&] { ++clicks; });
  button.setPressed(true);
  button.setEnabled(false);
  EXPECT_EQ(PixelAt(Paint(button), 1, 1), kDisabled);
  button.clicked();
  EXPECT_EQ(commands, 0);
  EXPECT_EQ(clicks, 0);
}

TEST(ThemedButton, TextPaddingIsClampedToTwoThroughSix) {
  struct Case {
    int32_t inset;
    int32_t padding;
  };
  const Case kCases[] = {{-3, 2}, {0, 2}, {2, 2}, {4, 4}, {6, 6}, {9, 6}};
  for (const Case& c : kCases) {
    SurfaceStyle surface;
    surface.textInsets = Insets{c.inset, c.inset, c.inset, c.inset};
    EXPECT_EQ(buttonTextPadding(surface), (Insets{c.padding, c.padding, c.padding, c.padding}))
        << c.inset;
  }
}

TEST(ThemedButton, LongTextIsCentredWithAnEndEllipsis) {
  // Stand-in font at 9 points: 6 pixels a character less the last gap. 40 - 2 * 2 = 36 pixels
  // hold "ABC..." (35), not "ABCD..." (41).
  ThemedButton longText(L"b", Rect{0, 0, 40, 20}, L"ABCDEFGHIJ", StateColouredStyle());
  ThemedButton shortened(L"b", Rect{0, 0, 40, 20}, L"ABC...", StateColouredStyle());
  EXPECT_TRUE(CompareImages(Paint(longText, {40, 20}), Paint(shortened, {40, 20}), "button", 0));
  EXPECT_EQ(longText.clippedText(), L"ABCDEFGHIJ");
  EXPECT_EQ(shortened.clippedText(), L"");
}

TEST(ThemedButton, TextIsCentredInTheButton) {
  ThemedButton button(L"b", Rect{0, 0, 61, 21}, L"I", StateColouredStyle());
  const Image image = Paint(button, {61, 21});
  // "I" is five pixels wide with its bar in the middle column.
  int left = image.width, right = -1;
  for (int x = 0; x < image.width; ++x) {
    for (int y = 0; y < image.height; ++y) {
      if (PixelAt(image, x, y) == kText) {
        left = std::min(left, x);
        right = std::max(right, x);
      }
    }
  }
  ASSERT_GE(right, 0);
  EXPECT_EQ(left + right, 60);
}

TEST(ThemedButton, MinimumSizeFitsTheTextAndPadding) {
  // Without a screen measure, 9 points estimate 6 pixels a character.
  struct Case {
    const char* what;
    int32_t width;
    const wchar_t* text;
    const wchar_t* activeText;
    int32_t minimumWidth;
  };
  const Case kCases[] = {
      {"narrow button grows to its text", 10, L"OK", L"", 2 * 6 + 4},
      {"wide button keeps its width", 100, L"OK", L"", 100},
      {"active text is wider", 10, L"OK", L"STOPPED", 7 * 6 + 4},
      {"normal text is wider", 10, L"CONTINUE", L"NO", 8 * 6 + 4},
  };
  for (const Case& c : kCases) {
    ThemedButton button(L"b", Rect{0, 0, c.width, 20}, c.text, StateColouredStyle());
    button.setActiveText(c.activeText);
    EXPECT_EQ(button.minimumSize(), (Size{c.minimumWidth, 20})) << c.what;
  }
  ThemedButton collapsed(L"b", Rect{0, 0, 10, 20}, L"OK", StateColouredStyle());
  collapsed.setCollapsed(true);
  EXPECT_EQ(collapsed.minimumSize(), (Size{0, 0}));
}

TEST(ThemedButton, ClickEmitsTheCommandThenCallsOnClicked) {
  ThemedButton button(L"dialog-ok", Rect{0, 0, 60, 24}, L"OK", StateColouredStyle());
  std::vector<std::wstring> seen;
  button.onCommand(
      [&](CommandEvent& event) { seen.push_back(event.command + L"=" + event.value); });
  button.setOnClicked([&] { seen.push_back(L"clicked"); });
  button.clicked();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"dialog-ok=OK", L"clicked"}));
}

TEST(ThemedButton, AHandledCommandVetoesOnClicked) {
  ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", StateColouredStyle());
  int clicks = 0;
  button.onCommand([](CommandEvent& event) { event.handled = true; });
  button.setOnClicked([&] { ++clicks; });
  button.clicked();
  EXPECT_EQ(clicks, 0);
}

TEST(ThemedButton, ApplySkinSwapsTheRecordOnlyForAStyleTheSheetHolds) {
  const StyleSheet sheet{Theme{}};
  ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", StateColouredStyle());
  button.setStyleId(L"no-such-style");
  EXPECT_FALSE(button.applySkin(sheet));
  EXPECT_EQ(button.style().surface.normal.fill, kNormal);
  button.setStyleId(L"primary");
  EXPECT_TRUE(button.applySkin(sheet));
  EXPECT_EQ(button.style().surface.normal.fill, sheet.buttons.get(L"primary").surface.normal.fill);
  EXPECT_NE(button.style().surface.normal.fill, kNormal);
}

TEST(ThemedButton, ShapeHitFollowsTheOutlineOnlyWhenAskedFor) {
  ButtonStyle style = StateColouredStyle();
  style.surface.each([](SurfaceStyle& s) { s.shape = ShapeKind::Capsule; });
  ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", style);
  EXPECT_TRUE(button.containsPoint(Point{0, 0}));
  button.setUseShapeHit(true);
  EXPECT_FALSE(button.containsPoint(Point{0, 0}));
  EXPECT_TRUE(button.containsPoint(Point{30, 12}));

  // A hit shape of its own rules clicks, whatever the surface's outline.
  style.hitShape = ShapeStyle{ShapeKind::Diamond, true};
  style.surface.each([](SurfaceStyle& s) { s.shape = ShapeKind::Rectangle; });
  button.setStyle(style);
  EXPECT_FALSE(button.containsPoint(Point{2, 2}));
  EXPECT_TRUE(button.containsPoint(Point{30, 12}));
}

}  // namespace
}  // namespace tessel
