#include "tessel/controls/chrome_title_bar.h"

#include <gtest/gtest.h>

#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

// Buttons of 46 x 30 without gaps, the title from 38; a 400 x 30 bar.
ChromeTitleBar Bar(const wchar_t* id = L"bar") {
  ChromeTitleBarStyle style;
  style.surface.shape = ShapeKind::Rectangle;
  style.buttonWidth = 46;
  style.buttonHeight = 30;
  style.buttonGap = 0;
  style.titleLeft = 38;
  style.headerActionGap = 6;
  style.headerActionGroupGap = 12;
  return ChromeTitleBar(id, Rect{0, 0, 400, 30}, L"Settings", style);
}

TEST(ChromeTitleBar, ButtonsFromTheRightThenHeaderActionsThenTheTitle) {
  ChromeTitleBar bar = Bar();
  EXPECT_EQ(bar.button(kChromeMinimize).bounds(), (Rect{262, 0, 46, 30}));
  EXPECT_TRUE(bar.button(kChromeResetSize).bounds().empty());
  EXPECT_EQ(bar.titleRect(), (Rect{38, 0, 262 - 8 - 38, 30}));
  const std::pair<Point, int32_t> probes[] = {
      {{354, 10}, kChromeClose},   {{353, 10}, kChromeMaximize}, {{262, 10}, kChromeMinimize},
      {{261, 10}, kChromeCaption}, {{100, 30}, kChromeNothing},  {{400, 10}, kChromeNothing}};
  for (const auto& [at, part] : probes)
    EXPECT_EQ(bar.partAt(at), part) << at.x << "," << at.y;

  bar.setShowMaximize(false);
  EXPECT_EQ(bar.partAt(Point{320, 10}), kChromeMinimize);
  bar.setShowMaximize(true);
  bar.setShowResetSize(true);  // the reset button sits left of the minimise button at 216
  EXPECT_EQ(bar.partAt(Point{230, 10}), kChromeResetSize);
  bar.setHeaderAction(0, {}, L"Pin", nullptr);
  EXPECT_EQ(bar.button(kChromeHeaderAction0).bounds(), (Rect{216 - 12 - 46, 0, 46, 30}));
  EXPECT_EQ(bar.partAt(Point{160, 10}), kChromeHeaderAction0);
  for (int32_t i = 1; i < 4; ++i)
    bar.setHeaderAction(i, {}, L"Action", nullptr);
  EXPECT_EQ(bar.button(kChromeHeaderAction0 + 3).bounds().x, 158 - 3 * 52);
  EXPECT_EQ(bar.partAt(Point{10, 10}), kChromeHeaderAction0 + 3);
  EXPECT_EQ(bar.titleRect().width, 0);  // the actions ran over it: nothing is left
}

TEST(ChromeTitleBar, ClicksAndCaptionDragsBecomeCommandsNamedByPart) {
  ChromeTitleBar bar = Bar(L"title");
  std::vector<std::wstring> seen;
  const MoveRecorder moves(seen);
  bool take = false;
  bar.onCommand([&](CommandEvent& e) {
    seen.push_back(e.command + L"=" + e.value);
    e.handled = take;
  });
  bar.setOnMaximize([&](CommandEvent&) { seen.push_back(L"maximize handler"); });
  bar.setOnClose([&](CommandEvent& e) { seen.push_back(L"close handler " + e.value); });
  bar.setMousePosition(Point{320, 10});
  bar.clicked();
  bar.setMaximized(true);
  bar.clicked();
  bar.setMousePosition(Point{100, 10});  // the caption composes nothing on a click
  bar.clicked();
  bar.mouseDown();  // but drags
  take = true;      // taken by a handler: no system move
  bar.mouseDown();
  bar.setMousePosition(Point{380, 10});
  bar.mouseDown();                // on a button: no drag at all
  bar.setMaximizeEnabled(false);  // disabled: nothing, yet handled
  bar.button(kChromeMaximize).clicked();
  // A button's own click reaches the handler, and later listeners see it handled.
  bar.button(kChromeClose).onCommand([&](CommandEvent& e) { EXPECT_TRUE(e.handled); });
  bar.button(kChromeClose).clicked();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"title.maximize=maximize", L"maximize handler",
                                             L"title.restore=restore", L"maximize handler",
                                             L"title.drag=drag", L"move title", L"title.drag=drag",
                                             L"close handler "}));
}

}  // namespace
}  // namespace tessel
