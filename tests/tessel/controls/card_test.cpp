#include "tessel/controls/card.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/core/system_move.h"
#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kBody = rgbColor(10, 10, 10);
constexpr Color kHeader = rgbColor(30, 30, 30);

CardStyle FlatStyle() {
  CardStyle style;
  style.surface = FlatSurface(kBody);
  style.header = FlatSurface(kHeader);
  style.titleText = PlainText(rgbColor(250, 250, 250));
  style.subtitleText = PlainText(rgbColor(200, 200, 200));
  return style;  // header 34, padding 12
}

// Restores the process-wide hook after each test.
class CardTest : public ::testing::Test {
 protected:
  ~CardTest() override { setSystemMoveHook(nullptr); }
};

TEST_F(CardTest, ContentExcludesTheHeaderAndIsPadded) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", FlatStyle());
  EXPECT_EQ(card.contentBounds(), (Rect{12, 46, 176, 92}));
  EXPECT_EQ(card.contentRegions(), (std::vector<Rect>{{12, 46, 176, 92}}));
  EXPECT_EQ(card.geometryBands(3, 14), card.contentRegions());

  // The shape's child-layout insets apply before the padding; the header still wins.
  CardStyle inset = FlatStyle();
  inset.surface.childLayoutInsets = Insets{4, 10, 6, 8};
  card.setStyle(inset);
  EXPECT_EQ(card.contentBounds(), (Rect{16, 46, 166, 84}));
  inset.surface.childLayoutInsets = Insets{0, 40, 0, 0};
  card.setStyle(inset);
  EXPECT_EQ(card.contentBounds(), (Rect{12, 52, 176, 86}));
}

TEST_F(CardTest, ContentFollowsTheShapesBands) {
  CardStyle style = FlatStyle();
  style.surface.shape = ShapeKind::Hexagon;
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", style);
  const std::vector<Rect> regions = card.contentRegions();
  ASSERT_GT(regions.size(), 1u);
  for (const Rect& region : regions) {
    EXPECT_GE(region.y, 46);
    EXPECT_LE(region.bottom(), 138);
    EXPECT_GE(region.x, 12);
    EXPECT_LE(region.right(), 188);
  }
}

TEST_F(CardTest, ContentIsCutToTheCardsOwnContour) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", FlatStyle());
  card.setContourSpans({Rect{0, 0, 100, 150}});
  EXPECT_EQ(card.contentRegions(), (std::vector<Rect>{{12, 46, 88, 92}}));
  EXPECT_EQ(card.contentBounds(), (Rect{12, 46, 88, 92}));
}

TEST_F(CardTest, ChildrenAreLaidOutInTheBody) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", FlatStyle());
  Box* child = card.add<Box>(L"child", Rect{0, 0, 50, 20});
  EXPECT_EQ(child->bounds(), (Rect{12, 46, 50, 20}));
}

TEST_F(CardTest, PressingTheHeaderEmitsTheDragCommandThenMovesTheWindow) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", FlatStyle());
  std::vector<std::wstring> seen;
  card.onCommand([&](CommandEvent& event) { seen.push_back(event.command + L"=" + event.value); });
  setSystemMoveHook([&](Control& source) { seen.push_back(L"move " + source.id()); });

  card.setMousePosition(Point{50, 10});
  card.mouseDown();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"card.header-drag=header-drag", L"move card"}));

  seen.clear();
  card.setMousePosition(Point{50, 60});
  card.mouseDown();
  EXPECT_TRUE(seen.empty());

  card.setHeaderDragEnabled(false);
  card.setMousePosition(Point{50, 10});
  card.mouseDown();
  EXPECT_TRUE(seen.empty());
}

TEST_F(CardTest, AHandledHeaderDragDoesNotMoveTheWindow) {
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", FlatStyle());
  card.setCommandName(L"settings");
  int moves = 0;
  std::wstring command;
  card.onCommand([&](CommandEvent& event) {
    command = event.command;
    event.handled = true;
  });
  setSystemMoveHook([&](Control&) { ++moves; });
  card.setMousePosition(Point{5, 5});
  card.mouseDown();
  EXPECT_EQ(command, L"settings.header-drag");
  EXPECT_EQ(moves, 0);
}

TEST_F(CardTest, HeaderDragFollowsTheHeadersShape) {
  CardStyle style = FlatStyle();
  style.header.shape = ShapeKind::Capsule;
  Card card(L"card", Rect{0, 0, 200, 150}, L"TITLE", style);
  int commands = 0;
  card.onCommand([&](CommandEvent&) { ++commands; });
  card.setMousePosition(Point{0, 0});
  card.mouseDown();
  EXPECT_EQ(commands, 0);
  card.setMousePosition(Point{100, 17});
  card.mouseDown();
  EXPECT_EQ(commands, 1);
}

TEST_F(CardTest, ClippedTextDependsOnWhereThePointerIs) {
  // 200 - 2 * 12 = 176 pixels; 9 points estimate 6 pixels a character, so 30 characters clip.
  const std::wstring longText(30, L'A');
  Card card(L"card", Rect{0, 0, 200, 150}, longText, FlatStyle());
  card.setSubtitle(longText + L"B");
  struct Case {
    int32_t y;
    std::wstring clipped;
  };
  const Case kCases[] = {{0, longText},         {33, longText}, {34, longText + L"B"},
                         {53, longText + L"B"}, {54, L""},      {100, L""}};
  for (const Case& c : kCases) {
    card.setMousePosition(Point{20, c.y});
    EXPECT_EQ(card.clippedText(), c.clipped) << c.y;
  }
  card.setTitle(L"SHORT");
  card.setMousePosition(Point{20, 5});
  EXPECT_EQ(card.clippedText(), L"");
}

TEST_F(CardTest, PaintsBodyHeaderAndChildren) {
  Card card(L"card", Rect{0, 0, 100, 80}, L"", FlatStyle());
  card.add<Box>(L"child", Rect{0, 0, 10, 10}, rgbColor(0, 0, 255));
  Image image = Image::blank(100, 80);
  ImageCanvas canvas(image);
  card.paint(canvas, Point{0, 0});
  EXPECT_EQ(PixelAt(image, 1, 1), kHeader);
  EXPECT_EQ(PixelAt(image, 1, 78), kBody);
  EXPECT_EQ(PixelAt(image, 15, 50), rgbColor(0, 0, 255));
}

}  // namespace
}  // namespace tessel
