// The look of each simple control kind painted with the first shipped skin, one small golden
// image per kind. Regenerate with STAYHOLD_REGENERATE_GOLDEN=1 after a deliberate change.
#include <gtest/gtest.h>

#include <string>

#include "tessel/controls/card.h"
#include "tessel/controls/check_box.h"
#include "tessel/controls/label.h"
#include "tessel/controls/progress_bar.h"
#include "tessel/controls/status_chip.h"
#include "tessel/controls/themed_button.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

const StyleSheet& Sheet() {
  static const StyleSheet sheet(
      parseSkinFile(SourceFile("skins/00-tessel-default-skins.json")).at(0));
  return sheet;
}

// The control painted on the skin's panel colour, against golden/<name>.pam.
::testing::AssertionResult Matches(Control& control, Size size, const char* name) {
  Image image = Image::blank(size.width, size.height);
  ImageCanvas canvas(image);
  canvas.fillRect(Rect{0, 0, size.width, size.height}, Sheet().theme().panel);
  control.paint(canvas, Point{0, 0});
  return MatchesGoldenImage(image, std::string("tests/tessel/controls/golden/") + name + ".pam", 2);
}

TEST(ControlsGolden, ButtonsInEachStateAndCheckBoxes) {
  Panel row(L"row", Rect{0, 0, 290, 32});
  const wchar_t* names[] = {L"NORMAL", L"HOT", L"PRESSED", L"ACTIVE", L"OFF"};
  for (int i = 0; i < 5; ++i) {
    auto* button = row.add<ThemedButton>(L"b", Rect{2 + i * 58, 2, 54, 28}, names[i],
                                         Sheet().buttons.get(L"primary"));
    button->setHot(i == 1);
    button->setPressed(i == 2);
    button->setActive(i == 3);
    button->setEnabled(i != 4);
  }
  EXPECT_TRUE(Matches(row, {292, 32}, "buttons"));
  Panel boxes(L"row", Rect{0, 0, 240, 24});
  const CheckBoxStyle& style = Sheet().checkBoxes.get(L"default");
  boxes.add<CheckBox>(L"a", Rect{0, 0, 110, 24}, L"OFF", style);
  boxes.add<CheckBox>(L"b", Rect{120, 0, 110, 24}, L"ON", style)->setChecked(true);
  EXPECT_TRUE(Matches(boxes, {240, 24}, "check_boxes"));
}

TEST(ControlsGolden, StatusChipProgressBarAndCardWithLabel) {
  StatusChip chip(L"s", Rect{0, 0, 160, 28}, L"GUARD ACTIVE", Sheet().statusChips.get(L"default"));
  EXPECT_TRUE(Matches(chip, {160, 28}, "status_chip"));
  ProgressBar bar(L"p", Rect{0, 0, 200, 24}, Sheet().progressBars.get(L"default"));
  bar.setValue(60);
  EXPECT_TRUE(Matches(bar, {200, 24}, "progress_bar"));
  Card card(L"c", Rect{0, 0, 200, 110}, L"PROFILE", Sheet().cards.get(L"default"));
  card.setSubtitle(L"WEEKDAYS");
  card.add<Label>(L"l", Rect{0, 20, 170, 16}, L"**RESTART** AT 13:00",
                  Sheet().text.get(L"default"));
  EXPECT_TRUE(Matches(card, {200, 110}, "card"));
}

}  // namespace
}  // namespace tessel
