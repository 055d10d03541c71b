#include "tessel/controls/designed_popup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/skin/style_sheet.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kBody = rgbColor(10, 10, 10);
constexpr Color kClose = rgbColor(50, 0, 0), kCloseHot = rgbColor(90, 0, 0);
constexpr Color kPrimary = rgbColor(0, 60, 0), kPrimaryHot = rgbColor(0, 120, 0);
constexpr Color kPrimaryPressed = rgbColor(0, 180, 0);
constexpr Color kSecondary = rgbColor(0, 0, 60), kSecondaryHot = rgbColor(0, 0, 120);
constexpr Color kGrey = rgbColor(99, 99, 99);

// Header 40, padding 18 by 14, actions 104 by 32 with a gap of 8; no shadow.
PopupStyle FlatStyle() {
  PopupStyle style;
  style.surface = FlatSurface(kBody);
  style.header = FlatSurface(rgbColor(30, 30, 30));
  style.closeButton = FlatButton({kClose, kCloseHot, kCloseHot, kClose, kGrey});
  style.primaryAction = FlatButton({kPrimary, kPrimaryHot, kPrimaryPressed, kPrimary, kGrey});
  style.secondaryAction = FlatButton({kSecondary, kSecondaryHot, kSecondaryHot, kSecondary, kGrey});
  style.titleText = PlainText(rgbColor(240, 240, 240));
  style.messageText = PlainText(rgbColor(220, 220, 220));
  style.showShadow = false;
  return style;
}

PopupAction Action(std::wstring id, bool primary = false, std::function<void()> handler = {}) {
  PopupAction action;
  action.id = id;
  action.value = id + L"!";
  action.text = id;
  action.primary = primary;
  action.handler = std::move(handler);
  return action;
}

// A 400 x 200 notice with the actions "stay", "quit" (primary) and "later" (primary) at x 54,
// 166 and 278. Everything it tells lands in `seen`: popup events as "popup <kind> <index>
// <action>=<value>", commands as "<command>=<value>", handlers, onClose and moves by name.
// Records that start with `veto` are handled.
struct Notice {
  Notice() : popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle()), moves(journal) {
    popup.setCommandName(L"notice");
    const std::pair<const wchar_t*, bool> actions[] = {
        {L"stay", false}, {L"quit", true}, {L"later", true}};
    for (const auto& [id, primary] : actions)
      popup.addAction(Action(id, primary, [this, id] { note(id); }));
    popup.onPopup([this](PopupEvent& e) {
      e.handled = note(L"popup " + std::to_wstring(e.kind) + L" " + std::to_wstring(e.actionIndex) +
                       L" " + e.action + L"=" + e.value);
    });
    popup.onCommand([this](CommandEvent& e) { e.handled = note(e.command + L"=" + e.value); });
    popup.setOnClose([this] { note(L"closed"); });
    popup.show();
  }
  bool note(const std::wstring& record) {
    journal.push_back(record);
    return !veto.empty() && record.starts_with(veto);
  }
  std::wstring seen() const {
    std::wstring all;
    for (const std::wstring& record : journal)
      all += (all.empty() ? L"" : L"; ") + (record.starts_with(L"move") ? L"move" : record);
    return all;
  }
  DesignedPopup popup;
  std::vector<std::wstring> journal;
  std::wstring veto;
  MoveRecorder moves;
};

TEST(DesignedPopup, LaysOutCloseButtonActionRowAndMessage) {
  struct Case {
    int actions;
    Insets actionRowInsets;
    std::vector<Rect> actionRects;
    Rect message;
  };
  const Case cases[] = {
      {0, {}, {}, {18, 54, 364, 132}},  // the message takes the row's space
      {1, {}, {{278, 154, 104, 32}}, {18, 54, 364, 92}},
      {2, {0, 0, 10, 6}, {{156, 148, 104, 32}, {268, 148, 104, 32}}, {18, 54, 364, 86}}};
  for (const Case& c : cases) {
    PopupStyle style = FlatStyle();
    style.surface.actionRowInsets = c.actionRowInsets;
    DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, style);
    for (int i = 0; i < c.actions; ++i)
      popup.addAction(Action(L"a"));
    EXPECT_EQ(popup.closeRect(), (Rect{354, 6, 28, 28}));
    for (size_t i = 0; i <= c.actionRects.size(); ++i)
      EXPECT_EQ(popup.actionRect(i), i < c.actionRects.size() ? c.actionRects[i] : Rect{}) << i;
    EXPECT_EQ(popup.messageRect(), c.message) << c.actions;
  }
  PopupStyle low = FlatStyle();
  low.headerHeight = 20;  // the close button shrinks with a low header, and goes without one
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, low);
  EXPECT_EQ(popup.closeRect(), (Rect{370, 4, 12, 12}));
  low.headerHeight = 0;
  popup.setStyle(low);
  EXPECT_TRUE(popup.closeRect().empty());
}

