#include "tessel/core/window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tessel/paint/image_canvas.h"
#include "tests/tessel/core/test_controls.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_painter.h"

namespace tessel {
namespace {

class RecordingPlatform : public WindowPlatform {
 public:
  void invalidate(const Rect& rect) override { rects.push_back(rect); }
  void invalidateAll() override { ++whole; }
  void setCapture() override { ++captures; }
  void releaseCapture() override { ++releases; }
  void trackPointerLeave() override { ++leaveRequests; }
  uint64_t tickMs() const override { return clock; }
  bool buttonHeld() const override { return held; }
  void postClose() override { ++closes; }
  void setRegion(const std::vector<Rect>& rects, bool shaped) override {
    region = rects;
    hasRegion = shaped;
    ++regionCalls;
  }

  std::vector<Rect> rects;
  int whole = 0, captures = 0, releases = 0, leaveRequests = 0, closes = 0, regionCalls = 0;
  uint64_t clock = 1000;
  bool held = false;
  std::vector<Rect> region;
  bool hasRegion = false;
};

// Records every operation the window calls, in order.
class Probe : public Control {
 public:
  Probe(std::wstring id, Rect bounds, std::vector<std::string>& log)
      : Control(std::move(id), bounds), log_(log) {}
  void setHot(bool hot) override {
    Control::setHot(hot);
    log_.push_back(name() + (hot ? ".hot" : ".cold"));
  }
  void setPressed(bool pressed) override {
    Control::setPressed(pressed);
    log_.push_back(name() + (pressed ? ".pressed" : ".released"));
  }
  void mouseDown() override { log_.push_back(name() + ".down@" + at()); }
  void mouseDragged() override { log_.push_back(name() + ".dragged@" + at()); }
  void clicked() override { log_.push_back(name() + ".clicked"); }
  bool mouseWheel(int32_t delta) override {
    log_.push_back(name() + ".wheel " + std::to_string(delta));
    return takesWheel;
  }
  bool keyDown(uint32_t key, bool, bool, bool, NativeWindow) override {
    log_.push_back(name() + ".key " + std::to_string(key));
    return takesKeys;
  }
  bool charInput(char16_t unit, NativeWindow) override {
    log_.push_back(name() + ".char " + std::to_string(int(unit)));
    return takesKeys;
  }
  void focusLost() override { log_.push_back(name() + ".focusLost"); }

  bool takesWheel = false;
  bool takesKeys = true;

 private:
  std::string name() const { return std::string(id().begin(), id().end()); }
  std::string at() const {
    return std::to_string(mousePosition().x) + "," + std::to_string(mousePosition().y);
  }
  std::vector<std::string>& log_;
};

// A container that records being asked to dismiss its overlays.
class ProbePanel : public Panel {
 public:
  ProbePanel(std::wstring id, Rect bounds, std::vector<std::string>& log)
      : Panel(std::move(id), bounds), log_(log) {}
  bool dismissOverlays(Point point, Point origin) override {
    log_.push_back("panel.dismiss");
    return Panel::dismissOverlays(point, origin);
  }
  bool mouseWheel(int32_t delta) override {
    log_.push_back("panel.wheel " + std::to_string(delta));
    return true;
  }

 private:
  std::vector<std::string>& log_;
};

// Absolute place of the button: panel (10, 10) + (20, 30).
const Point kOnButton{35, 45};
const Point kOnOther{115, 45};
const Point kOnPanel{190, 100};

class WindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    window.setPlatform(&platform);
    panel = window.rootPanel().add<ProbePanel>(L"panel", Rect{10, 10, 200, 100}, log);
    button = panel->add<Probe>(L"button", Rect{20, 30, 60, 20}, log);
    other = panel->add<Probe>(L"other", Rect{100, 30, 60, 20}, log);
    window.sized(Size{400, 300}, false);
    log.clear();
  }

