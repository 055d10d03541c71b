#include "tessel/controls/progress_bar.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kFrame = rgbColor(10, 10, 10);
constexpr Color kTrack = rgbColor(20, 20, 20);
constexpr Color kFill = rgbColor(0, 160, 0);

ProgressBarStyle FlatStyle() {
  ProgressBarStyle style;
  style.frame = FlatSurface(kFrame);
  style.track = FlatSurface(kTrack);
  style.fill = FlatSurface(kFill);
  style.labelText = PlainText(rgbColor(250, 250, 250));
  return style;
}

TEST(ProgressBar, LayoutOfTrackFillAndLabelColumn) {
  struct Case {
    const char* what;
    int32_t labelWidth;
    Rect frame;
    int32_t value;
    bool showText;
    ProgressBarLayout layout;
  };
  // Insets 3 and 3, label padding 8.
  const Case kCases[] = {
      {"label width given",
       48,
       {0, 0, 206, 24},
       50,
       true,
       {{3, 3, 152, 18}, {3, 3, 76, 18}, {155, 3, 40, 18}}},
      {"no text, no column", 48, {0, 0, 206, 24}, 25, false, {{3, 3, 200, 18}, {3, 3, 50, 18}, {}}},
      {"column from a third of the track height",
       0,
       {0, 0, 206, 24},
       100,
       true,
       {{3, 3, 194, 18}, {3, 3, 194, 18}, {197, 3, -2, 18}}},
      {"column capped at half the track",
       48,
       {0, 0, 46, 24},
       100,
       true,
       {{3, 3, 20, 18}, {3, 3, 20, 18}, {23, 3, 12, 18}}},
      {"zero paints no fill",
       48,
       {0, 0, 206, 24},
       0,
       true,
       {{3, 3, 152, 18}, {}, {155, 3, 40, 18}}},
      {"beyond 100 fills the track",
       48,
       {10, 10, 206, 24},
       140,
       true,
       {{13, 13, 152, 18}, {13, 13, 152, 18}, {165, 13, 40, 18}}},
  };
  for (const Case& c : kCases) {
    ProgressBarStyle style = FlatStyle();
    style.labelWidth = c.labelWidth;
    const ProgressBarLayout layout = progressBarLayout(style, c.frame, c.value, c.showText);
    EXPECT_EQ(layout.track, c.layout.track) << c.what;
    EXPECT_EQ(layout.fill, c.layout.fill) << c.what;
    EXPECT_EQ(layout.label, c.layout.label) << c.what;
  }
}

TEST(ProgressBar, AtZeroNoFillIsPainted) {
  ProgressBar bar(L"p", Rect{0, 0, 120, 20}, FlatStyle());
  Image image = Image::blank(120, 20);
  {
    ImageCanvas canvas(image);
    bar.paint(canvas, Point{0, 0});
  }
  EXPECT_EQ(CountColor(image, kFill), 0);
  EXPECT_EQ(PixelAt(image, 5, 10), kTrack);

  bar.setValue(1);
  {
    ImageCanvas canvas(image);
    bar.paint(canvas, Point{0, 0});
  }
  // 1 % of a 66 pixel track is nothing either; 2 % is one column.
  EXPECT_EQ(CountColor(image, kFill), 0);
  bar.setValue(50);
  {
    ImageCanvas canvas(image);
    bar.paint(canvas, Point{0, 0});
  }
  EXPECT_EQ(CountColor(image, kFill), 33 * 14);
}

TEST(ProgressBar, ValueRestoredFromStateIsClamped) {
  struct Case {
    const wchar_t* text;
    int32_t value;
  };
  const Case kCases[] = {{L"42", 42}, {L"150", 100}, {L"-5", 0}, {L"abc", 7}, {L"", 7}};
  for (const Case& c : kCases) {
    ProgressBar bar(L"p", Rect{0, 0, 120, 20}, FlatStyle());
    bar.setValue(7);
    bar.applyExtraState({L"value", c.text});
    EXPECT_EQ(bar.value(), c.value) << c.text;
  }
  ProgressBar bar(L"p", Rect{0, 0, 120, 20}, FlatStyle());
  bar.setValue(64);
  ControlState state;
  bar.captureState(state);
  ASSERT_NE(state.value(L"value"), nullptr);
  EXPECT_EQ(*state.value(L"value"), L"64");
}

TEST(ProgressBar, LabelIsClippedWhenItsColumnIsTooNarrow) {
  ProgressBar wide(L"p", Rect{0, 0, 206, 24}, FlatStyle());
  wide.setValue(100);
  EXPECT_EQ(wide.clippedText(), L"");
  ProgressBarStyle narrowStyle = FlatStyle();
  narrowStyle.labelWidth = 20;
  ProgressBar narrow(L"p", Rect{0, 0, 206, 24}, narrowStyle);
  narrow.setValue(100);
  EXPECT_EQ(narrow.clippedText(), L"100%");
  narrow.setShowText(false);
  EXPECT_EQ(narrow.clippedText(), L"");
}

}  // namespace
}  // namespace tessel
