#include "tessel/core/control.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {
namespace {

TEST(Control, SetBoundsWithTheSameRectangleDoesNothing) {
  Panel root(L"root", Rect{0, 0, 400, 300});
  RecordingHost host(&root);
  root.attachToWindow(&host);
  Box* box = root.add<Box>(L"box", Rect{10, 10, 50, 20});
  host.rects.clear();
  const int layouts = box->layouts;
  box->setBounds(Rect{10, 10, 50, 20});
  EXPECT_EQ(box->layouts, layouts);
  EXPECT_TRUE(host.rects.empty());
  box->setBounds(Rect{20, 10, 50, 20});
  EXPECT_EQ(box->layouts, layouts + 1);
  // The old and the new place, each inflated by 16.
  ASSERT_EQ(host.rects.size(), 2u);
  EXPECT_EQ(host.rects[0], (Rect{0, 0, 76, 46}));
  EXPECT_EQ(host.rects[1], (Rect{4, 0, 82, 46}));
}

TEST(Control, DirectSetBoundsBecomesTheNextDesign) {
  Panel root(L"root", Rect{0, 0, 200, 100});
  Box* box = root.add<Box>(L"box", Rect{10, 10, 50, 20});
  box->setAnchors(kAnchorLeft | kAnchorRight);
  root.setBounds(Rect{0, 0, 300, 100});
  EXPECT_EQ(box->bounds(), (Rect{10, 10, 150, 20}));  // grew by 100, kept its right margin 140
  box->setBounds(Rect{20, 10, 40, 20});
  EXPECT_FALSE(box->designCaptured());
  root.setBounds(Rect{0, 0, 400, 100});
  // Captured again against 400: the new rectangle is the design, margins from it.
  EXPECT_EQ(box->bounds(), (Rect{20, 10, 40, 20}));
  root.setBounds(Rect{0, 0, 450, 100});
  EXPECT_EQ(box->bounds(), (Rect{20, 10, 90, 20}));
}

TEST(Control, DisabledPanelHidesChildrenButStillDismisses) {
  struct Popup : Box {
    using Box::Box;
    bool dismissOverlays(Point, Point) override { return ++dismissed > 0; }
    int dismissed = 0;
  };
  Panel root(L"root", Rect{0, 0, 200, 100});
  Panel* inner = root.add<Panel>(L"inner", Rect{0, 0, 200, 100});
  Popup* popup = inner->add<Popup>(L"popup", Rect{10, 10, 50, 20});
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), popup);
  inner->setEnabled(false);
  EXPECT_EQ(root.hitTest(Point{20, 20}, Point{}), &root);
  EXPECT_TRUE(root.dismissOverlays(Point{-32000, -32000}, Point{}));
  EXPECT_EQ(popup->dismissed, 1);
}

TEST(Control, InvisibleGetsNoTickCollapsedStillPaints) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  Box* hidden = root.add<Box>(L"hidden", Rect{0, 0, 10, 10});
  Box* collapsed = root.add<Box>(L"collapsed", Rect{20, 0, 10, 10}, rgbColor(255, 0, 0));
  hidden->setVisible(false);
  collapsed->setCollapsed(true);
  collapsed->wantsTick = true;
  EXPECT_TRUE(root.tick());
  EXPECT_EQ(hidden->ticks, 0);
  EXPECT_EQ(collapsed->ticks, 1);
  EXPECT_EQ(collapsed->minimumSize(), (Size{0, 0}));
  Image image = Image::blank(100, 100);
  ImageCanvas canvas(image);
  root.paint(canvas, Point{});
  EXPECT_EQ(hidden->paints, 0);
  EXPECT_EQ(collapsed->paints, 1);
  EXPECT_EQ(PixelAt(image, 25, 5), rgbColor(255, 0, 0));
}

TEST(Control, ApplyStateWithoutBoundsStillAppliesTheRest) {
  Box box(L"box", Rect{1, 2, 3, 4}, 7);
  ControlState state;
  box.captureState(state);
  EXPECT_EQ(state.id, L"box");
  ASSERT_EQ(state.values.size(), 1u);
  state.bounds = Rect{9, 9, 9, 9};
  state.visible = false;
  state.collapsed = true;
  state.styleId = L"x";
  state.setValue(L"color", L"99");
  box.applyState(state, false);
  EXPECT_EQ(box.bounds(), (Rect{1, 2, 3, 4}));
  EXPECT_FALSE(box.visible());
  EXPECT_TRUE(box.collapsed());
  EXPECT_EQ(box.styleId(), L"x");
  EXPECT_EQ(box.color, 99u);
  box.applyState(state, true);
  EXPECT_EQ(box.bounds(), (Rect{9, 9, 9, 9}));
}

TEST(ControlState, SetValueReplacesInPlaceOrAppends) {
  ControlState state;
  state.setValue(L"a", L"1");
  state.setValue(L"b", L"2");
  state.setValue(L"a", L"3");
  ASSERT_EQ(state.values.size(), 2u);
  EXPECT_EQ(state.values[0], (StateValue{L"a", L"3"}));
  EXPECT_EQ(*state.value(L"b"), L"2");
  EXPECT_EQ(state.value(L"c"), nullptr);
}

