#include "tessel/controls/label.h"

#include <gtest/gtest.h>

#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kText = rgbColor(250, 250, 250);

Image Painted(const wchar_t* text, int32_t alignment = kAlignLeft, int32_t format = 1) {
  Label label(L"l", Rect{0, 0, 100, 20}, text, PlainText(kText));
  label.setAlignment(alignment);
  label.setTextFormat(format);
  return PaintedImage(label, {100, 20});
}

TEST(Label, AlignsTheLineAndPaintsMarkupWithoutItsMarks) {
  // "AB" is 11 pixels wide in the stand-in font.
  EXPECT_EQ(ColumnsOf(Painted(L"AB", kAlignCenter), kText), (std::pair{44, 54}));
  // Text of several spans is placed span by span, yet ends at the right edge all the same.
  EXPECT_EQ(ColumnsOf(Painted(L"**A**B", kAlignRight), kText).second, 99);
  // The stand-in font has no bold, so bold text paints as plain text does; as plain text the
  // stars are drawn.
  EXPECT_TRUE(CompareImages(Painted(L"**AB** CD"), Painted(L"AB CD"), "label", 0));
  EXPECT_FALSE(CompareImages(Painted(L"**AB** CD", kAlignLeft, 0), Painted(L"AB CD"), "label", 0));
}

TEST(Label, TakesThePointerOnlyWithATooltipOrClippedText) {
  Panel root(L"root", Rect{0, 0, 200, 100});
  Box* below = root.add<Box>(L"below", Rect{0, 0, 200, 100});
  Label* label = root.add<Label>(L"label", Rect{10, 10, 60, 40}, L"HELLO", PlainText(kText));
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{}), below);
  label->setTooltip(L"more");
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{}), label);
  label->setTooltip(L"");
  label->setText(L"**OK**\nA MUCH LONGER LINE");
  EXPECT_EQ(label->clippedText(), L"OK\nA MUCH LONGER LINE");  // the plain text of it all
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{}), label);
  label->setEnabled(false);
  EXPECT_GE(ColumnsOf(PaintedImage(*label, {60, 40}), kText ^ 0x00FFFFFFu).second, 0);
  EXPECT_TRUE(applyStyleId(StyleSheet{Theme{}}, *label, L"muted"));
}

}  // namespace
}  // namespace tessel
