#include "tessel/controls/bitmap_button.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

TEST(BitmapButton, ClicksHitOnlyWhereTheImageIsOpaque) {
  BitmapButtonImages images;
  images.normal = Image::blank(2, 1);
  images.normal.pixel(1, 0)[3] = 255;  // the right half is opaque
  BitmapButton button(L"b", Rect{0, 0, 20, 10}, images, L"", BitmapButtonStyle{});
  EXPECT_FALSE(button.containsPoint(Point{3, 5}));
  EXPECT_TRUE(button.containsPoint(Point{15, 5}));
}

}  // namespace
}  // namespace tessel
