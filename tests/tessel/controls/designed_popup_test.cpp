#include "tessel/controls/designed_popup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/core/panel.h"
#include "tessel/core/system_move.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/skin/style_sheet.h"
#include "tests/tessel/controls/control_fixtures.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

constexpr Color kBody = rgbColor(10, 10, 10);
constexpr Color kHeader = rgbColor(30, 30, 30);
constexpr Color kClose = rgbColor(50, 0, 0);
constexpr Color kCloseHot = rgbColor(90, 0, 0);
constexpr Color kPrimary = rgbColor(0, 60, 0);
constexpr Color kPrimaryHot = rgbColor(0, 120, 0);
constexpr Color kPrimaryPressed = rgbColor(0, 180, 0);
constexpr Color kSecondary = rgbColor(0, 0, 60);
constexpr Color kSecondaryHot = rgbColor(0, 0, 120);

ButtonStyle FlatButton(Color normal, Color hot, Color pressed) {
  ButtonStyle style;
  style.surface.normal = FlatSurface(normal);
  style.surface.hot = FlatSurface(hot);
  style.surface.pressed = FlatSurface(pressed);
  style.surface.active = FlatSurface(normal);
  style.surface.disabled = FlatSurface(rgbColor(99, 99, 99));
  style.text = PlainText(rgbColor(250, 250, 250));
  return style;
}

// Header 40, padding 18 by 14, actions 104 by 32 with a gap of 8; no shadow.
PopupStyle FlatStyle() {
  PopupStyle style;
  style.surface = FlatSurface(kBody);
  style.header = FlatSurface(kHeader);
  style.icon = FlatSurface(rgbColor(200, 120, 0));
  style.closeButton = FlatButton(kClose, kCloseHot, kCloseHot);
  style.primaryAction = FlatButton(kPrimary, kPrimaryHot, kPrimaryPressed);
  style.secondaryAction = FlatButton(kSecondary, kSecondaryHot, kSecondaryHot);
  style.titleText = PlainText(rgbColor(240, 240, 240));
  style.messageText = PlainText(rgbColor(220, 220, 220));
  style.iconText = PlainText(rgbColor(0, 0, 0));
  style.showShadow = false;
  return style;
}

PopupAction Action(std::wstring id, std::wstring value, bool primary = false,
                   std::function<void()> handler = nullptr) {
  PopupAction action;
  action.id = std::move(id);
  action.value = std::move(value);
  action.text = action.id;
  action.primary = primary;
  action.handler = std::move(handler);
  return action;
}

// Restores the process-wide move hook after each test.
class DesignedPopupTest : public ::testing::Test {
 protected:
  ~DesignedPopupTest() override { setSystemMoveHook(nullptr); }
};

TEST_F(DesignedPopupTest, LaysOutCloseButtonActionRowAndMessage) {
  struct Case {
    const char* what;
    int actions;
    Insets actionRowInsets;
    std::vector<Rect> actionRects;
    Rect message;
  };
  const Case kCases[] = {
      {"without actions the message takes the row's space", 0, {}, {}, {18, 54, 364, 132}},
      {"one action sits in the bottom right corner",
       1,
       {},
       {{278, 154, 104, 32}},
       {18, 54, 364, 92}},
      {"the row is right-aligned in the order added",
       2,
       {},
       {{166, 154, 104, 32}, {278, 154, 104, 32}},
       {18, 54, 364, 92}},
      {"the row stands on the shape's action-row insets",
       2,
       {0, 0, 10, 6},
       {{156, 148, 104, 32}, {268, 148, 104, 32}},
       {18, 54, 364, 86}},
  };
  for (const Case& c : kCases) {
    PopupStyle style = FlatStyle();
    style.surface.actionRowInsets = c.actionRowInsets;
    DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, style);
    for (int i = 0; i < c.actions; ++i)
      popup.addAction(Action(L"a" + std::to_wstring(i), L""));
    EXPECT_EQ(popup.closeRect(), (Rect{354, 6, 28, 28})) << c.what;
    for (size_t i = 0; i < c.actionRects.size(); ++i) {
      EXPECT_EQ(popup.actionRect(i), c.actionRects[i]) << c.what << " action " << i;
    }
    EXPECT_EQ(popup.actionRect(c.actionRects.size()), Rect{}) << c.what;
    EXPECT_EQ(popup.messageRect(), c.message) << c.what;
  }
}