TEST(FindById, ChildrenAtAnyDepthButNotAPanelsAttachedChildren) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  Panel* a = root.add<Panel>(L"a", Rect{0, 0, 50, 50});
  Panel* b = a->add<Panel>(L"b", Rect{0, 0, 20, 20});
  Box* deep = b->add<Box>(L"deep", Rect{0, 0, 5, 5});
  Box* plain = root.add<Box>(L"plain", Rect{60, 0, 10, 10});
  Control* underBox = plain->addAttachedChild(std::make_unique<Box>(L"under-box", Rect{}));
  a->addAttachedChild(std::make_unique<Box>(L"under-panel", Rect{}));
  EXPECT_EQ(findById(root, L"root"), &root);
  EXPECT_EQ(findById(root, L"deep"), deep);
  EXPECT_EQ(findById(root, L"under-box"), underBox);  // a plain control navigates its attached
  EXPECT_EQ(findById(root, L"under-panel"), nullptr);
  EXPECT_EQ(findById(root, L"DEEP"), nullptr);
  EXPECT_EQ(findById(root, L"missing"), nullptr);
}

struct AnchorTextCase {
  uint32_t anchors;
  const wchar_t* text;
};

TEST(AnchorText, NamesInOrder) {
  const AnchorTextCase cases[] = {{0, L"None"},
                                  {kAnchorLeft | kAnchorTop, L"Left|Top"},
                                  {kAnchorBottom | kAnchorRight, L"Right|Bottom"},
                                  {15, L"Left|Top|Right|Bottom"}};
  for (const AnchorTextCase& c : cases)
    EXPECT_EQ(anchorText(c.anchors), c.text);
}

struct TooltipCase {
  const wchar_t* description;
  const wchar_t* clipped;
  const wchar_t* shown;
};

TEST(Control, TooltipCombinesClippedTextAndDescription) {
  struct Clipping : Control {
    using Control::Control;
    std::wstring clippedText() const override { return clipped; }
    std::wstring clipped;
  };
  const TooltipCase cases[] = {
      {L"Saves the profile.", L"", L"Saves the profile."},
      {L"", L"Work week", L"Work week"},
      {L"Work week and more", L"Work week", L"Work week and more"},
      {L"Saves it.", L"Work week", L"Work week\nSaves it."},
  };
  for (const TooltipCase& c : cases) {
    Clipping control(L"c", Rect{});
    control.setTooltip(c.description);
    control.clipped = c.clipped;
    EXPECT_EQ(control.composedTooltip(), c.shown);
  }
}

TEST(Control, AddedWithoutWindowWorksOnceAttached) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  Box* box = root.add<Box>(L"box", Rect{10, 10, 20, 20}, rgbColor(0, 0, 255));
  EXPECT_EQ(box->window(), nullptr);
  box->setHot(true);  // no window: nothing to invalidate, nothing breaks
  RecordingHost host(&root);
  root.attachToWindow(&host);
  EXPECT_EQ(box->window(), &host);
  EXPECT_EQ(root.hitTest(Point{15, 15}, Point{}), box);
  box->setHot(false);
  ASSERT_EQ(host.rects.size(), 1u);
  EXPECT_EQ(host.rects[0], (Rect{2, 2, 36, 36}));
}

TEST(Control, UnplacedControlInvalidatesTheWholeWindow) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  RecordingHost host(nullptr);  // the tree is not the window's root
  root.attachToWindow(&host);
  root.setEnabled(false);
  EXPECT_EQ(host.wholeWindow, 1);
}

TEST(ApplySkinTree, StylesControlsWithAnId) {
  Panel root(L"root", Rect{0, 0, 100, 100});
  Box* styled = root.add<Box>(L"a", Rect{});
  styled->setStyleId(L"primary");
  Box* plain = root.add<Box>(L"b", Rect{});
  Box* attached = static_cast<Box*>(plain->addAttachedChild(std::make_unique<Box>(L"c", Rect{})));
  attached->setStyleId(L"x");
  const StyleSheet sheet{Theme()};
  EXPECT_EQ(applySkinTree(sheet, root), 2);
  EXPECT_EQ(styled->skins, 1);
  EXPECT_EQ(plain->skins, 0);
  EXPECT_EQ(attached->skins, 1);
}

TEST(Signals, AHandlerMayDestroyTheTreeOfItsEmitter) {
  auto root = std::make_unique<Panel>(L"root", Rect{0, 0, 100, 100});
  Box* button = root->add<Box>(L"save", Rect{0, 0, 10, 10});
  std::wstring seen;
  button->onCommand([&](CommandEvent& event) {
    seen = event.command + L"=" + event.value;
    root.reset();  // the dialog closes from inside the click
  });
  int later = 0;
  button->onCommand([&](CommandEvent&) { ++later; });
  CommandEvent event = button->makeCommand(L"1");
  button->emitCommand(event);
  EXPECT_EQ(seen, L"save=1");
  // The later handler belonged to the destroyed tree and may point into it: it is not called.
  EXPECT_EQ(later, 0);
  EXPECT_EQ(root, nullptr);
}

TEST(Signals, CommandNameOverridesTheId) {
  Box box(L"id", Rect{});
  std::wstring command = L"?";
  box.onCommand([&](CommandEvent& event) { command = event.command; });
  CommandEvent fromId = box.makeCommand(L"");
  box.emitCommand(fromId);
  EXPECT_EQ(command, L"id");
  box.setCommandName(L"chrome");
  CommandEvent empty;
  box.emitCommand(empty);
  EXPECT_EQ(command, L"chrome");
  Box anonymous(L"", Rect{});
  anonymous.onCommand([&](CommandEvent& event) { command = event.command; });
  CommandEvent none;
  anonymous.emitCommand(none);
  EXPECT_EQ(command, L"");  // still emitted
}

}  // namespace
}  // namespace tessel
