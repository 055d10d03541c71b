#include "tessel/core/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_painter.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

using Log = std::vector<std::string>;

// Logs every operation the window calls on it, in order.
class Probe : public Control {
 public:
  Probe(std::wstring id, Rect bounds, Log& log) : Control(std::move(id), bounds), log_(log) {}
  void setHot(bool hot) override {
    Control::setHot(hot);
    note(hot ? ".hot" : ".cold");
  }
  void setPressed(bool pressed) override {
    Control::setPressed(pressed);
    note(pressed ? ".pressed" : ".released");
  }
  void mouseDown() override { note(".down@" + at()); }
  void mouseDragged() override { note(".dragged@" + at()); }
  void clicked() override { note(".clicked"); }
  bool mouseWheel(int32_t delta) override {
    return note(".wheel " + std::to_string(delta)) && wheels;
  }
  bool keyDown(uint32_t key, bool, bool, bool, NativeWindow) override {
    return note(".key " + std::to_string(key)) && keys;
  }
  bool charInput(char16_t unit, NativeWindow) override {
    return note(".char " + std::to_string(int(unit))) && keys;
  }
  void focusLost() override { note(".focusLost"); }

  bool wheels = false, keys = true;

 private:
  bool note(const std::string& what) {
    log_.push_back(std::string(id().begin(), id().end()) + what);
    return true;
  }
  std::string at() const {
    return std::to_string(mousePosition().x) + "," + std::to_string(mousePosition().y);
  }
  Log& log_;
};

// A container that takes every wheel turn and logs being asked to dismiss overlays.
class ProbePanel : public Panel {
 public:
  ProbePanel(std::wstring id, Rect bounds, Log& log) : Panel(std::move(id), bounds), log_(log) {}
  bool dismissOverlays(Point point, Point origin) override {
    log_.push_back("panel.dismiss");
    return Panel::dismissOverlays(point, origin);
  }
  bool mouseWheel(int32_t delta) override {
    log_.push_back("panel.wheel " + std::to_string(delta));
    return true;
  }

 private:
  Log& log_;
};

// The button's absolute place: panel (10, 10) + (20, 30).
const Point kOnButton{35, 45};
const Point kOnOther{115, 45};

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

  Image Paint() {
    Image frame = Image::blank(400, 300);
    ImageCanvas canvas(frame);
    window.paintFrame(canvas, Rect{0, 0, 400, 300});
    return frame;
  }

  // Opens the button's tooltip in the interactive mode and paints it; returns where it is.
  Rect ShowInteractiveTooltip() {
    button->setTooltip(L"MORE ABOUT THIS");
    window.setTooltipDelay(0);
    window.setTooltipMode(1);
    window.pointerMoved(kOnButton, 0);
    window.timer();
    Paint();
    return window.tooltipRect();
  }

  Log log;
  RecordingPlatform platform;
  Window window;
  ProbePanel* panel = nullptr;
  Probe* button = nullptr;
  Probe* other = nullptr;
};

TEST_F(WindowTest, AClickPressesCapturesAndClicksOnReleaseOverTheSameControl) {
  window.pointerMoved(kOnButton, 0);
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  // Nothing is an overlay here, so every press first asks the tree to dismiss overlays.
  EXPECT_EQ(log, (Log{"button.hot", "panel.dismiss", "button.pressed", "button.down@5,5",
                      "button.dragged@5,5", "button.released", "button.clicked"}));
  EXPECT_EQ(window.focusedControl(), button);
  EXPECT_EQ(platform.captures, 1);
  EXPECT_EQ(platform.releases, 1);
  EXPECT_EQ(platform.leaveRequests, 1);

  log.clear();
  window.buttonPressed(kOnButton, 1);
  window.pointerMoved(kOnOther, 1);  // captured: the pressed control is dragged, nothing turns hot
  window.timer();                    // the timer drags it too
  window.buttonReleased(kOnOther, 0);
  EXPECT_EQ(log, (Log{"panel.dismiss", "button.pressed", "button.down@5,5", "button.dragged@85,5",
                      "button.dragged@85,5", "button.dragged@85,5", "button.released",
                      "button.cold", "other.hot"}));

  log.clear();
  window.buttonPressed(kOnButton, 1);
  window.captureLost();
  EXPECT_EQ(window.pressedControl(), nullptr);
  window.buttonReleased(kOnButton, 0);  // the system swallowed the real release
  EXPECT_EQ(log.back(), "button.released");
}

