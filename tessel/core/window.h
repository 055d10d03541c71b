// A control tree in one top-level window: the root panel, the window's skin record, and what no
// control can do alone: pointer capture and the hot, pressed and focused controls, wheel
// bubbling, keyboard routing, the 125 ms timer, the tooltip drawn inside the client area, the
// window's region from the skin's shapes, size limits and the custom frame's border. Messages
// arrive as calls in client coordinates; the platform beneath is a WindowPlatform.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tessel/core/events.h"
#include "tessel/core/panel.h"
#include "tessel/core/tooltip_path.h"
#include "tessel/core/window_host.h"
#include "tessel/core/window_platform.h"
#include "tessel/paint/canvas.h"
#include "tessel/paint/ui_performance.h"
#include "tessel/style/tooltip_style.h"
#include "tessel/style/window_style.h"

namespace tessel {

class Window : public WindowHost {
 public:
  Window();
  ~Window() override;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  // Hooks of the kinds of window (dialogs, popups).
  virtual void onCreated() {}
  virtual void onDestroying() {}
  virtual void paintWindowOverlay(Canvas& canvas, const Rect& client) {
    (void)canvas;
    (void)client;
  }

  Panel& rootPanel() { return root_; }
  WindowPlatform* platform() const { return platform_; }
  // The platform stays owned by the caller; null detaches (the window was destroyed).
  void setPlatform(WindowPlatform* platform) { platform_ = platform; }

  void setTitle(std::wstring title) { title_ = std::move(title); }
  const std::wstring& title() const { return title_; }
  void setBackground(Color colour);
  void setWindowStyle(const WindowStyle& style);
  const WindowStyle& windowStyle() const { return windowStyle_; }
  void setTooltipStyle(const TooltipStyle& style) { tooltipStyle_ = style; }
  void setTooltipDelay(int32_t ms) { tooltipDelayMs_ = ms < 0 ? 0 : ms; }
  // 1: the tooltip can be reached with the pointer (it stays on the way and pins when entered).
  void setTooltipMode(int32_t mode) { tooltipMode_ = mode; }
  int32_t tooltipDelay() const { return tooltipDelayMs_; }
  void setMinimumClientSize(Size size) { minimumClientSize_ = size; }
  void setAutoMinimumSize(bool on) { autoMinimumSize_ = on; }
  // Values other than the three profiles become balanced.
  void setUiPerformanceProfile(int32_t value);
  UiPerformanceProfile uiPerformanceProfile() const { return profile_; }
  void setResizeHandler(std::function<void(Size)> handler) { resizeHandler_ = std::move(handler); }
  void setThemeChangedHandler(std::function<void(Window&)> handler) {
    themeChangedHandler_ = std::move(handler);
  }
  void setTooltipActionHandler(std::function<void(const Control&, const TooltipAction&)> handler) {
    tooltipActionHandler_ = std::move(handler);
  }
  void setCloseOnDeactivate(bool on) { closeOnDeactivate_ = on; }
  void setRenderMode(RenderMode mode) { renderMode_ = mode; }
  RenderMode renderMode() const { return renderMode_; }
  // Receives the render diagnostics line after a paint whenever it differs from the last one.
  void setDiagnosticsSink(std::function<void(const std::wstring&)> sink) {
    diagnosticsSink_ = std::move(sink);
  }
  void close();

  // The theme handler, then the tree's themeChanged, then a fresh layout.
  void reapplyTheme();

  // --- WindowHost ---
  void invalidateRect(const Rect& rect) override;
  void invalidateAll() override;
  void updateRegion() override;
  Size clientSize() const override { return client_; }
  Control* rootControl() override { return &root_; }