TEST_F(DesignedPopupTest, TheCloseButtonShrinksWithALowHeader) {
  PopupStyle style = FlatStyle();
  style.headerHeight = 20;
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, style);
  EXPECT_EQ(popup.closeRect(), (Rect{370, 4, 12, 12}));
  style.headerHeight = 0;
  popup.setStyle(style);
  EXPECT_TRUE(popup.closeRect().empty());
}

TEST_F(DesignedPopupTest, ActionAtFindsTheActionUnderAPoint) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.addAction(Action(L"yes", L"1"));
  popup.addAction(Action(L"no", L"0"));
  const struct {
    Point point;
    int32_t index;
  } kCases[] = {{{166, 154}, 0}, {{269, 185}, 0},  {{270, 160}, -1}, {{278, 154}, 1},
                {{381, 185}, 1}, {{382, 185}, -1}, {{200, 153}, -1}, {{20, 60}, -1}};
  for (const auto& c : kCases) {
    EXPECT_EQ(popup.actionAt(c.point), c.index) << c.point.x << "," << c.point.y;
  }
}

TEST_F(DesignedPopupTest, APopupThatIsntOpenIsntHitThoughVisibleSiblingsAre) {
  Panel root(L"root", Rect{0, 0, 400, 300});
  Box* under = root.add<Box>(L"under", Rect{0, 0, 400, 300});
  DesignedPopup* popup = root.add<DesignedPopup>(L"popup", Rect{50, 50, 300, 200}, FlatStyle());
  ASSERT_TRUE(popup->visible());
  ASSERT_FALSE(popup->isOpen());
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), under);

  popup->show();
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), popup);
  EXPECT_EQ(root.hitTest(Point{10, 10}, Point{}), under);

  popup->hide();
  EXPECT_FALSE(popup->isOpen());
  EXPECT_FALSE(popup->visible());
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), under);
}

TEST_F(DesignedPopupTest, HitTestingFollowsTheSurfacesOutline) {
  PopupStyle style = FlatStyle();
  style.surface.shape = ShapeKind::Capsule;
  DesignedPopup popup(L"popup", Rect{0, 0, 300, 100}, style);
  popup.show();
  EXPECT_EQ(popup.hitTest(Point{150, 50}, Point{}), &popup);
  EXPECT_EQ(popup.hitTest(Point{1, 1}, Point{}), nullptr);
}

TEST_F(DesignedPopupTest, ClosingHidesEmitsThePopupEventAndCallsOnClose) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.setCommandName(L"about");
  popup.show();
  std::vector<PopupEvent> events;
  popup.onPopup([&](PopupEvent& event) { events.push_back(event); });
  int closes = 0;
  popup.setOnClose([&] { ++closes; });

  popup.setMousePosition(Point{360, 20});
  popup.clicked();
  EXPECT_FALSE(popup.isOpen());
  EXPECT_FALSE(popup.visible());
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, PopupEvent::kClose);
  EXPECT_EQ(events[0].actionIndex, -1);
  EXPECT_EQ(events[0].action, L"close");
  EXPECT_EQ(events[0].value, L"about");
  EXPECT_EQ(events[0].sender, &popup);
  EXPECT_EQ(closes, 1);
}

TEST_F(DesignedPopupTest, AHandledCloseEventKeepsOnCloseFromRunning) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.show();
  popup.onPopup([](PopupEvent& event) { event.handled = true; });
  int closes = 0;
  popup.setOnClose([&] { ++closes; });
  popup.close();
  EXPECT_FALSE(popup.isOpen());
  EXPECT_EQ(closes, 0);
}