TEST_F(WindowTest, ATakenReleaseDoesNotClick) {
  window.input.second.connect([](InputEvent& event) {
    if (event.kind == InputKind::Pointer && static_cast<PointerInputEvent&>(event).source == L"up")
      event.handled = true;
  });
  window.pointerMoved(kOnButton, 0);
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  EXPECT_EQ(log.back(), "button.released");
  EXPECT_EQ(window.pressedControl(), nullptr);
}

TEST_F(WindowTest, APressOutsideAnyControlClearsTheFocus) {
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  log.clear();
  window.buttonPressed(Point{-5, -5}, 1);  // outside the tree, as a captured pointer reports
  EXPECT_EQ(window.focusedControl(), nullptr);
  EXPECT_EQ(window.pressedControl(), nullptr);
  EXPECT_EQ(log, (Log{"panel.dismiss", "button.focusLost"}));
  EXPECT_EQ(platform.captures, 1);           // no control, no capture
  window.buttonPressed(Point{190, 100}, 1);  // the bare panel takes the press and the focus
  EXPECT_EQ(window.focusedControl(), panel);
}

TEST_F(WindowTest, TheWheelBubblesUpAndKeysGoToTheFocusedControl) {
  EXPECT_TRUE(window.wheel(kOnButton, 120, false, 0));
  button->wheels = true;
  EXPECT_TRUE(window.wheel(kOnButton, -120, false, 0));
  EXPECT_EQ(log, (Log{"button.wheel 120", "panel.wheel 120", "button.wheel -120"}));

  EXPECT_FALSE(window.keyPressed(13, false, false, false, nullptr));  // nobody focused
  window.buttonPressed(kOnButton, 1);
  window.buttonReleased(kOnButton, 0);
  log.clear();
  EXPECT_TRUE(window.keyPressed(13, false, false, false, nullptr));
  EXPECT_TRUE(window.character(u'a', nullptr));
  button->keys = false;
  EXPECT_FALSE(window.keyPressed(27, false, false, false, nullptr));
  EXPECT_EQ(log, (Log{"button.key 13", "button.char 97", "button.key 27"}));
}

TEST_F(WindowTest, TheTooltipOpensOnATimerTickAfterTheDelayFromTheLastRealMove) {
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
  EXPECT_EQ(window.tooltipOwner(), button);
  window.pointerLeft();
  EXPECT_FALSE(window.tooltipShown());
  window.pointerMoved(kOnButton, 0);  // hot again at 1650
  platform.clock = 2000;
  window.pointerMoved(Point{kOnButton.x + 5, kOnButton.y}, 0);  // beyond: the clock restarts
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
  window.buttonPressed(kOnOther, 1);  // a press outside the tooltip hides it
  EXPECT_FALSE(window.tooltipShown());
}

TEST_F(WindowTest, AnInteractiveTooltipCanBeReachedPinnedAndPressed) {
  const Rect tip = ShowInteractiveTooltip();
  ASSERT_FALSE(tip.empty());
  // Leaving the button straight down towards the tooltip keeps it; other controls don't turn hot.
  window.pointerMoved(Point{kOnButton.x, tip.y - 3}, 0);
  EXPECT_EQ(window.hotControl(), button);
  // A press on it stays with it.
  log.clear();
  window.buttonPressed(Point{tip.x + 2, tip.y + 2}, 1);
  EXPECT_EQ(window.pressedControl(), nullptr);
  EXPECT_TRUE(log.empty());
  // Inside it pins; a pinned tooltip survives the pointer leaving the window.
  window.pointerMoved(Point{tip.x + 4, tip.y + 4}, 0);
  window.pointerLeft();
  EXPECT_TRUE(window.tooltipShown());
  // Away from it, the grace time runs out on the timer.
  window.pointerMoved(Point{390, 10}, 0);
  platform.clock += 349;
  window.timer();
  EXPECT_TRUE(window.tooltipShown());
  platform.clock += 1;
  window.timer();
  EXPECT_FALSE(window.tooltipShown());

  ShowInteractiveTooltip();
  window.pointerMoved(kOnOther, 0);  // sideways onto the other control, away from the tooltip
  EXPECT_FALSE(window.tooltipShown());
  EXPECT_EQ(window.hotControl(), other);
}

