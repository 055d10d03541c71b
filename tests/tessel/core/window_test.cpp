#include "tessel/core/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/paint/shape_geometry.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

using Log = std::vector<std::string>;

// Logs what the window asks of it as "<id>.<what>".
template <typename Base>
class Probe : public Base {
 public:
  Probe(std::wstring id, Rect bounds, Log& log) : Base(std::move(id), bounds), log_(log) {}
  void setHot(bool hot) override { Base::setHot(note(hot ? "hot" : "cold", hot)); }
  void setPressed(bool on) override { Base::setPressed(note(on ? "pressed" : "released", on)); }
  void mouseDown() override { note("down@" + std::to_string(this->mousePosition().x)); }
  void mouseDragged() override { note("dragged@" + std::to_string(this->mousePosition().x)); }
  void clicked() override { note("clicked"); }
  void focusLost() override { note("focusLost"); }
  bool dismissOverlays(Point point, Point origin) override {
    if (this->isContainer()) note("dismiss");
    return Base::dismissOverlays(point, origin);
  }

 private:
  bool note(const std::string& what, bool result = false) {
    log_.push_back(std::string(this->id().begin(), this->id().end()) + "." + what);
    return result;
  }
  Log& log_;
};

// The button's absolute place: panel (10, 10) + (20, 30).
const Point kOnButton{35, 45};
const Point kOnOther{115, 45};

class WindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    window.setPlatform(&platform);
    panel = window.rootPanel().add<Probe<Panel>>(L"panel", Rect{10, 10, 200, 100}, log);
    button = panel->add<Probe<Control>>(L"button", Rect{20, 30, 60, 20}, log);
    other = panel->add<Probe<Control>>(L"other", Rect{100, 30, 60, 20}, log);
    window.sized(Size{400, 300}, false);
    log.clear();
  }
  // Shows the button's interactive tooltip after a timer tick, painted; returns where it is.
  Rect ShowTooltip() {
    button->setTooltip(L"MORE ABOUT THIS");
    window.setTooltipDelay(0);
    window.setTooltipMode(1);
    window.pointerMoved(kOnButton, 0);
    window.timer();
    Image frame = Image::blank(400, 300);
    ImageCanvas canvas(frame);
    window.paintFrame(canvas, Rect{0, 0, 400, 300});
    return window.tooltipRect();
  }

  Log log;
  RecordingPlatform platform;
  Window window;
  Probe<Panel>* panel = nullptr;
  Probe<Control>* button = nullptr;
  Probe<Control>* other = nullptr;
};

TEST_F(WindowTest, APressCapturesAndClicksOnReleaseOverTheSameControlOnly) {
  window.pointerMoved(kOnButton, 0);
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  // Nothing is an overlay here, so every press first asks the tree to dismiss overlays.
  EXPECT_EQ(log, (Log{"button.hot", "panel.dismiss", "button.pressed", "button.down@5",
                      "button.dragged@5", "button.released", "button.clicked"}));
  EXPECT_EQ(window.focusedControl(), button);
  EXPECT_EQ(platform.captures + platform.releases + platform.leaveRequests, 3);

  log.clear();
  window.buttonPressed(kOnButton, 1);
  window.pointerMoved(kOnOther, 1);  // captured: the pressed control is dragged, nothing turns hot
  window.timer();                    // and so does the timer
  window.buttonReleased(kOnOther, 0);
  EXPECT_EQ(log, (Log{"panel.dismiss", "button.pressed", "button.down@5", "button.dragged@85",
                      "button.dragged@85", "button.dragged@85", "button.released", "button.cold",
                      "other.hot"}));

  window.buttonPressed(kOnOther, 1);
  window.captureLost();  // the system swallowed the release
  EXPECT_EQ(window.pressedControl(), nullptr);
  log.clear();
  window.buttonPressed(Point{-5, -5}, 1);  // outside the tree, as a captured pointer reports
  EXPECT_EQ(window.focusedControl(), nullptr);
  EXPECT_EQ(log, (Log{"panel.dismiss", "other.focusLost"}));
  window.buttonPressed(Point{190, 100}, 1);  // the bare panel takes the press and the focus
  EXPECT_EQ(window.focusedControl(), panel);
}