  // --- Messages, in client coordinates. ---
  void created();
  void destroying();
  // A new client size; `iconic` only hides the tooltip.
  void sized(Size client, bool iconic);
  void relayout();
  void moved();
  void deactivated();
  void appDeactivated();
  void enterSizeMove() { inSizeMove_ = true; }
  void exitSizeMove();
  void pointerMoved(Point point, uint32_t keyState);
  void buttonPressed(Point point, uint32_t keyState);
  void buttonReleased(Point point, uint32_t keyState);
  // True when a control (or an input handler) took the wheel.
  bool wheel(Point point, int32_t delta, bool horizontal, uint32_t keyState);
  void pointerLeft();
  // The system took the pointer (a window move, another window's capture): the press ends
  // without a click.
  void captureLost();
  // True when consumed; otherwise the system's default handling follows.
  bool keyPressed(uint32_t virtualKey, bool ctrl, bool shift, bool alt, NativeWindow native);
  bool character(char16_t unit, NativeWindow native);
  // The 125 ms timer.
  void timer();

  // One frame: background, the window's surface, the tree with its attached children and
  // overlays, the window overlay and the tooltip, clipped to `dirty`.
  void paintFrame(Canvas& canvas, const Rect& dirty);
  // The profile a paint uses: maximum-performance while the user moves or sizes the window.
  UiPerformanceProfile paintProfile() const;

  // The custom frame's hit test at a client point.
  int32_t frameHit(Point client, bool zoomed) const;
  // The client minimum in force (configured, raised to the tree's demand).
  Size effectiveMinimumClientSize() const;
  // The window's shape as rectangles in client coordinates; nullopt for no region.
  std::optional<std::vector<Rect>> surfaceRegion();

  // Gives the keyboard to `control` (a dialog's default control); null takes it away.
  void setFocusedControl(Control* control);

  Control* hotControl() const { return hot_; }
  Control* pressedControl() const { return pressed_; }
  Control* focusedControl() const { return focused_; }
  bool tooltipShown() const { return tooltipOwner_ != nullptr; }
  Control* tooltipOwner() const { return tooltipOwner_; }
  // Where the tooltip was last painted (empty when hidden).
  const Rect& tooltipRect() const { return tooltipRect_; }
  void hideTooltip();

  // Pointer, wheel, key and character input, offered before any control sees it.
  InputSignals<InputEvent> input;
  static constexpr int32_t kTimerMs = 125;

 private:
  void setHotControl(Control* control);
  bool qualifiesForTooltip(Control* control);
  bool interactiveTooltip() const { return tooltipOwner_ != nullptr && tooltipMode_ == 1; }
  void paintTooltip(Canvas& canvas);
  uint64_t now() const;
  Point localPoint(const Control& control, Point client) const;
  void invalidateAllNow();

  WindowPlatform* platform_ = nullptr;
  std::wstring title_;
  Panel root_;
  Color background_ = 0x121109;
  WindowStyle windowStyle_;
  TooltipStyle tooltipStyle_;
  UiPerformanceProfile profile_;
  std::function<void(Size)> resizeHandler_;
  std::function<void(Window&)> themeChangedHandler_;
  std::function<void(const Control&, const TooltipAction&)> tooltipActionHandler_;
  std::function<void(const std::wstring&)> diagnosticsSink_;
  std::wstring lastDiagnostics_;
  RenderMode renderMode_ = RenderMode::Auto;
  Size minimumClientSize_;
  Size client_;
  bool hasClientSize_ = false;
  int32_t tooltipDelayMs_ = 650;
  int32_t tooltipMoveTolerance_ = 4;
  bool closeOnDeactivate_ = false;
  bool autoMinimumSize_ = true;
  bool inSizeMove_ = false;
  bool trackingLeave_ = false;
  Control* hot_ = nullptr;
  Control* pressed_ = nullptr;
  Control* focused_ = nullptr;
  Point pointer_;
  Point trackedPoint_;
  uint64_t hoverStartMs_ = 0;
  uint64_t lastMoveMs_ = 0;
  Control* tooltipOwner_ = nullptr;
  Rect tooltipRect_;
  int32_t tooltipMode_ = 0;
  int32_t tooltipGraceMs_ = 350;
  TooltipPath tooltipPath_;
  bool pointerOnOwner_ = false;
};

// A shape's pixels as rectangles: rows of equal span merged, exactly what the inside test
// accepts, offset to `rect`.
std::vector<Rect> shapeRegionRects(ShapeKind kind, const Rect& rect);

}  // namespace tessel
