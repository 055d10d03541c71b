#include "tessel/controls/themed_button.h"

#include <gtest/gtest.h>

#include "tests/support/golden_image.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kNormal = rgbColor(10, 10, 10), kHot = rgbColor(20, 20, 20);
constexpr Color kPressed = rgbColor(30, 30, 30), kActive = rgbColor(50, 50, 50);
constexpr Color kDisabled = rgbColor(40, 40, 40), kText = rgbColor(250, 250, 250);

ThemedButton Button(const wchar_t* text, Rect bounds = {0, 0, 60, 24}) {
  return ThemedButton(L"b", bounds, text,
                      FlatButton({kNormal, kHot, kPressed, kActive, kDisabled}));
}

TEST(ThemedButton, StatePriorityPicksSurfaceAndTextColour) {
  struct Case {
    bool enabled, pressed;
    Color surface, text;
  };
  // Each case is hot and active as well.
  const Case cases[] = {{true, false, kActive, kText},
                        {true, true, kPressed, kText},
                        {false, true, kDisabled, kText ^ 0x00FFFFFFu}};
  for (const Case& c : cases) {
    ThemedButton button = Button(L"OK");
    button.setEnabled(c.enabled);
    button.setPressed(c.pressed);
    button.setActive(true);
    button.setHot(true);
    const Image image = PaintedImage(button, {60, 24});
    EXPECT_EQ(PixelAt(image, 1, 1), c.surface) << c.enabled << c.pressed;
    EXPECT_TRUE(Shows(image, c.text)) << c.enabled << c.pressed;
  }
}

TEST(ThemedButton, TextIsPaddedAndEndsWithAnEllipsisWhenLongAndSetsTheMinimumWidth) {
  // 6 pixels a character less the last gap; 40 - 2 * 2 = 36 pixels hold "ABC..." (35).
  ThemedButton longText = Button(L"ABCDEFGHIJ", {0, 0, 40, 20});
  ThemedButton shortened = Button(L"ABC...", {0, 0, 40, 20});
  EXPECT_TRUE(CompareImages(PaintedImage(longText, {40, 20}), PaintedImage(shortened, {40, 20}),
                            "button", 0));
  EXPECT_EQ(longText.clippedText(), L"ABCDEFGHIJ");
  EXPECT_EQ(shortened.clippedText(), L"");
  // The wider of the two texts and the padding; never below the design width.
  const std::pair<const wchar_t*, int32_t> cases[] = {{L"", 16}, {L"STOPPED", 46}};
  for (const auto& [activeText, width] : cases) {
    ThemedButton button = Button(L"OK", {0, 0, 10, 20});
    button.setActiveText(activeText);
    EXPECT_EQ(button.minimumSize(), (Size{width, 20})) << width;
  }
  EXPECT_EQ(Button(L"OK", {0, 0, 100, 20}).minimumSize(), (Size{100, 20}));
}

}  // namespace
}  // namespace tessel