TEST(DesignedPopup, IsHitOnlyWhenOpenAndInsideItsOutlineAndActionsByTheirRectangles) {
  Notice notice;
  const std::pair<Point, int32_t> cases[] = {{{166, 154}, 1}, {{269, 185}, 1}, {{270, 160}, -1},
                                             {{278, 154}, 2}, {{381, 185}, 2}, {{382, 185}, -1},
                                             {{200, 153}, -1}};
  for (const auto& [at, index] : cases)
    EXPECT_EQ(notice.popup.actionAt(at), index) << at.x << "," << at.y;

  Panel root(L"root", Rect{0, 0, 400, 300});
  Box* under = root.add<Box>(L"under", Rect{0, 0, 400, 300});
  PopupStyle capsule = FlatStyle();
  capsule.surface.shape = ShapeKind::Capsule;
  auto* popup = root.add<DesignedPopup>(L"popup", Rect{50, 50, 300, 100}, capsule);
  ASSERT_TRUE(popup->visible());
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), under);  // visible, but not open
  popup->show();
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), popup);
  EXPECT_EQ(root.hitTest(Point{51, 51}, Point{}), under);  // outside the capsule
  popup->hide();
  EXPECT_FALSE(popup->visible());
  EXPECT_EQ(root.hitTest(Point{100, 100}, Point{}), under);
}

struct Input {
  char kind;  // 'c' click, 'd' press, 'k' key
  Point at;
  uint32_t key;
  bool ctrl, alt;
};
Input Click(int32_t x, int32_t y) {
  return Input{'c', Point{x, y}, 0, false, false};
}
Input Press(int32_t x, int32_t y) {
  return Input{'d', Point{x, y}, 0, false, false};
}
Input Key(uint32_t key, bool ctrl = false, bool alt = false) {
  return Input{'k', Point{}, key, ctrl, alt};
}

TEST(DesignedPopup, ClicksKeysAndPressesTellEventsCommandsAndHandlersInOrder) {
  struct Case {
    const char* what;
    Input input;
    const wchar_t* veto;
    const wchar_t* seen;
    bool stillOpen;
  };
  const wchar_t* kQuit = L"popup 2 1 quit=quit!; notice.action.quit=quit!; quit";
  const wchar_t* kClose = L"popup 0 -1 close=notice; closed";
  const wchar_t* kDrag = L"notice.drag=drag; move";
  const Case cases[] = {
      {"the close button closes", Click(360, 20), L"", kClose, false},
      {"an action runs", Click(200, 170), L"", kQuit, true},
      {"elsewhere nothing", Click(100, 100), L"", L"", true},
      {"a handled event stops the command", Click(200, 170), L"popup", L"popup 2 1 quit=quit!",
       true},
      {"a handled command stops the handler", Click(200, 170), L"notice",
       L"popup 2 1 quit=quit!; notice.action.quit=quit!", true},
      {"enter runs the first primary action", Key(13), L"", kQuit, true},
      {"ctrl+enter is not ours", Key(13, true), L"", L"", true},
      {"alt+enter is not ours", Key(13, false, true), L"", L"", true},
      {"other keys pass", Key(32), L"", L"", true},
      {"escape closes", Key(27), L"", kClose, false},
      {"a handled close keeps onClose from running", Key(27), L"popup", L"popup 0 -1 close=notice",
       false},
      {"the header drags", Press(100, 20), L"", kDrag, true},
      {"the message area drags", Press(100, 100), L"", kDrag, true},
      {"a handled drag doesn't move", Press(100, 20), L"notice", L"notice.drag=drag", true},
      {"the close button doesn't drag", Press(360, 20), L"", L"", true},
      {"an action doesn't drag", Press(200, 170), L"", L"", true}};
  for (const Case& c : cases) {
    Notice notice;
    notice.veto = c.veto;
    notice.popup.setMousePosition(c.input.at);
    if (c.input.kind == 'c') notice.popup.clicked();
    if (c.input.kind == 'd') notice.popup.mouseDown();
    if (c.input.kind == 'k') {
      const bool consumed =
          notice.popup.keyDown(c.input.key, c.input.ctrl, false, c.input.alt, nullptr);
      EXPECT_EQ(consumed, std::wstring(c.seen) != L"") << c.what;
    }
    EXPECT_EQ(notice.seen(), c.seen) << c.what;
    EXPECT_EQ(notice.popup.isOpen(), c.stillOpen) << c.what;
  }
}