TEST_F(DesignedPopupTest, ClickingAnActionEmitsPopupEventThenCommandThenRunsTheHandler) {
  struct Case {
    const char* what;
    std::wstring commandName;
    std::wstring command;
  };
  const Case kCases[] = {
      {"the command name is the base", L"exit-confirm", L"exit-confirm.action.quit"},
      {"without one the id is", L"", L"popup.action.quit"},
  };
  for (const Case& c : kCases) {
    DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
    popup.setCommandName(c.commandName);
    std::vector<std::wstring> seen;
    popup.addAction(Action(L"stay", L"0", false, [&] { seen.push_back(L"stay handler"); }));
    popup.addAction(Action(L"quit", L"1", true, [&] { seen.push_back(L"quit handler"); }));
    popup.show();
    popup.onPopup([&](PopupEvent& event) {
      seen.push_back(L"popup " + std::to_wstring(event.kind) + L" " +
                     std::to_wstring(event.actionIndex) + L" " + event.action + L"=" + event.value +
                     L" from " + event.source);
    });
    popup.onCommand([&](CommandEvent& event) {
      seen.push_back(L"command " + event.command + L"=" + event.value);
    });
    popup.setMousePosition(Point{300, 170});
    popup.clicked();
    EXPECT_EQ(seen, (std::vector<std::wstring>{L"popup 2 1 quit=1 from quit",
                                               L"command " + c.command + L"=1", L"quit handler"}))
        << c.what;
    EXPECT_TRUE(popup.isOpen()) << c.what;
  }
}

TEST_F(DesignedPopupTest, AHandledPopupEventSuppressesBothCommandAndActionHandler) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  int handlers = 0, commands = 0;
  popup.addAction(Action(L"ok", L"1", true, [&] { ++handlers; }));
  popup.show();
  popup.onPopup([](PopupEvent& event) { event.handled = true; });
  popup.onCommand([&](CommandEvent&) { ++commands; });
  popup.setMousePosition(Point{300, 170});
  popup.clicked();
  popup.runAction(0);
  EXPECT_EQ(commands, 0);
  EXPECT_EQ(handlers, 0);
}

TEST_F(DesignedPopupTest, AHandledCommandSuppressesTheActionHandler) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  int handlers = 0;
  popup.addAction(Action(L"ok", L"1", true, [&] { ++handlers; }));
  popup.onCommand([](CommandEvent& event) { event.handled = true; });
  popup.runAction(0);
  EXPECT_EQ(handlers, 0);
}

TEST_F(DesignedPopupTest, ClicksElsewhereAndOutOfRangeActionsDoNothing) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  int events = 0;
  popup.addAction(Action(L"ok", L"1", true, [&] { ++events; }));
  popup.show();
  popup.onPopup([&](PopupEvent&) { ++events; });
  popup.onCommand([&](CommandEvent&) { ++events; });
  popup.setMousePosition(Point{100, 100});
  popup.clicked();
  popup.runAction(1);
  EXPECT_EQ(events, 0);
  EXPECT_TRUE(popup.isOpen());
}

TEST_F(DesignedPopupTest, KeysRunThePrimaryActionOrClose) {
  struct Case {
    const char* what;
    uint32_t key;
    bool ctrl, alt;
    bool consumed;
    std::wstring ran;
    bool stillOpen;
  };
  const Case kCases[] = {
      {"enter runs the first primary action", 13, false, false, true, L"second", true},
      {"ctrl+enter is not ours", 13, true, false, false, L"", true},
      {"alt+enter is not ours", 13, false, true, false, L"", true},
      {"escape closes", 27, false, false, true, L"close", false},
      {"other keys pass", 32, false, false, false, L"", true},
  };
  for (const Case& c : kCases) {
    DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
    std::wstring ran;
    popup.addAction(Action(L"first", L"", false, [&] { ran += L"first"; }));
    popup.addAction(Action(L"second", L"", true, [&] { ran += L"second"; }));
    popup.addAction(Action(L"third", L"", true, [&] { ran += L"third"; }));
    popup.setOnClose([&] { ran += L"close"; });
    popup.show();
    EXPECT_EQ(popup.keyDown(c.key, c.ctrl, false, c.alt, nullptr), c.consumed) << c.what;
    EXPECT_EQ(ran, c.ran) << c.what;
    EXPECT_EQ(popup.isOpen(), c.stillOpen) << c.what;
  }
}

