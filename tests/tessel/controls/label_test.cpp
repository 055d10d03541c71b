#include "tessel/controls/label.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tessel/skin/style_sheet.h"
#include "tests/support/golden_image.h"
#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kText = rgbColor(250, 250, 250);

Image Paint(Label& label, Size size) {
  Image image = Image::blank(size.width, size.height);
  ImageCanvas canvas(image);
  label.paint(canvas, Point{0, 0});
  return image;
}

// The leftmost and rightmost columns holding text.
std::pair<int, int> TextColumns(const Image& image) {
  int left = image.width, right = -1;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      if (PixelAt(image, x, y) == kText) {
        left = std::min(left, x);
        right = std::max(right, x);
      }
    }
  }
  return {left, right};
}

TEST(Label, IsStaticTextWithMarkupByDefault) {
  Label label(L"l", Rect{0, 0, 100, 20}, L"A", PlainText(kText));
  EXPECT_TRUE(label.isStaticText());
  EXPECT_EQ(label.textFormat(), 1);
}

TEST(Label, AlignmentPlacesTheLine) {
  // "AB" is 11 pixels wide in the stand-in font.
  struct Case {
    int32_t alignment;
    int left;
    int right;
  };
  const Case kCases[] = {{kAlignLeft, 0, 10}, {kAlignCenter, 44, 54}, {kAlignRight, 89, 99}};
  for (const Case& c : kCases) {
    Label label(L"l", Rect{0, 0, 100, 20}, L"AB", PlainText(kText));
    label.setAlignment(c.alignment);
    const auto [left, right] = TextColumns(Paint(label, {100, 20}));
    EXPECT_EQ(left, c.left) << c.alignment;
    EXPECT_EQ(right, c.right) << c.alignment;
  }
}

TEST(Label, WithoutTooltipOrClippedTextAClickFallsThrough) {
  Panel root(L"root", Rect{0, 0, 200, 100});
  Box* below = root.add<Box>(L"below", Rect{0, 0, 200, 100});
  Label* label = root.add<Label>(L"label", Rect{10, 10, 100, 20}, L"HELLO", PlainText(kText));
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{0, 0}), below);

  label->setTooltip(L"more");
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{0, 0}), label);

  label->setTooltip(L"");
  label->setText(L"A TEXT MUCH TOO LONG FOR THE LABEL");
  EXPECT_EQ(root.hitTest(Point{20, 15}, Point{0, 0}), label);
}

TEST(Label, ClippedTextIsThePlainTextOfAnyLineTooWide) {
  Label label(L"l", Rect{0, 0, 60, 40}, L"**OK**\nA MUCH LONGER LINE", PlainText(kText));
  EXPECT_EQ(label.clippedText(), L"OK\nA MUCH LONGER LINE");
  label.setText(L"**OK**\nFINE");
  EXPECT_EQ(label.clippedText(), L"");
}

TEST(Label, MarkupIsPaintedWithoutItsMarks) {
  // The stand-in font has no bold, so bold text paints as plain text does.
  Label marked(L"l", Rect{0, 0, 100, 20}, L"**AB** CD", PlainText(kText));
  Label plain(L"l", Rect{0, 0, 100, 20}, L"AB CD", PlainText(kText));
  EXPECT_TRUE(CompareImages(Paint(marked, {100, 20}), Paint(plain, {100, 20}), "label", 0));

  // As plain text, the stars are drawn.
  marked.setTextFormat(0);
  EXPECT_FALSE(CompareImages(Paint(marked, {100, 20}), Paint(plain, {100, 20}), "label", 0));
}

TEST(Label, DisabledTextTakesTheDisabledColour) {
  Label label(L"l", Rect{0, 0, 100, 20}, L"AB", PlainText(kText));
  label.setEnabled(false);
  const Image image = Paint(label, {100, 20});
  EXPECT_EQ(CountColor(image, kText), 0);
  EXPECT_GT(CountColor(image, kText ^ 0x00FFFFFFu), 0);
}

TEST(Label, ApplySkinTakesTheSheetsTextStyle) {
  const StyleSheet sheet{Theme{}};
  Label label(L"l", Rect{0, 0, 100, 20}, L"AB", PlainText(kText));
  label.setStyleId(L"missing");
  EXPECT_FALSE(label.applySkin(sheet));
  EXPECT_EQ(label.style().color, kText);
  label.setStyleId(L"muted");
  EXPECT_TRUE(label.applySkin(sheet));
  EXPECT_EQ(label.style(), sheet.text.get(L"muted"));
}

}  // namespace
}  // namespace tessel
