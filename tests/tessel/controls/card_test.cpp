#include "tessel/controls/card.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

// Header 34, padding 12.
CardStyle Style() {
  CardStyle style;
  style.titleText = PlainText(rgbColor(250, 250, 250));
  return style;
}

TEST(Card, ChildrenGoInThePaddedBodyBelowTheHeaderCutToShapeAndContour) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", Style());
  // The shape's child-layout insets apply before the padding; the header still wins.
  CardStyle style = Style();
  style.surface.childLayoutInsets = Insets{0, 40, 0, 0};
  card.setStyle(style);
  EXPECT_EQ(card.contentBounds(), (Rect{12, 52, 176, 86}));

  style = Style();
  style.surface.shape = ShapeKind::Hexagon;
  Card shaped(L"card", Rect{0, 0, 200, 150}, L"TITLE", style);
  const std::vector<Rect> regions = shaped.contentRegions();
  ASSERT_GT(regions.size(), 1u);
  for (const Rect& region : regions)
    EXPECT_TRUE(region.x >= 12 && region.y >= 46 && region.right() <= 188 &&
                region.bottom() <= 138);
}

}  // namespace
}  // namespace tessel
