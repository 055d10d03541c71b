#include "tessel/controls/themed_button.h"

#include <gtest/gtest.h>

#include <vector>

#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10), kHot = rgbColor(20, 20, 20);
constexpr Color kPressed = rgbColor(30, 30, 30), kActive = rgbColor(50, 50, 50);
constexpr Color kDisabled = rgbColor(40, 40, 40), kText = rgbColor(250, 250, 250);

ThemedButton Button(const wchar_t* text, Rect bounds = {0, 0, 60, 24}, const wchar_t* id = L"b") {
  return ThemedButton(id, bounds, text, FlatButton({kNormal, kHot, kPressed, kActive, kDisabled}));
}

TEST(ThemedButton, StatePriorityPicksSurfaceAndTextColour) {
  struct Case {
    bool enabled, pressed, active, hot;
    Color surface, text;
  };
  const Case cases[] = {{true, false, false, false, kNormal, kText},
                        {true, false, false, true, kHot, kText},
                        {true, false, true, true, kActive, kText},
                        {true, true, true, true, kPressed, kText},
                        {false, true, true, true, kDisabled, kText ^ 0x00FFFFFFu}};
  for (const Case& c : cases) {
    ThemedButton button = Button(L"OK");
    button.setEnabled(c.enabled);
    button.setPressed(c.pressed);
    button.setActive(c.active);
    button.setHot(c.hot);
    const Image image = PaintedImage(button, {60, 24});
    EXPECT_EQ(PixelAt(image, 1, 1), c.surface) << c.hot << c.active << c.pressed;
    EXPECT_GT(CountColor(image, c.text), 0) << c.hot << c.active << c.pressed;
  }
}

TEST(ThemedButton, AClickEmitsTheCommandThenCallsOnClickedUnlessHandledOrDisabled) {
  ThemedButton button = Button(L"OK", {0, 0, 60, 24}, L"dialog-ok");
  std::vector<std::wstring> seen;
  bool veto = false;
  button.onCommand([&](CommandEvent& event) {
    seen.push_back(event.command + L"=" + event.value);
    event.handled = veto;
  });
  button.setOnClicked([&] { seen.push_back(L"clicked"); });
  button.clicked();
  veto = true;
  button.clicked();
  veto = false;
  button.setEnabled(false);
  button.clicked();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"dialog-ok=OK", L"clicked", L"dialog-ok=OK"}));
}

TEST(ThemedButton, TextIsPaddedCentredAndEndsWithAnEllipsisWhenLong) {
  const std::pair<int32_t, int32_t> paddings[] = {{-3, 2}, {2, 2}, {4, 4}, {6, 6}, {9, 6}};
  for (const auto& [inset, padding] : paddings) {
    SurfaceStyle surface;
    surface.textInsets = Insets{inset, inset, inset, inset};
    EXPECT_EQ(buttonTextPadding(surface), (Insets{padding, padding, padding, padding})) << inset;
  }
  // 6 pixels a character less the last gap; 40 - 2 * 2 = 36 pixels hold "ABC..." (35).
  ThemedButton longText = Button(L"ABCDEFGHIJ", {0, 0, 40, 20});
  ThemedButton shortened = Button(L"ABC...", {0, 0, 40, 20});
  EXPECT_TRUE(CompareImages(PaintedImage(longText, {40, 20}), PaintedImage(shortened, {40, 20}),
                            "button", 0));
  EXPECT_EQ(longText.clippedText(), L"ABCDEFGHIJ");
  EXPECT_EQ(shortened.clippedText(), L"");
  ThemedButton narrow = Button(L"I", {0, 0, 61, 21});  // "I": five pixels, its bar in the middle
  const auto [left, right] = ColumnsOf(PaintedImage(narrow, {61, 21}), kText);
  EXPECT_EQ(left + right, 60);
}

TEST(ThemedButton, MinimumSizeFitsTheWiderTextAndPadding) {
  struct Case {
    int32_t width;
    const wchar_t *text, *activeText;
    int32_t minimumWidth;
  };
  const Case cases[] = {{10, L"OK", L"", 2 * 6 + 4},
                        {100, L"OK", L"", 100},
                        {10, L"OK", L"STOPPED", 7 * 6 + 4},
                        {10, L"CONTINUE", L"NO", 8 * 6 + 4}};
  for (const Case& c : cases) {
    ThemedButton button = Button(c.text, {0, 0, c.width, 20});
    button.setActiveText(c.activeText);
    EXPECT_EQ(button.minimumSize(), (Size{c.minimumWidth, 20})) << c.text << c.width;
  }
  ThemedButton collapsed = Button(L"OK", {0, 0, 10, 20});
  collapsed.setCollapsed(true);
  EXPECT_EQ(collapsed.minimumSize(), (Size{0, 0}));
}

TEST(ThemedButton, ShapeHitAndSkins) {
  ButtonStyle style = FlatButton({kNormal, kHot, kPressed, kActive, kDisabled});
  style.surface.each([](SurfaceStyle& s) { s.shape = ShapeKind::Capsule; });
  ThemedButton button(L"b", Rect{0, 0, 60, 24}, L"OK", style);
  EXPECT_TRUE(button.containsPoint(Point{0, 0}));
  button.setUseShapeHit(true);  // only when asked for, the outline rules
  EXPECT_FALSE(button.containsPoint(Point{0, 0}));
  EXPECT_TRUE(button.containsPoint(Point{30, 12}));
  EXPECT_FALSE(button.containsPoint(Point{60, 12}));
  // A hit shape of its own rules clicks, whatever the surface's outline.
  style.hitShape = ShapeStyle{ShapeKind::Diamond, true};
  style.surface.each([](SurfaceStyle& s) { s.shape = ShapeKind::Rectangle; });
  button.setStyle(style);
  EXPECT_FALSE(button.containsPoint(Point{2, 2}));
  EXPECT_TRUE(button.containsPoint(Point{30, 12}));

  const StyleSheet sheet{Theme{}};
  EXPECT_FALSE(applyStyleId(sheet, button, L"no-such-style"));
  EXPECT_EQ(button.style().surface.normal.fill, kNormal);
  EXPECT_TRUE(applyStyleId(sheet, button, L"primary"));
  EXPECT_EQ(button.style().surface.normal.fill, sheet.buttons.get(L"primary").surface.normal.fill);
}

}  // namespace
}  // namespace tessel