TEST(DesignedPopup, EnterFallsBackToTheFirstActionAndClosedOrDisabledPopupsIgnoreInput) {
  Notice notice;
  notice.popup.runAction(3);  // out of range
  notice.popup.setDragEnabled(false);
  notice.popup.setMousePosition(Point{100, 20});
  notice.popup.mouseDown();
  EXPECT_EQ(notice.seen(), L"");

  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  std::wstring ran;
  popup.setOnClose([&] { ran += L"close"; });
  popup.show();
  EXPECT_FALSE(popup.keyDown(13, false, false, false, nullptr));  // no action at all
  popup.addAction(Action(L"first", false, [&] { ran += L"first"; }));
  popup.addAction(Action(L"second", false, [&] { ran += L"second"; }));
  EXPECT_TRUE(popup.keyDown(13, false, true, false, nullptr));
  EXPECT_EQ(ran, L"first");
  popup.setEnabled(false);
  EXPECT_FALSE(popup.keyDown(27, false, false, false, nullptr));
  popup.setEnabled(true);
  popup.hide();
  EXPECT_FALSE(popup.keyDown(13, false, false, false, nullptr));
  EXPECT_FALSE(popup.keyDown(27, false, false, false, nullptr));
  EXPECT_EQ(ran, L"first");
}

TEST(DesignedPopup, PointerStatesPaintTheActionUnderIt) {
  Notice notice;
  DesignedPopup& popup = notice.popup;
  const auto at = [&](Point p) { return PixelAt(PaintedImage(popup, {400, 200}), p.x, p.y); };
  const Point onSecondary{56, 156}, onPrimary{168, 156}, onClose{355, 7};
  EXPECT_EQ(at(onSecondary), kSecondary);
  EXPECT_EQ(at(onPrimary), kPrimary);
  EXPECT_EQ(at(onClose), kClose);
  popup.setMousePosition(Point{200, 170});
  popup.setHot(true);
  EXPECT_EQ(at(onPrimary), kPrimaryHot);
  EXPECT_EQ(at(onSecondary), kSecondary);
  popup.setPressed(true);
  EXPECT_EQ(at(onPrimary), kPrimaryPressed);
  EXPECT_EQ(at(onClose), kClose);  // pressed, but not over it
  popup.setMousePosition(Point{100, 100});
  popup.mouseDragged();  // dragged off the action: neither pressed nor hot any more
  EXPECT_EQ(at(onPrimary), kPrimary);
  popup.setPressed(false);
  popup.hitTest(Point{80, 170}, Point{});  // moved to another action while hot
  EXPECT_EQ(at(onSecondary), kSecondaryHot);
  popup.hitTest(Point{370, 20}, Point{});
  EXPECT_EQ(at(onClose), kCloseHot);
  EXPECT_EQ(at(onSecondary), kSecondary);
  popup.setHot(false);
  EXPECT_EQ(at(onClose), kClose);
}

TEST(DesignedPopup, OverflowingTextIsClippedOrDropped) {
  // 9 points estimate 6 pixels a character; 104 less 2 * 2 of padding holds 16 of them.
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.addAction(Action(std::wstring(17, L'W')));
  popup.addAction(Action(std::wstring(16, L'W')));
  const std::pair<Point, std::wstring> cases[] = {
      {{200, 170}, std::wstring(17, L'W')}, {{300, 170}, L""}, {{100, 100}, L""}};
  for (const auto& [at, clipped] : cases) {
    popup.setMousePosition(at);
    EXPECT_EQ(popup.clippedText(), clipped) << at.x;
  }
  // Forty message lines overflow the area and must not spill into the padding below it.
  DesignedPopup notice(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  std::wstring message;
  for (int i = 0; i < 40; ++i)
    message += L"line\n";
  notice.setMessage(message);
  const Image image = PaintedImage(notice, {400, 200});
  const Rect area = notice.messageRect();
  int below = 0, inside = 0;
  for (int32_t y = 0; y < 200; ++y)
    for (int32_t x = area.x; x < area.right(); ++x)
      if (PixelAt(image, x, y) == rgbColor(220, 220, 220)) ++(y >= area.bottom() ? below : inside);
  EXPECT_GT(inside, 0);
  EXPECT_EQ(below, 0);
}

TEST(DesignedPopup, ApplySkinSwapsTheRecordOnlyWhenTheSheetHoldsTheId) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  const StyleSheet sheet{Theme{}};
  EXPECT_FALSE(applyStyleId(sheet, popup, L"no-such-popup"));
  EXPECT_EQ(popup.style().surface.fill, kBody);
  EXPECT_TRUE(applyStyleId(sheet, popup, L"default"));
  EXPECT_EQ(popup.style().surface.fill, sheet.popups.get(L"default").surface.fill);
}

}  // namespace
}  // namespace tessel
