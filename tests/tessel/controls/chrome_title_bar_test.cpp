#include "tessel/controls/chrome_title_bar.h"

#include <gtest/gtest.h>

#include "tessel/core/system_move.h"
#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

ChromeTitleBarStyle PlainStyle() {
  ChromeTitleBarStyle style;
  style.surface.shape = ShapeKind::Rectangle;
  style.buttonWidth = 46;
  style.buttonHeight = 30;
  style.buttonGap = 0;
  style.titleLeft = 38;
  return style;
}

TEST(ChromeTitleBar, ButtonsFromTheRightAndTheTitleBeforeThem) {
  ChromeTitleBar bar(L"bar", Rect{0, 0, 400, 30}, L"Settings", PlainStyle());
  EXPECT_EQ(bar.button(kChromeClose).bounds(), (Rect{354, 0, 46, 30}));
  EXPECT_EQ(bar.button(kChromeMaximize).bounds(), (Rect{308, 0, 46, 30}));
  EXPECT_EQ(bar.button(kChromeMinimize).bounds(), (Rect{262, 0, 46, 30}));
  EXPECT_TRUE(bar.button(kChromeResetSize).bounds().empty());
  EXPECT_EQ(bar.titleRect(), (Rect{38, 0, 262 - 8 - 38, 30}));
  struct Probe {
    Point at;
    int32_t part;
  };
  const Probe probes[] = {{{380, 10}, kChromeClose},    {{320, 10}, kChromeMaximize},
                          {{270, 10}, kChromeMinimize}, {{100, 10}, kChromeCaption},
                          {{100, 40}, kChromeNothing},  {{-1, 10}, kChromeNothing}};
  for (const Probe& p : probes)
    EXPECT_EQ(bar.partAt(p.at), p.part) << p.at.x << "," << p.at.y;
}

TEST(ChromeTitleBar, WithEveryShowFlagOffOnlyCloseRemains) {
  ChromeTitleBar bar(L"bar", Rect{0, 0, 400, 30}, L"Notice", PlainStyle());
  bar.setShowMinimize(false);
  bar.setShowMaximize(false);
  bar.setShowResetSize(false);
  EXPECT_EQ(bar.partAt(Point{380, 10}), kChromeClose);
  EXPECT_EQ(bar.partAt(Point{320, 10}), kChromeCaption);
  EXPECT_EQ(bar.partAt(Point{270, 10}), kChromeCaption);
  EXPECT_EQ(bar.titleRect().right(), 354 - 8);
  bar.setShowResetSize(true);
  EXPECT_EQ(bar.partAt(Point{320, 10}), kChromeResetSize);
}

TEST(ChromeTitleBar, HeaderActionsNeverOverlapTheTitle) {
  ChromeTitleBarStyle style = PlainStyle();
  style.headerActionGap = 6;
  style.headerActionGroupGap = 12;
  ChromeTitleBar bar(L"bar", Rect{0, 0, 300, 30}, L"A long title", style);
  bar.setHeaderAction(0, {}, L"Pin", nullptr);
  EXPECT_EQ(bar.button(kChromeHeaderAction0).bounds(), (Rect{162 - 12 - 46, 0, 46, 30}));
  for (int32_t i = 1; i < 4; ++i)
    bar.setHeaderAction(i, {}, L"Action", nullptr);
  EXPECT_EQ(bar.headerActionCount(), 4);
  EXPECT_GE(bar.titleRect().width, 0);
  EXPECT_EQ(bar.titleRect().width, 0);  // the actions ran over it: nothing is left
  EXPECT_EQ(bar.partAt(Point{104 + 10, 10}), kChromeHeaderAction0);
}