  // Opens the button's tooltip in the interactive mode and paints it; returns where it is.
  Rect ShowInteractiveTooltip() {
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

  std::vector<std::string> log;
  RecordingPlatform platform;
  Window window;
  ProbePanel* panel = nullptr;
  Probe* button = nullptr;
  Probe* other = nullptr;
};

TEST_F(WindowTest, AClickPressesCapturesAndClicksOnRelease) {
  window.pointerMoved(kOnButton, 0);
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  // Nothing is an overlay here, so every press first asks the tree to dismiss overlays.
  const std::vector<std::string> expected = {
      "button.hot",         "panel.dismiss",   "button.pressed", "button.down@5,5",
      "button.dragged@5,5", "button.released", "button.clicked"};
  // (The button stays hot through the release, so no hot change sits before the click.)
  EXPECT_EQ(log, expected);
  EXPECT_EQ(window.focusedControl(), button);
  EXPECT_EQ(platform.captures, 1);
  EXPECT_EQ(platform.releases, 1);
  EXPECT_EQ(platform.leaveRequests, 1);
}

TEST_F(WindowTest, ReleaseOutsideThePressedControlDoesNotClick) {
  window.buttonPressed(kOnButton, 1);
  window.pointerMoved(kOnOther, 1);  // captured: the pressed control is dragged, nothing turns hot
  window.buttonReleased(kOnOther, 0);
  const std::vector<std::string> expected = {
      "panel.dismiss",       "button.pressed",  "button.down@5,5", "button.dragged@85,5",
      "button.dragged@85,5", "button.released", "other.hot"};
  EXPECT_EQ(log, expected);
}

TEST_F(WindowTest, LosingTheCaptureEndsThePressWithoutAClick) {
  window.buttonPressed(kOnButton, 1);
  window.captureLost();
  EXPECT_EQ(window.pressedControl(), nullptr);
  window.buttonReleased(kOnButton, 0);  // the system swallowed the real release
  EXPECT_EQ(std::count(log.begin(), log.end(), "button.clicked"), 0);
  EXPECT_EQ(log.back(), "button.released");
}

TEST_F(WindowTest, ATakenReleaseDoesNotClick) {
  window.input.second.connect([](InputEvent& event) {
    if (event.kind == InputKind::Pointer && static_cast<PointerInputEvent&>(event).source == L"up")
      event.handled = true;
  });
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  EXPECT_EQ(std::count(log.begin(), log.end(), "button.clicked"), 0);
  EXPECT_EQ(window.pressedControl(), nullptr);
}

TEST_F(WindowTest, APressOutsideAnyControlClearsTheFocusAndDismissesOverlays) {
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  log.clear();
  // Outside the tree (a point a captured pointer can report): nothing is hit.
  window.buttonPressed(Point{-5, -5}, 1);
  EXPECT_EQ(window.focusedControl(), nullptr);
  EXPECT_EQ(window.pressedControl(), nullptr);
  const std::vector<std::string> expected = {"panel.dismiss", "button.focusLost"};
  EXPECT_EQ(log, expected);
  EXPECT_EQ(platform.captures, 1);  // no control, no capture
  // On the bare panel the panel itself takes the press and the focus.
  window.buttonPressed(kOnPanel, 1);
  EXPECT_EQ(window.focusedControl(), panel);
}

TEST_F(WindowTest, TheWheelBubblesUpUntilConsumed) {
  EXPECT_TRUE(window.wheel(kOnButton, 120, false, 0));
  const std::vector<std::string> bubbled = {"button.wheel 120", "panel.wheel 120"};
  EXPECT_EQ(log, bubbled);
  log.clear();
  button->takesWheel = true;
  EXPECT_TRUE(window.wheel(kOnButton, -120, false, 0));
  const std::vector<std::string> kept = {"button.wheel -120"};
  EXPECT_EQ(log, kept);
}

TEST_F(WindowTest, KeysAndCharactersGoToTheFocusedControl) {
  EXPECT_FALSE(window.keyPressed(13, false, false, false, nullptr));  // nobody focused
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  log.clear();
  EXPECT_TRUE(window.keyPressed(13, false, false, false, nullptr));
  EXPECT_TRUE(window.character(u'a', nullptr));
  button->takesKeys = false;
  EXPECT_FALSE(window.keyPressed(27, false, false, false, nullptr));
  const std::vector<std::string> expected = {"button.key 13", "button.char 97", "button.key 27"};
  EXPECT_EQ(log, expected);
}

TEST_F(WindowTest, TheTimerDragsAPressedControl) {
  window.buttonPressed(kOnButton, 1);
  window.pointerMoved(Point{40, 47}, 1);
  log.clear();
  window.timer();
  const std::vector<std::string> expected = {"button.dragged@10,7"};
  EXPECT_EQ(log, expected);
}

TEST_F(WindowTest, TooltipOpensAfterTheDelayOnATimerTickOnly) {
  button->setTooltip(L"Applies the profile");
  window.setTooltipDelay(0);
  window.pointerMoved(kOnButton, 0);
  EXPECT_FALSE(window.tooltipShown());  // not sooner than the next tick
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
  EXPECT_EQ(window.tooltipOwner(), button);
  // A press outside the tooltip hides it.
  window.buttonPressed(kOnOther, 1);
  EXPECT_FALSE(window.tooltipShown());
}

TEST_F(WindowTest, TooltipClockRestartsOnRealMovesOnly) {
  button->setTooltip(L"Tip");
  window.setTooltipDelay(650);
  window.pointerMoved(kOnButton, 0);  // clock 1000
  platform.clock = 1500;
  window.pointerMoved(Point{kOnButton.x + 4, kOnButton.y}, 0);  // within the tolerance
  platform.clock = 1649;
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
  platform.clock = 1650;
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
  window.pointerLeft();
  EXPECT_FALSE(window.tooltipShown());
  // A move beyond the tolerance restarts the clock.
  window.pointerMoved(kOnButton, 0);  // hot again at 1650
  platform.clock = 2000;
  window.pointerMoved(Point{kOnButton.x + 5, kOnButton.y}, 0);
  platform.clock = 2300;
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
  platform.clock = 2650;
  platform.held = true;  // never while a button is held
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
  platform.held = false;
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
}

TEST_F(WindowTest, AnInteractiveTooltipCanBeReachedAndPinned) {
  const Rect tip = ShowInteractiveTooltip();
  ASSERT_FALSE(tip.empty());
  // Leaving the button straight down towards the tooltip keeps it; other controls don't turn hot.
  window.pointerMoved(Point{kOnButton.x, tip.y - 3}, 0);
  EXPECT_TRUE(window.tooltipShown());
  EXPECT_EQ(window.hotControl(), button);
  // Inside it pins; a pinned tooltip survives the pointer leaving the window.
  window.pointerMoved(Point{tip.x + 4, tip.y + 4}, 0);
  window.pointerLeft();
  EXPECT_TRUE(window.tooltipShown());
  // Away from it, the grace time runs out on the timer.
  window.pointerMoved(Point{390, 10}, 0);
  EXPECT_TRUE(window.tooltipShown());
  platform.clock += 349;
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
  platform.clock += 1;
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
}

TEST_F(WindowTest, APressOnTheTooltipDoesNotReachWhatItCovers) {
  const Rect tip = ShowInteractiveTooltip();
  log.clear();
  window.buttonPressed(Point{tip.x + 2, tip.y + 2}, 1);
  EXPECT_TRUE(window.tooltipShown());
  EXPECT_EQ(window.pressedControl(), nullptr);
  EXPECT_TRUE(log.empty());
}

TEST_F(WindowTest, AnInteractiveTooltipClosesWhenThePointerTurnsAway) {
  ShowInteractiveTooltip();
  window.pointerMoved(kOnOther, 0);  // sideways onto the other control, away from the tooltip
  EXPECT_FALSE(window.tooltipShown());
  EXPECT_EQ(window.hotControl(), other);
}

TEST_F(WindowTest, TheTooltipIsPaintedInsideTheClientArea) {
  button->setTooltip(L"FIRST LINE\nSECOND");
  window.setTooltipDelay(0);
  window.pointerMoved(Point{395, 295}, 0);  // nothing there: no tooltip
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
  window.pointerMoved(kOnButton, 0);
  window.timer();
  Image frame = Image::blank(400, 300);
  ImageCanvas canvas(frame);
  window.paintFrame(canvas, Rect{0, 0, 400, 300});
  const Rect box = window.tooltipRect();
  ASSERT_FALSE(box.empty());
  EXPECT_GE(box.x, 0);
  EXPECT_LE(box.right(), 400);
  EXPECT_GT(box.y, kOnButton.y);  // below the pointer
  EXPECT_GT(box.height, 2 * 7);   // two lines of text
}

TEST_F(WindowTest, SizeMovePaintsAtMaximumPerformanceAndRepaintsAfter) {
  window.setUiPerformanceProfile(0);
  EXPECT_EQ(window.paintProfile(), UiPerformanceProfile::BestGraphics);
  window.enterSizeMove();
  EXPECT_EQ(window.paintProfile(), UiPerformanceProfile::MaximumPerformance);
  const int before = platform.whole;
  window.exitSizeMove();
  EXPECT_EQ(window.paintProfile(), UiPerformanceProfile::BestGraphics);
  EXPECT_GT(platform.whole, before);
  window.setUiPerformanceProfile(7);
  EXPECT_EQ(window.uiPerformanceProfile(), UiPerformanceProfile::Balanced);
}

TEST_F(WindowTest, RegionFollowsTheSkinsShapes) {
  WindowStyle style;
  style.surface.shape = ShapeKind::Rectangle;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);  // a rectangle needs none
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  ASSERT_TRUE(platform.hasRegion);
  EXPECT_EQ(platform.region, shapeRegionRects(ShapeKind::Octagon, Rect{0, 0, 400, 300}));
  style.customFrame = false;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);
}

