#include "tessel/controls/check_box.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kBox = rgbColor(10, 10, 10);
constexpr Color kBoxChecked = rgbColor(20, 20, 20);
constexpr Color kCheck = rgbColor(0, 200, 0);

CheckBoxStyle FlatStyle() {
  CheckBoxStyle style;
  style.unchecked.each([](SurfaceStyle& s) { s = FlatSurface(kBox); });
  style.checked.each([](SurfaceStyle& s) { s = FlatSurface(kBoxChecked); });
  style.checkColor = kCheck;
  style.text = PlainText(rgbColor(250, 250, 250));
  return style;
}

TEST(CheckBox, SetCheckedIsSilentAndAClickIsNot) {
  CheckBox box(L"c", Rect{0, 0, 120, 24}, L"REMEMBER", FlatStyle());
  int events = 0;
  std::vector<bool> changes;
  box.onValueChanged([&](ValueChangedEvent&) { ++events; });
  box.setOnChanged([&](bool checked) { changes.push_back(checked); });
  box.setChecked(true);
  EXPECT_TRUE(box.checked());
  EXPECT_EQ(events, 0);
  EXPECT_TRUE(changes.empty());

  box.clicked();
  EXPECT_FALSE(box.checked());
  EXPECT_EQ(events, 1);
  EXPECT_EQ(changes, std::vector<bool>{false});
}

TEST(CheckBox, ClickReportsTheNewAndThePreviousState) {
  CheckBox box(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
  ValueChangedEvent seen;
  box.onValueChanged([&](ValueChangedEvent& event) { seen = event; });
  box.clicked();
  EXPECT_EQ(seen.text, L"true");
  EXPECT_EQ(seen.previousText, L"false");
  EXPECT_TRUE(seen.checked);
  EXPECT_FALSE(seen.previousChecked);
  EXPECT_EQ(seen.sender, &box);
}

TEST(CheckBox, AHandledChangeStillTogglesButSkipsOnChanged) {
  CheckBox box(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
  int changes = 0;
  box.onValueChanged([](ValueChangedEvent& event) { event.handled = true; });
  box.setOnChanged([&](bool) { ++changes; });
  box.clicked();
  EXPECT_TRUE(box.checked());
  EXPECT_EQ(changes, 0);
}

TEST(CheckBox, ADisabledBoxIgnoresClicksAndKeys) {
  CheckBox box(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
  box.setEnabled(false);
  box.clicked();
  box.keyDown(0x20, false, false, false, nullptr);
  EXPECT_FALSE(box.checked());
}

TEST(CheckBox, SpaceAndEnterWithoutCtrlOrAltToggle) {
  struct Case {
    const char* what;
    uint32_t key;
    bool ctrl, shift, alt;
    bool consumed;
  };
  const Case kCases[] = {
      {"space", 0x20, false, false, false, true},
      {"enter", 0x0D, false, false, false, true},
      {"shift+space", 0x20, false, true, false, true},
      {"ctrl+space", 0x20, true, false, false, false},
      {"alt+enter", 0x0D, false, false, true, false},
      {"letter", 'A', false, false, false, false},
      {"tab", 0x09, false, false, false, false},
  };
  for (const Case& c : kCases) {
    CheckBox box(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
    EXPECT_EQ(box.keyDown(c.key, c.ctrl, c.shift, c.alt, nullptr), c.consumed) << c.what;
    EXPECT_EQ(box.checked(), c.consumed) << c.what;
  }
}

TEST(CheckBox, BoxSitsOnePixelInAndCentredButNeverAboveTheTop) {
  struct Case {
    Rect bounds;
    int32_t boxSize;
    Rect box;
  };
  const Case kCases[] = {
      {{10, 20, 100, 30}, 18, {11, 26, 18, 18}},
      {{0, 0, 100, 19}, 18, {1, 0, 18, 18}},
      {{0, 0, 100, 10}, 18, {1, 0, 18, 18}},
  };
  for (const Case& c : kCases)
    EXPECT_EQ(checkBoxRect(c.bounds, c.boxSize), c.box);
}

TEST(CheckBox, CheckMarkPoints) {
  const CheckMark mark = checkMarkPoints(Point{5, 8}, 18);
  EXPECT_EQ(mark.start, (Point{8, 15}));
  EXPECT_EQ(mark.corner, (Point{11, 18}));
  EXPECT_EQ(mark.end, (Point{20, 11}));
}

TEST(CheckBox, CheckMarkIsPaintedOnlyWhenChecked) {
  CheckBox box(L"c", Rect{0, 0, 60, 18}, L"", FlatStyle());
  Image image = Image::blank(60, 18);
  {
    ImageCanvas canvas(image);
    box.paint(canvas, Point{0, 0});
  }
  EXPECT_EQ(CountColor(image, kCheck), 0);
  EXPECT_EQ(PixelAt(image, 5, 5), kBox);

  box.setChecked(true);
  {
    ImageCanvas canvas(image);
    box.paint(canvas, Point{0, 0});
  }
  // The box is at (1, 0); the mark runs through (4, 7), (7, 10) and (16, 3).
  EXPECT_EQ(PixelAt(image, 4, 7), kCheck);
  EXPECT_EQ(PixelAt(image, 7, 10), kCheck);
  EXPECT_EQ(PixelAt(image, 16, 3), kCheck);
  EXPECT_EQ(PixelAt(image, 14, 14), kBoxChecked);
  EXPECT_EQ(PixelAt(image, 3, 3), kBoxChecked);
}

TEST(CheckBox, StateKeyCheckedRoundTripsSilently) {
  CheckBox box(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
  box.setChecked(true);
  ControlState state;
  box.captureState(state);
  ASSERT_NE(state.value(L"checked"), nullptr);
  EXPECT_EQ(*state.value(L"checked"), L"true");

  CheckBox restored(L"c", Rect{0, 0, 120, 24}, L"X", FlatStyle());
  int events = 0;
  restored.onValueChanged([&](ValueChangedEvent&) { ++events; });
  restored.applyState(state, false);
  EXPECT_TRUE(restored.checked());
  restored.applyExtraState({L"checked", L"false"});
  EXPECT_FALSE(restored.checked());
  EXPECT_EQ(events, 0);
}

TEST(CheckBox, TextThatDoesNotFitIsTheClippedText) {
  // 26 pixels go to the box; 9 points estimate 6 pixels a character.
  CheckBox narrow(L"c", Rect{0, 0, 26 + 30, 24}, L"REMEMBER ME", FlatStyle());
  CheckBox wide(L"c", Rect{0, 0, 26 + 80, 24}, L"REMEMBER ME", FlatStyle());
  EXPECT_EQ(narrow.clippedText(), L"REMEMBER ME");
  EXPECT_EQ(wide.clippedText(), L"");
}

}  // namespace
}  // namespace tessel
