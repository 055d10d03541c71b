#include "tessel/controls/card.h"

#include <gtest/gtest.h>

#include <string>
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
  Box* child = card.add<Box>(L"child", Rect{0, 0, 50, 20});
  EXPECT_EQ(child->bounds(), (Rect{12, 46, 50, 20}));
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

TEST(Card, PressingTheHeaderEmitsTheDragCommandThenMovesTheWindow) {
  CardStyle style = Style();
  style.header.shape = ShapeKind::Capsule;
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", style);
  std::vector<std::wstring> seen;
  const MoveRecorder moves(seen);
  bool take = false;
  card.onCommand([&](CommandEvent& event) {
    seen.push_back(event.command + L"=" + event.value);
    event.handled = take;
  });
  for (const Point at : {Point{100, 17}, Point{0, 0}, Point{100, 60}}) {  // capsule corner, body
    card.setMousePosition(at);
    card.mouseDown();
  }
  take = true;  // a handled drag doesn't move
  card.setMousePosition(Point{100, 5});
  card.mouseDown();
  card.setHeaderDragEnabled(false);
  card.mouseDown();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"card.header-drag=header-drag", L"move card",
                                             L"card.header-drag=header-drag"}));
}

}  // namespace
}  // namespace tessel
