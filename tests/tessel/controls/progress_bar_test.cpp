#include "tessel/controls/progress_bar.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

// Insets 3 and 3, label padding 8.
ProgressBarStyle Style(int32_t labelWidth = 48) {
  ProgressBarStyle style;
  style.labelText = PlainText(rgbColor(250, 250, 250));
  style.labelWidth = labelWidth;
  return style;
}

TEST(ProgressBar, LayoutOfTrackFillAndLabelColumn) {
  struct Case {
    int32_t labelWidth;
    Rect frame;
    int32_t value;
    bool showText;
    Rect track, fill, label;
  };
  const Case cases[] = {
      {48, {0, 0, 206, 24}, 25, false, {3, 3, 200, 18}, {3, 3, 50, 18}, {}},  // no text, no column
      // Without a width the column is a third of the track's height; at most half the track.
      {0, {0, 0, 206, 24}, 100, true, {3, 3, 194, 18}, {3, 3, 194, 18}, {197, 3, -2, 18}},
      {48, {0, 0, 46, 24}, 100, true, {3, 3, 20, 18}, {3, 3, 20, 18}, {23, 3, 12, 18}},
      {48, {10, 10, 206, 24}, 140, true, {13, 13, 152, 18}, {13, 13, 152, 18}, {165, 13, 40, 18}}};
  for (const Case& c : cases) {
    const ProgressBarLayout layout =
        progressBarLayout(Style(c.labelWidth), c.frame, c.value, c.showText);
    EXPECT_EQ(layout.track, c.track) << c.value;
    EXPECT_EQ(layout.fill, c.fill) << c.value;
    EXPECT_EQ(layout.label, c.label) << c.value;
  }
}

TEST(ProgressBar, ValueRestoredFromStateIsClampedAndTheLabelClips) {
  const std::pair<const wchar_t*, int32_t> cases[] = {{L"150", 100}, {L"-5", 0}, {L"abc", 7}};
  for (const auto& [text, value] : cases) {
    ProgressBar bar(L"p", Rect{0, 0, 206, 24}, Style());
    bar.setValue(7);
    bar.applyExtraState({L"value", text});
    EXPECT_EQ(bar.value(), value) << text;
  }
  ProgressBar bar(L"p", Rect{0, 0, 206, 24}, Style(20));
  bar.setValue(100);
  ControlState state;
  bar.captureState(state);
  EXPECT_EQ(state.values, (std::vector<StateValue>{{L"value", L"100"}}));
  EXPECT_EQ(bar.clippedText(), L"100%");
  bar.setShowText(false);
  EXPECT_EQ(bar.clippedText(), L"");
}

}  // namespace
}  // namespace tessel