TEST_F(WindowTest, TheTooltipIsPaintedInsideTheClientAreaAsWideAsItsLongestLine) {
  button->setTooltip(L"FIRST LINE");
  window.setTooltipDelay(0);
  window.pointerMoved(Point{395, 295}, 0);  // nothing there: no tooltip
  window.timer();
  EXPECT_FALSE(window.tooltipShown());
  window.pointerMoved(kOnButton, 0);
  window.timer();
  Paint();
  const Rect oneLine = window.tooltipRect();
  EXPECT_EQ(oneLine.y, kOnButton.y + 20);  // below the pointer
  window.pointerLeft();
  button->setTooltip(L"FIRST LINE\r\nSECOND");
  window.sized(Size{140, 70}, false);  // too small below and right of the pointer
  window.pointerMoved(Point{85, 55}, 0);
  window.timer();
  Paint();
  const Rect box = window.tooltipRect();
  EXPECT_EQ(box.width, oneLine.width);
  EXPECT_GT(box.height, oneLine.height);
  EXPECT_EQ(box.right(), 140);
  EXPECT_EQ(box.bottom(), 55 - 8);
}

TEST_F(WindowTest, SizeMovePaintsAtMaximumPerformanceWithoutGlowAndRepaintsAfter) {
  window.setUiPerformanceProfile(7);
  EXPECT_EQ(window.uiPerformanceProfile(), UiPerformanceProfile::Balanced);
  window.setUiPerformanceProfile(0);
  window.enterSizeMove();
  EXPECT_EQ(window.paintProfile(), UiPerformanceProfile::MaximumPerformance);
  const int before = platform.whole;
  window.exitSizeMove();
  EXPECT_EQ(window.paintProfile(), UiPerformanceProfile::BestGraphics);
  EXPECT_GT(platform.whole, before);

  WindowStyle style;
  style.drawSurface = false;
  window.setWindowStyle(style);
  struct Glowing : Control {
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
  window.enterSizeMove();
  const Color ground = PixelAt(Paint(), 297, 210);  // three pixels left of the surface
  window.exitSizeMove();
  EXPECT_EQ(ground, rgbColor(0x09, 0x11, 0x12));  // the background, untouched
  EXPECT_NE(PixelAt(Paint(), 297, 210), ground);
}

TEST_F(WindowTest, TheRegionFollowsTheSkinsShapes) {
  WindowStyle style;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);  // a rectangle needs none
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  ASSERT_TRUE(platform.hasRegion);
  EXPECT_EQ(platform.region, shapeRegionRects(ShapeKind::Octagon, Rect{0, 0, 400, 300}));
  style.drawSurface = false;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);
  style.drawSurface = true;
  style.customFrame = false;
  window.setWindowStyle(style);
  EXPECT_FALSE(platform.hasRegion);
}

TEST_F(WindowTest, ADiagnosticsLineAfterAPaintOnlyWhenItChanges) {
  std::vector<std::wstring> lines;
  window.setUiPerformanceProfile(1);
  window.setDiagnosticsSink([&](const std::wstring& line) { lines.push_back(line); });
  Paint();
  Paint();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0],
            L"tessel render diagnostics: requested=auto effective=gdi direct2d_active=0 "
            L"profile=balanced d2d_native_surfaces=0 d2d_native_shaders=0 d2d_hlsl_effects=0");
  window.enterSizeMove();
  Paint();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NE(lines[1].find(L"profile=maximum-performance"), std::wstring::npos);
}

TEST(ShapeRegionRects, CoverExactlyTheInsidePixels) {
  const Rect rect{5, 7, 41, 23};
  for (int32_t kind = 0; kind <= 8; ++kind) {
    const std::vector<Rect> rects = shapeRegionRects(static_cast<ShapeKind>(kind), rect);
    for (int32_t y = 0; y < rect.height; ++y) {
      for (int32_t x = 0; x < rect.width; ++x) {
        int covered = 0;
        for (const Rect& r : rects)
          covered += r.contains(rect.x + x, rect.y + y);
        const bool inside =
            isInsideShape(static_cast<ShapeKind>(kind), rect.width, rect.height, x, y);
        ASSERT_EQ(covered, inside ? 1 : 0) << kind << " at " << x << "," << y;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