TEST_F(DesignedPopupTest, EnterRunsTheFirstActionWhenNoneIsPrimary) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  std::wstring ran;
  popup.addAction(Action(L"first", L"", false, [&] { ran += L"first"; }));
  popup.addAction(Action(L"second", L"", false, [&] { ran += L"second"; }));
  popup.show();
  EXPECT_TRUE(popup.keyDown(13, false, true, false, nullptr));
  EXPECT_EQ(ran, L"first");

  DesignedPopup empty(L"empty", Rect{0, 0, 400, 200}, FlatStyle());
  empty.show();
  EXPECT_FALSE(empty.keyDown(13, false, false, false, nullptr));
}

TEST_F(DesignedPopupTest, AClosedPopupIgnoresKeys) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  int ran = 0;
  popup.addAction(Action(L"ok", L"", true, [&] { ++ran; }));
  popup.setOnClose([&] { ++ran; });
  EXPECT_FALSE(popup.keyDown(13, false, false, false, nullptr));
  EXPECT_FALSE(popup.keyDown(27, false, false, false, nullptr));
  EXPECT_EQ(ran, 0);
}

TEST_F(DesignedPopupTest, PressingTheBodyEmitsTheDragCommandThenMovesTheWindow) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.setCommandName(L"notice");
  popup.addAction(Action(L"ok", L"1"));
  popup.show();
  std::vector<std::wstring> seen;
  popup.onCommand([&](CommandEvent& event) { seen.push_back(event.command + L"=" + event.value); });
  setSystemMoveHook([&](Control& source) { seen.push_back(L"move " + source.id()); });

  const struct {
    const char* what;
    Point point;
    bool drags;
  } kCases[] = {{"the header drags", {100, 20}, true},
                {"the message area drags", {100, 100}, true},
                {"the close button doesn't", {360, 20}, false},
                {"an action doesn't", {300, 170}, false}};
  for (const auto& c : kCases) {
    seen.clear();
    popup.setMousePosition(c.point);
    popup.mouseDown();
    const std::vector<std::wstring> expected =
        c.drags ? std::vector<std::wstring>{L"notice.drag=drag", L"move popup"}
                : std::vector<std::wstring>{};
    EXPECT_EQ(seen, expected) << c.what;
  }

  seen.clear();
  popup.setDragEnabled(false);
  popup.setMousePosition(Point{100, 20});
  popup.mouseDown();
  EXPECT_TRUE(seen.empty());
}

TEST_F(DesignedPopupTest, AHandledDragCommandDoesNotMoveTheWindow) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  int moves = 0;
  std::wstring command;
  popup.onCommand([&](CommandEvent& event) {
    command = event.command;
    event.handled = true;
  });
  setSystemMoveHook([&](Control&) { ++moves; });
  popup.setMousePosition(Point{100, 20});
  popup.mouseDown();
  EXPECT_EQ(command, L"popup.drag");
  EXPECT_EQ(moves, 0);
}

TEST_F(DesignedPopupTest, ClippedTextIsTheTextOfAnActionThatDoesntFit) {
  // 9 points estimate 6 pixels a character; 104 less 2 * 2 of padding holds 16 of them.
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  PopupAction long_action = Action(L"long", L"");
  long_action.text = std::wstring(17, L'W');
  PopupAction short_action = Action(L"short", L"");
  short_action.text = std::wstring(16, L'W');
  popup.addAction(long_action);
  popup.addAction(short_action);
  const struct {
    Point point;
    std::wstring clipped;
  } kCases[] = {{{200, 170}, long_action.text}, {{300, 170}, L""}, {{100, 100}, L""}};
  for (const auto& c : kCases) {
    popup.setMousePosition(c.point);
    EXPECT_EQ(popup.clippedText(), c.clipped) << c.point.x;
  }
}