// While the user drags the window, glow and shadow are left out; the repaint after the move
// brings them back.
TEST_F(WindowTest, NoGlowWhileTheWindowIsDragged) {
  WindowStyle style;
  style.drawSurface = false;
  window.setWindowStyle(style);
  class Glowing : public Control {
   public:
    using Control::Control;
    void paint(Canvas& canvas, Point origin) override {
      SurfaceStyle s;
      s.drawFill = s.drawBorder = false;
      s.showGlow = true;
      s.glowRadius = 6;
      s.glowOpacity = 200;
      s.glow = rgbColor(255, 255, 255);
      drawSurface(canvas, Rect{origin.x + bounds().x, origin.y + bounds().y, 40, 20}, s);
    }
  };
  window.rootPanel().add<Glowing>(L"glow", Rect{300, 200, 40, 20});
  window.relayout();
  const auto glowAt = [&](bool dragging) {
    if (dragging) window.enterSizeMove();
    Image frame = Image::blank(400, 300);
    ImageCanvas canvas(frame);
    window.paintFrame(canvas, Rect{0, 0, 400, 300});
    if (dragging) window.exitSizeMove();
    return PixelAt(frame, 297, 210);  // three pixels left of the surface
  };
  const Color ground = glowAt(true);
  EXPECT_EQ(ground, rgbColor(0x09, 0x11, 0x12));  // the background, untouched
  EXPECT_NE(glowAt(false), ground);
}