TEST_F(WindowTest, TheTooltipOpensOnATimerTickAfterTheDelayFromTheLastRealMove) {
  button->setTooltip(L"Tip");
  window.setTooltipDelay(650);
  const auto shownAt = [&](uint64_t clock, int32_t dx, bool held = false) {
    platform.clock = clock;
    platform.held = held;
    if (dx >= 0) window.pointerMoved(Point{kOnButton.x + dx, kOnButton.y}, 0);
    window.timer();
    return window.tooltipShown();
  };
  EXPECT_FALSE(shownAt(1000, 0));
  EXPECT_FALSE(shownAt(1500, 4));  // within the tolerance: the clock goes on
  EXPECT_TRUE(shownAt(1650, -1));
  window.pointerLeft();
  EXPECT_FALSE(shownAt(2000, 5));  // beyond it: the clock restarts
  EXPECT_FALSE(shownAt(2649, -1));
  EXPECT_FALSE(shownAt(2650, -1, true));  // never while a button is held
  EXPECT_TRUE(shownAt(2650, -1));
  window.buttonPressed(kOnOther, 1);  // a press outside the tooltip hides it
  EXPECT_FALSE(window.tooltipShown());
}

TEST_F(WindowTest, AnInteractiveTooltipCanBeReachedPinnedAndPressed) {
  const Rect tip = ShowTooltip();
  ASSERT_FALSE(tip.empty());
  // Leaving the button straight down towards the tooltip keeps it; other controls don't turn hot.
  window.pointerMoved(Point{kOnButton.x, tip.y - 3}, 0);
  EXPECT_EQ(window.hotControl(), button);
  log.clear();
  window.buttonPressed(Point{tip.x + 2, tip.y + 2}, 1);  // a press on it stays with it
  EXPECT_TRUE(log.empty());
  // Inside it pins; a pinned tooltip survives the pointer leaving the window.
  window.pointerMoved(Point{tip.x + 4, tip.y + 4}, 0);
  window.pointerLeft();
  window.pointerMoved(Point{390, 10}, 0);  // away from it the grace time runs on the timer
  platform.clock += 349;
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
  platform.clock += 1;
  window.timer();
  EXPECT_FALSE(window.tooltipShown());

  ShowTooltip();
  window.pointerMoved(kOnOther, 0);  // sideways onto the other control, away from the tooltip
  EXPECT_FALSE(window.tooltipShown());
  EXPECT_EQ(window.hotControl(), other);
}

TEST_F(WindowTest, TheRegionFollowsTheSkinsShapes) {
  WindowStyle style;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);  // a rectangle needs none
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  ASSERT_TRUE(platform.hasRegion);
  EXPECT_EQ(platform.region, shapeRegionRects(ShapeKind::Octagon, Rect{0, 0, 400, 300}));
  for (bool surface : {false, true}) {  // not without a surface, nor without a custom frame
    style.drawSurface = surface;
    style.customFrame = !surface;
    window.setWindowStyle(style);
    EXPECT_FALSE(platform.hasRegion) << surface;
  }
}

TEST(ShapeRegionRects, CoverExactlyTheInsidePixels) {
  const Rect rect{5, 7, 41, 23};
  for (int32_t kind = 0; kind <= 8; ++kind) {
    const auto shape = static_cast<ShapeKind>(kind);
    const std::vector<Rect> rects = shapeRegionRects(shape, rect);
    for (int32_t y = 0; y < rect.height; ++y) {
      for (int32_t x = 0; x < rect.width; ++x) {
        int covered = 0;
        for (const Rect& r : rects)
          covered += r.contains(rect.x + x, rect.y + y);
        ASSERT_EQ(covered, isInsideShape(shape, rect.width, rect.height, x, y) ? 1 : 0)
            << kind << " at " << x << "," << y;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
