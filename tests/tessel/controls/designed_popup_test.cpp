#include "tessel/controls/designed_popup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/skin/style_sheet.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

constexpr Color kClose = rgbColor(50, 0, 0), kCloseHot = rgbColor(90, 0, 0);
constexpr Color kPrimary = rgbColor(0, 60, 0), kPrimaryHot = rgbColor(0, 120, 0);
constexpr Color kPrimaryPressed = rgbColor(0, 180, 0);
constexpr Color kSecondary = rgbColor(0, 0, 60), kSecondaryHot = rgbColor(0, 0, 120);

// Header 40, padding 18 by 14, actions 104 by 32 with a gap of 8; no shadow.
PopupStyle FlatStyle() {
  PopupStyle style;
  style.surface = FlatSurface(rgbColor(10, 10, 10));
  style.closeButton = FlatButton({kClose, kCloseHot, kCloseHot, kClose, 0});
  style.primaryAction = FlatButton({kPrimary, kPrimaryHot, kPrimaryPressed, kPrimary, 0});
  style.secondaryAction = FlatButton({kSecondary, kSecondaryHot, kSecondaryHot, kSecondary, 0});
  style.messageText = PlainText(rgbColor(220, 220, 220));
  style.showShadow = false;
  return style;
}

PopupAction Action(std::wstring id, bool primary = false, std::function<void()> handler = {}) {
  PopupAction action;
  action.id = action.text = id;
  action.value = id + L"!";
  action.primary = primary;
  action.handler = std::move(handler);
  return action;
}

// A 400 x 200 notice with the actions "stay", "quit" (primary) and "later" (primary) at x 54,
// 166 and 278. Popup events, commands, handlers, onClose and moves land in `seen` in order;
// records that start with `veto` are handled.
struct Notice {
  Notice() : popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle()), moves(journal) {
    popup.setCommandName(L"notice");
    for (const auto& [id, primary] : {std::pair{L"stay", false}, {L"quit", true}, {L"later", true}})
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
      all += (all.empty() ? L"" : L"; ") + record;
    return all;
  }
  DesignedPopup popup;
  std::vector<std::wstring> journal;
  std::wstring veto;
  MoveRecorder moves;
};

TEST(DesignedPopup, LaysOutCloseButtonActionRowAndMessage) {
  PopupStyle style = FlatStyle();
  style.surface.actionRowInsets = Insets{0, 0, 10, 6};
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, style);
  EXPECT_EQ(popup.messageRect(), (Rect{18, 54, 364, 132}));  // no actions: no row
  popup.addAction(Action(L"a"));
  popup.addAction(Action(L"b"));
  EXPECT_EQ(popup.actionRect(1), (Rect{268, 148, 104, 32}));
  EXPECT_TRUE(popup.actionRect(2).empty());
  EXPECT_EQ(popup.messageRect(), (Rect{18, 54, 364, 86}));  // the golden shows the rest
  style.headerHeight = 20;  // the close button shrinks with a low header
  popup.setStyle(style);
  EXPECT_EQ(popup.closeRect(), (Rect{370, 4, 12, 12}));
}

TEST(DesignedPopup, IsHitOnlyWhenOpenAndInsideItsOutlineAndActionsByTheirRectangles) {
  Notice notice;
  const std::pair<Point, int32_t> cases[] = {
      {{166, 154}, 1}, {{270, 160}, -1}, {{381, 185}, 2}, {{382, 185}, -1}, {{200, 153}, -1}};
  for (const auto& [at, index] : cases)
    EXPECT_EQ(notice.popup.actionAt(at), index) << at.x << "," << at.y;

  EXPECT_EQ(notice.popup.hitTest(Point{200, 100}, Point{}), &notice.popup);
  PopupStyle capsule = FlatStyle();
  capsule.surface.shape = ShapeKind::Capsule;
  notice.popup.setStyle(capsule);
  EXPECT_EQ(notice.popup.hitTest(Point{1, 1}, Point{}), nullptr);  // outside the capsule
  notice.popup.hide();
  notice.popup.setVisible(true);  // visible, but not open
  EXPECT_EQ(notice.popup.hitTest(Point{200, 100}, Point{}), nullptr);
}

