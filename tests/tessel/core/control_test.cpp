#include "tessel/core/control.h"

#include <gtest/gtest.h>

#include "tessel/core/window.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

TEST(Control, SetBoundsRepaintsBothPlacesAndBecomesTheNextDesign) {
  RecordingPlatform host;
  Window window;
  window.sized(Size{200, 100}, false);
  window.setPlatform(&host);
  Panel& root = window.rootPanel();
  Box* box = root.add<Box>(L"box", Rect{10, 10, 50, 20});
  box->setBounds(Rect{10, 10, 50, 20});
  EXPECT_TRUE(host.rects.empty());
  box->setBounds(Rect{20, 10, 50, 20});
  EXPECT_EQ(box->layouts, 1);
  // The old and the new place, each inflated by 16.
  EXPECT_EQ(host.rects, (std::vector<Rect>{{0, 0, 76, 46}, {4, 0, 82, 46}}));

  root.layoutChildren();  // captures the design against 200
  box->setAnchors(kAnchorLeft | kAnchorRight);
  box->setBounds(Rect{20, 10, 40, 20});
  EXPECT_FALSE(box->designCaptured());
  root.setBounds(Rect{0, 0, 400, 100});
  EXPECT_EQ(box->bounds(), (Rect{20, 10, 40, 20}));  // captured again against 400
  root.setBounds(Rect{0, 0, 450, 100});
  EXPECT_EQ(box->bounds(), (Rect{20, 10, 90, 20}));
}

TEST(Control, HiddenDisabledAndCollapsedControls) {
  struct Popup : Box {
    using Box::Box;
    bool dismissOverlays(Point, Point) override { return ++dismissed > 0; }
    int dismissed = 0;
  };
  Panel root(L"root", Rect{0, 0, 200, 100});
  Panel* inner = root.add<Panel>(L"inner", Rect{0, 0, 200, 100});
  Popup* popup = inner->add<Popup>(L"popup", Rect{10, 10, 50, 20});
  inner->setEnabled(false);  // hides its children from the pointer, yet still dismisses
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), &root);
  EXPECT_TRUE(root.dismissOverlays(Point{-32000, -32000}, Point{}));
  EXPECT_EQ(popup->dismissed, 1);

  Panel row(L"row", Rect{0, 0, 200, 100});  // the first child that ticks ends the walk
  Box* hidden = row.add<Box>(L"hidden", Rect{0, 0, 10, 10});
  Box* collapsed = row.add<Box>(L"collapsed", Rect{120, 0, 10, 10}, rgbColor(255, 0, 0));
  hidden->setVisible(false);
  collapsed->setCollapsed(true);
  EXPECT_TRUE(row.tick());
  EXPECT_EQ((std::pair{hidden->ticks, collapsed->ticks}), (std::pair{0, 1}));
  EXPECT_EQ(collapsed->minimumSize(), (Size{0, 0}));
  PaintedImage(row, {200, 100});
  EXPECT_EQ((std::pair{hidden->paints, collapsed->paints}), (std::pair{0, 1}));
}

TEST(Control, TooltipCombinesClippedTextAndDescription) {
  struct Clipping : Control {
    using Control::Control;
    std::wstring clippedText() const override { return clipped; }
    std::wstring clipped;
  };
  const wchar_t* const cases[][3] = {{L"", L"Work week", L"Work week"},
                                     {L"Work week and more", L"Work week", L"Work week and more"},
                                     {L"Saves it.", L"Work week", L"Work week\nSaves it."}};
  for (const auto& test : cases) {
    Clipping control(L"c", Rect{});
    control.setTooltip(test[0]);
    control.clipped = test[1];
    EXPECT_EQ(control.composedTooltip(), test[2]);
  }
}

TEST(Control, CommandsComeFromTheCommandNameOrTheId) {
  auto root = std::make_unique<Panel>(L"root", Rect{0, 0, 100, 100});
  Box* box = root->add<Box>(L"id", Rect{0, 0, 10, 10});
  std::wstring command;
  box->onCommand([&](CommandEvent& event) { command += event.command + L"=" + event.value; });
  CommandEvent fromId = box->makeCommand(L"1");
  box->emitCommand(fromId);
  box->setCommandName(L"chrome");
  CommandEvent empty;
  box->emitCommand(empty);
  EXPECT_EQ(command, L"id=1chrome=");
  // A handler may destroy the tree of its emitter: later handlers of that tree are not called.
  box->onCommand([&](CommandEvent&) { root.reset(); });
  box->onCommand([&](CommandEvent&) { command = L"later"; });
  CommandEvent event = box->makeCommand(L"1");
  box->emitCommand(event);
  EXPECT_NE(command, L"later");
}

}  // namespace
}  // namespace tessel