TEST(ChromeTitleBar, ButtonsReachTheHandlersAsHandledCommands) {
  ChromeTitleBar bar(L"bar", Rect{0, 0, 400, 30}, L"Settings", PlainStyle());
  int closes = 0, maximizes = 0;
  bar.setOnClose([&](CommandEvent&) { ++closes; });
  bar.setOnMaximize([&](CommandEvent&) { ++maximizes; });
  bool handledSeen = false;
  // Connected after the bar's own handler, so it sees what the bar did with the command.
  bar.button(kChromeClose).onCommand([&](CommandEvent& e) { handledSeen = e.handled; });
  bar.button(kChromeClose).clicked();
  EXPECT_EQ(closes, 1);
  EXPECT_TRUE(handledSeen);
  bar.setMaximizeEnabled(false);
  bar.button(kChromeMaximize).clicked();
  EXPECT_EQ(maximizes, 0);  // disabled: nothing, yet handled
  bar.setMaximizeEnabled(true);
  bar.button(kChromeMaximize).clicked();
  EXPECT_EQ(maximizes, 1);
}

TEST(ChromeTitleBar, ItsOwnClickComposesTheCommand) {
  ChromeTitleBar bar(L"settings-title", Rect{0, 0, 400, 30}, L"Settings", PlainStyle());
  std::vector<std::wstring> commands;
  bar.onCommand([&](CommandEvent& e) { commands.push_back(e.command + L"=" + e.value); });
  int maximizes = 0;
  bar.setOnMaximize([&](CommandEvent&) { ++maximizes; });
  bar.setMousePosition(Point{320, 10});
  bar.clicked();
  bar.setMaximized(true);
  bar.clicked();
  bar.setMousePosition(Point{100, 10});  // the caption composes nothing
  bar.clicked();
  const std::vector<std::wstring> expected = {L"settings-title.maximize=maximize",
                                              L"settings-title.restore=restore"};
  EXPECT_EQ(commands, expected);
  EXPECT_EQ(maximizes, 2);
}

TEST(ChromeTitleBar, DraggingTheCaptionHandsTheMoveToTheSystem) {
  ChromeTitleBar bar(L"bar", Rect{0, 0, 400, 30}, L"Settings", PlainStyle());
  int moves = 0;
  setSystemMoveHook([&](Control& source) {
    EXPECT_EQ(&source, &bar);
    ++moves;
  });
  std::wstring seen;
  bool take = false;
  bar.onCommand([&](CommandEvent& e) {
    seen = e.command + L"/" + e.value + L"/" + e.source;
    e.handled = take;
  });
  bar.setMousePosition(Point{100, 10});
  bar.mouseDown();
  EXPECT_EQ(seen, L"bar.drag/drag/chrome-drag");
  EXPECT_EQ(moves, 1);
  take = true;
  bar.mouseDown();
  EXPECT_EQ(moves, 1);  // taken by a handler: no system move
  bar.setMousePosition(Point{380, 10});
  take = false;
  bar.mouseDown();  // on a button: no drag at all
  EXPECT_EQ(moves, 1);
  setSystemMoveHook(nullptr);
}

TEST(ChromeTitleBar, PulseBreathesBetween188And255) {
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(0), 188);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(800), 255);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(200), 198);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(1600), 188);
}

TEST(ChromeTitleBar, PaintsItsSurfaceAndGlyphs) {
  ChromeTitleBarStyle style = PlainStyle();
  style.surface.fill = rgbColor(20, 30, 40);
  style.surface.drawBorder = false;
  style.titleButton.surface.normal.drawFill = false;
  style.titleButton.surface.normal.drawBorder = false;
  ChromeTitleBar bar(L"bar", Rect{0, 0, 400, 30}, L"SETTINGS", style);
  Image image = Image::blank(400, 30);
  ImageCanvas canvas(image);
  bar.paint(canvas, Point{});
  const uint8_t* ground = image.pixel(200, 2);
  EXPECT_EQ(ground[2], 20);
  // The close glyph shows over its button: some pixel there differs from the ground.
  int marked = 0;
  for (int32_t y = 0; y < 30; ++y)
    for (int32_t x = 354; x < 400; ++x)
      marked += image.pixel(x, y)[2] != 20;
  EXPECT_GT(marked, 10);
}

}  // namespace
}  // namespace tessel