TEST(DesignedPopup, ClicksKeysAndPressesTellEventsCommandsAndHandlersInOrder) {
  struct Case {
    const char* what;
    char kind;  // 'c' click, 'd' press, 'k' key (x is the key, y is ctrl)
    Point at;
    const wchar_t *veto, *seen;
    bool stillOpen;
  };
  const wchar_t* kEvent = L"popup 2 1 quit=quit!";
  const wchar_t* kCommand = L"popup 2 1 quit=quit!; notice.action.quit=quit!";
  const wchar_t* kQuit = L"popup 2 1 quit=quit!; notice.action.quit=quit!; quit";
  const wchar_t* kClose = L"popup 0 -1 close=notice; closed";
  const Case cases[] = {
      {"the close button closes", 'c', {360, 20}, L"", kClose, false},
      {"an action runs", 'c', {200, 170}, L"", kQuit, true},
      {"a handled event stops the command", 'c', {200, 170}, L"popup", kEvent, true},
      {"a handled command stops the handler", 'c', {200, 170}, L"notice", kCommand, true},
      {"enter runs the first primary action", 'k', {13, 0}, L"", kQuit, true},
      {"ctrl+enter is not ours", 'k', {13, 1}, L"", L"", true},
      {"escape closes", 'k', {27, 0}, L"", kClose, false},
      {"a handled close skips onClose", 'k', {27, 0}, L"popup", L"popup 0 -1 close=notice", false},
      {"the message area drags", 'd', {100, 100}, L"", L"notice.drag=drag; move popup", true},
      {"a handled drag doesn't move", 'd', {100, 20}, L"notice", L"notice.drag=drag", true},
      {"the close button doesn't drag", 'd', {360, 20}, L"", L"", true},
      {"an action doesn't drag", 'd', {200, 170}, L"", L"", true}};
  for (const Case& c : cases) {
    Notice notice;
    notice.veto = c.veto;
    notice.popup.setMousePosition(c.at);
    if (c.kind == 'c') notice.popup.clicked();
    if (c.kind == 'd') notice.popup.mouseDown();
    const bool consumed =
        c.kind == 'k' && notice.popup.keyDown(c.at.x, c.at.y != 0, false, false, nullptr);
    EXPECT_EQ(consumed, c.kind == 'k' && std::wstring(c.seen) != L"") << c.what;
    EXPECT_EQ(notice.seen(), c.seen) << c.what;
    EXPECT_EQ(notice.popup.isOpen(), c.stillOpen) << c.what;
  }
}

TEST(DesignedPopup, PointerStatesPaintTheActionUnderIt) {
  Notice notice;
  DesignedPopup& popup = notice.popup;
  const auto at = [&](Point p) { return PixelAt(PaintedImage(popup, {400, 200}), p.x, p.y); };
  const Point onSecondary{56, 156}, onPrimary{168, 156}, onClose{355, 7};
  popup.setMousePosition(Point{200, 170});
  popup.setHot(true);
  popup.setPressed(true);
  EXPECT_EQ(at(onPrimary), kPrimaryPressed);
  EXPECT_EQ(at(onClose), kClose);  // pressed, but not over it
  popup.setMousePosition(Point{100, 100});
  popup.mouseDragged();  // dragged off the action: neither pressed nor hot any more
  EXPECT_EQ(at(onPrimary), kPrimary);
  popup.setPressed(false);
  popup.hitTest(Point{80, 170}, Point{});  // moved to another action while hot
  EXPECT_EQ(at(onSecondary), kSecondaryHot);
}

TEST(DesignedPopup, OverflowingTextIsClippedAndASkinNeedsTheId) {
  DesignedPopup popup(L"popup", Rect{0, 0, 400, 200}, FlatStyle());
  popup.addAction(Action(std::wstring(17, L'W')));  // 17 characters of 6 pixels: more than 100
  popup.setMousePosition(Point{300, 170});
  EXPECT_EQ(popup.clippedText(), std::wstring(17, L'W'));
  // Forty message lines overflow the area and must not spill into the padding below it.
  std::wstring message;
  for (int i = 0; i < 40; ++i)
    message += L"line\n";
  popup.setMessage(message);
  const Image image = PaintedImage(popup, {400, 200});
  const Rect area = popup.messageRect();
  int below = 0, inside = 0;
  for (int32_t y = 0; y < 200; ++y)
    for (int32_t x = area.x; x < area.right(); ++x)
      if (PixelAt(image, x, y) == rgbColor(220, 220, 220)) ++(y >= area.bottom() ? below : inside);
  EXPECT_GT(inside, 0);
  EXPECT_EQ(below, 0);
  EXPECT_FALSE(applyStyleId(StyleSheet{Theme{}}, popup, L"no-such-popup"));  // the golden has one
}

}  // namespace
}  // namespace tessel
