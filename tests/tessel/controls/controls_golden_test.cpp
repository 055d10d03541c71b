// The look of each simple control kind painted with the first shipped skin, one small golden
// image per kind. Regenerate with STAYHOLD_REGENERATE_GOLDEN=1 after a deliberate change.
#include <gtest/gtest.h>

#include <memory>
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

class ControlsGolden : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto skins = parseSkinFile(SourceFile("skins/00-tessel-default-skins.json"));
    ASSERT_FALSE(skins.empty());
    sheet_ = std::make_unique<StyleSheet>(skins.front());
  }
  // The controls painted side by side on the skin's panel colour.
  Image Paint(Control& control, Size size) {
    Image image = Image::blank(size.width, size.height);
    ImageCanvas canvas(image);
    canvas.fillRect(Rect{0, 0, size.width, size.height}, sheet_->theme().panel);
    control.paint(canvas, Point{0, 0});
    return image;
  }
  std::string Golden(const char* name) {
    return std::string("tests/tessel/controls/golden/") + name + ".pam";
  }
  std::unique_ptr<StyleSheet> sheet_;
};

TEST_F(ControlsGolden, ButtonsInEachState) {
  Panel row(L"row", Rect{0, 0, 290, 32});
  const wchar_t* names[] = {L"NORMAL", L"HOT", L"PRESSED", L"ACTIVE", L"OFF"};
  for (int i = 0; i < 5; ++i) {
    auto* button = row.add<ThemedButton>(L"b", Rect{2 + i * 58, 2, 54, 28}, names[i],
                                         sheet_->buttons.get(L"primary"));
    if (i == 1) button->setHot(true);
    if (i == 2) button->setPressed(true);
    if (i == 3) button->setActive(true);
    if (i == 4) button->setEnabled(false);
  }
  EXPECT_TRUE(MatchesGoldenImage(Paint(row, {292, 32}), Golden("buttons"), 2));
}

TEST_F(ControlsGolden, CheckBoxes) {
  Panel row(L"row", Rect{0, 0, 240, 24});
  row.add<CheckBox>(L"a", Rect{0, 0, 110, 24}, L"OFF", sheet_->checkBoxes.get(L"default"));
  auto* on =
      row.add<CheckBox>(L"b", Rect{120, 0, 110, 24}, L"ON", sheet_->checkBoxes.get(L"default"));
  on->setChecked(true);
  EXPECT_TRUE(MatchesGoldenImage(Paint(row, {240, 24}), Golden("check_boxes"), 2));
}

TEST_F(ControlsGolden, StatusChip) {
  StatusChip chip(L"s", Rect{0, 0, 160, 28}, L"GUARD ACTIVE", sheet_->statusChips.get(L"default"));
  EXPECT_TRUE(MatchesGoldenImage(Paint(chip, {160, 28}), Golden("status_chip"), 2));
}

TEST_F(ControlsGolden, ProgressBar) {
  ProgressBar bar(L"p", Rect{0, 0, 200, 24}, sheet_->progressBars.get(L"default"));
  bar.setValue(60);
  EXPECT_TRUE(MatchesGoldenImage(Paint(bar, {200, 24}), Golden("progress_bar"), 2));
}

TEST_F(ControlsGolden, CardWithLabel) {
  Card card(L"c", Rect{0, 0, 200, 110}, L"PROFILE", sheet_->cards.get(L"default"));
  card.setSubtitle(L"WEEKDAYS");
  card.add<Label>(L"l", Rect{0, 20, 170, 16}, L"**RESTART** AT 13:00",
                  sheet_->text.get(L"default"));
  EXPECT_TRUE(MatchesGoldenImage(Paint(card, {200, 110}), Golden("card"), 2));
}

}  // namespace
}  // namespace tessel
