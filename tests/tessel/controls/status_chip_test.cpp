#include "tessel/controls/status_chip.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kChip = rgbColor(10, 10, 10);
constexpr Color kBadge = rgbColor(0, 180, 0);
constexpr Color kText = rgbColor(250, 250, 250);

StatusChip Chip(const wchar_t* text) {
  StatusChipStyle style;
  style.surface = FlatSurface(kChip);
  style.badge = FlatSurface(kBadge);
  style.text = PlainText(kText);
  return StatusChip(L"s", Rect{0, 0, 120, 30}, text, style);
}

TEST(StatusChip, TheBadgeIsCentredVerticallyAndTheTextEndsEightPixelsEarly) {
  StatusChip chip = Chip(L"ON");
  EXPECT_EQ(chip.badgeRect(Rect{5, 5, 120, 30}), (Rect{15, 15, 10, 10}));
  EXPECT_EQ(chip.textRect(Rect{5, 5, 120, 30}), (Rect{33, 5, 84, 30}));
  Image image = PaintedImage(chip, {120, 30});
  EXPECT_EQ(CountColor(image, kBadge), 100);
  EXPECT_EQ(PixelAt(image, 10, 10), kBadge);
  EXPECT_GT(CountColor(image, kText), 0);
  chip.setEnabled(false);
  image = PaintedImage(chip, {120, 30});
  EXPECT_EQ(CountColor(image, kText), 0);
  EXPECT_GT(CountColor(image, kText ^ 0x00FFFFFFu), 0);
}

TEST(StatusChip, TakesThePointerOnlyWithSomethingToShow) {
  StatusChip chip = Chip(L"ON");
  EXPECT_FALSE(chip.containsPoint(Point{50, 15}));
  chip.tooltipActions().push_back(TooltipAction{L"open", L"", false});
  EXPECT_TRUE(chip.containsPoint(Point{50, 15}));
  EXPECT_FALSE(chip.containsPoint(Point{130, 15}));
  // 120 - 28 - 8 = 84 pixels; 15 characters estimate 90.
  StatusChip clipped = Chip(L"GUARD IS ACTIVE");
  EXPECT_EQ(clipped.clippedText(), L"GUARD IS ACTIVE");
  EXPECT_TRUE(clipped.containsPoint(Point{50, 15}));
}

}  // namespace
}  // namespace tessel
