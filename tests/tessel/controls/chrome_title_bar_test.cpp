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
      {{399, 29}, kChromeClose},    {{354, 10}, kChromeClose},   {{353, 10}, kChromeMaximize},
      {{270, 10}, kChromeMinimize}, {{261, 10}, kChromeCaption}, {{100, 30}, kChromeNothing},
      {{-1, 10}, kChromeNothing},   {{400, 10}, kChromeNothing}};
  for (const auto& [at, part] : probes)
    EXPECT_EQ(bar.partAt(at), part) << at.x << "," << at.y;

  bar.setShowMinimize(false);
  bar.setShowMaximize(false);
  EXPECT_EQ(bar.partAt(Point{320, 10}), kChromeCaption);
  EXPECT_EQ(bar.titleRect().right(), 354 - 8);
  bar.setShowResetSize(true);
  EXPECT_EQ(bar.partAt(Point{320, 10}), kChromeResetSize);
  bar.setShowMinimize(true);
  bar.setShowMaximize(true);  // the reset button now sits left of the minimise button at 216
  bar.setHeaderAction(0, {}, L"Pin", nullptr);
  EXPECT_EQ(bar.button(kChromeHeaderAction0).bounds(), (Rect{216 - 12 - 46, 0, 46, 30}));
  EXPECT_EQ(bar.partAt(Point{160, 10}), kChromeHeaderAction0);
  for (int32_t i = 1; i < 4; ++i)
    bar.setHeaderAction(i, {}, L"Action", nullptr);
  EXPECT_EQ(bar.button(kChromeHeaderAction0 + 3).bounds().x, 158 - 3 * 52);
  EXPECT_EQ(bar.partAt(Point{10, 10}), kChromeHeaderAction0 + 3);
  EXPECT_EQ(bar.titleRect().width, 0);  // the actions ran over it: nothing is left
}

TEST(ChromeTitleBar, ClicksReachTheHandlersAsCommandsNamedByPart) {
  ChromeTitleBar bar = Bar(L"settings-title");
  std::vector<std::wstring> seen;
  bar.onCommand([&](CommandEvent& e) { seen.push_back(e.command + L"=" + e.value); });
  bar.setOnMaximize([&](CommandEvent&) { seen.push_back(L"maximize handler"); });
  bar.setOnClose([&](CommandEvent& e) { seen.push_back(L"close handler " + e.value); });
  bar.setMousePosition(Point{320, 10});
  bar.clicked();
  bar.setMaximized(true);
  bar.clicked();
  bar.setMousePosition(Point{100, 10});  // the caption composes nothing
  bar.clicked();
  bar.setMaximizeEnabled(false);  // disabled: nothing, yet handled
  bar.button(kChromeMaximize).clicked();
  // A button's own click reaches the handler, and later listeners see it handled.
  bar.button(kChromeClose).onCommand([&](CommandEvent& e) { EXPECT_TRUE(e.handled); });
  bar.button(kChromeClose).clicked();
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"settings-title.maximize=maximize",
                                             L"maximize handler", L"settings-title.restore=restore",
                                             L"maximize handler", L"close handler "}));
}

TEST(ChromeTitleBar, DraggingTheCaptionHandsTheMoveToTheSystem) {
  ChromeTitleBar bar = Bar();
  std::vector<std::wstring> seen;
  const MoveRecorder moves(seen);
  bool take = false;
  bar.onCommand([&](CommandEvent& e) {
    seen.push_back(e.command + L"/" + e.value + L"/" + e.source);
    e.handled = take;
  });
  bar.setMousePosition(Point{100, 10});
  bar.mouseDown();
  take = true;  // taken by a handler: no system move
  bar.mouseDown();
  bar.setMousePosition(Point{380, 10});
  bar.mouseDown();  // on a button: no drag at all
  EXPECT_EQ(seen, (std::vector<std::wstring>{L"bar.drag/drag/chrome-drag", L"move bar",
                                             L"bar.drag/drag/chrome-drag"}));
}

TEST(ChromeTitleBar, PaintsItsSurfaceAndGlyphsAndPulsesBetween188And255) {
  ChromeTitleBar bar = Bar();
  ChromeTitleBarStyle style = bar.style();
  style.surface.fill = rgbColor(20, 30, 40);
  style.surface.drawBorder = false;
  style.titleButton.surface.normal.drawFill = false;
  style.titleButton.surface.normal.drawBorder = false;
  bar.setStyle(style);
  const Image image = PaintedImage(bar, {400, 30});
  EXPECT_EQ(PixelAt(image, 200, 2), rgbColor(20, 30, 40));
  int marked = 0;  // the close glyph shows over its button
  for (int32_t y = 0; y < 30; ++y)
    for (int32_t x = 354; x < 400; ++x)
      marked += PixelAt(image, x, y) != rgbColor(20, 30, 40);
  EXPECT_GT(marked, 10);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(0), 188);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(200), 198);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(800), 255);
  EXPECT_EQ(ChromeTitleBar::pulseAlpha(1600), 188);
}

}  // namespace
}  // namespace tessel