TEST_F(WindowTest, DiagnosticsLineAfterAPaintOnlyWhenItChanges) {
  std::vector<std::wstring> lines;
  window.setUiPerformanceProfile(1);
  window.setDiagnosticsSink([&](const std::wstring& line) { lines.push_back(line); });
  Image frame = Image::blank(400, 300);
  ImageCanvas canvas(frame);
  window.paintFrame(canvas, Rect{0, 0, 400, 300});
  window.paintFrame(canvas, Rect{0, 0, 10, 10});
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0],
            L"tessel render diagnostics: requested=auto effective=gdi direct2d_active=0 "
            L"profile=balanced d2d_native_surfaces=0 d2d_native_shaders=0 d2d_hlsl_effects=0");
  window.enterSizeMove();
  window.paintFrame(canvas, Rect{0, 0, 400, 300});
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NE(lines[1].find(L"profile=maximum-performance"), std::wstring::npos);
}

TEST(ShapeRegionRects, CoverExactlyTheInsidePixels) {
  for (int32_t kind = 0; kind <= 8; ++kind) {
    const Rect rect{5, 7, 41, 23};
    const std::vector<Rect> rects = shapeRegionRects(static_cast<ShapeKind>(kind), rect);
    for (int32_t y = 0; y < rect.height; ++y) {
      for (int32_t x = 0; x < rect.width; ++x) {
        int covered = 0;
        for (const Rect& r : rects)
          covered += r.contains(rect.x + x, rect.y + y);
        ASSERT_EQ(
            covered,
            isInsideShape(static_cast<ShapeKind>(kind), rect.width, rect.height, x, y) ? 1 : 0)
            << kind << " at " << x << "," << y;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