// The colour at a point of the popup painted alone on a 400 by 200 image.
Color PaintedAt(DesignedPopup& popup, Point point) {
  Image image = Image::blank(400, 200);
  ImageCanvas canvas(image);
  popup.paint(canvas, Point{});
  const uint8_t* p = image.pixel(point.x, point.y);
  return rgbColor(p[2], p[1], p[0]);
}

TEST_F(DesignedPopupTest, PointerStatesPaintTheActionUnderIt) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.addAction(Action(L"no", L""));
  popup.addAction(Action(L"yes", L"", true));
  popup.show();
  const Point onSecondary{168, 156}, onPrimary{280, 156}, onClose{355, 7};
  EXPECT_EQ(PaintedAt(popup, onSecondary), kSecondary);
  EXPECT_EQ(PaintedAt(popup, onPrimary), kPrimary);
  EXPECT_EQ(PaintedAt(popup, onClose), kClose);

  popup.setMousePosition(Point{300, 170});
  popup.setHot(true);
  EXPECT_EQ(PaintedAt(popup, onPrimary), kPrimaryHot);
  EXPECT_EQ(PaintedAt(popup, onSecondary), kSecondary);

  popup.setPressed(true);
  EXPECT_EQ(PaintedAt(popup, onPrimary), kPrimaryPressed);

  // Dragged off the action: neither pressed nor hot any more.
  popup.setMousePosition(Point{100, 100});
  popup.mouseDragged();
  EXPECT_EQ(PaintedAt(popup, onPrimary), kPrimary);

  // Moved to the secondary action while hot: only hit-testing sees it.
  popup.setPressed(false);
  popup.hitTest(Point{200, 170}, Point{});
  EXPECT_EQ(PaintedAt(popup, onSecondary), kSecondaryHot);
  EXPECT_EQ(PaintedAt(popup, onPrimary), kPrimary);

  popup.hitTest(Point{370, 20}, Point{});
  EXPECT_EQ(PaintedAt(popup, onClose), kCloseHot);
  popup.setHot(false);
  EXPECT_EQ(PaintedAt(popup, onSecondary), kSecondary);
  EXPECT_EQ(PaintedAt(popup, onClose), kClose);
}

TEST_F(DesignedPopupTest, MessageLinesThatDontFitAreDropped) {
  // Without actions the message area ends 14 pixels above the bottom; forty lines overflow it
  // and must not spill into the padding.
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  std::wstring message;
  for (int i = 0; i < 40; ++i)
    message += L"line\n";
  popup.setMessage(message);
  Image image = Image::blank(400, 200);
  ImageCanvas canvas(image);
  popup.paint(canvas, Point{});
  const Rect area = popup.messageRect();
  int below = 0, inside = 0;
  for (int32_t y = 0; y < 200; ++y) {
    for (int32_t x = area.x; x < area.right(); ++x) {
      const uint8_t* p = image.pixel(x, y);
      if (rgbColor(p[2], p[1], p[0]) != rgbColor(220, 220, 220)) continue;
      (y >= area.bottom() ? below : inside)++;
    }
  }
  EXPECT_GT(inside, 0);
  EXPECT_EQ(below, 0);
}

TEST_F(DesignedPopupTest, ApplySkinSwapsTheRecordOnlyWhenTheVariantExists) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  const Theme theme;
  const StyleSheet sheet(theme);
  popup.setStyleId(L"no-such-popup");
  EXPECT_FALSE(popup.applySkin(sheet));
  EXPECT_EQ(popup.style().surface.fill, kBody);
  popup.setStyleId(L"default");
  EXPECT_TRUE(popup.applySkin(sheet));
  EXPECT_EQ(popup.style().surface.fill, sheet.popups.get(L"default").surface.fill);
  EXPECT_NE(popup.style().surface.fill, kBody);
}

}  // namespace
}  // namespace tessel
