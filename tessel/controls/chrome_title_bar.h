// The caption of a window with a custom frame: icon, title, up to four header actions and the
// window buttons (minimise, maximise or restore, reset size, close), laid out from the right.
// Dragging the caption hands the move to the system; clicks on the buttons reach the bar's
// handlers as commands, and a click on a part outside a button composes one itself.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "tessel/controls/themed_button.h"
#include "tessel/core/panel.h"
#include "tessel/paint/chrome_glyphs.h"
#include "tessel/style/chrome_title_bar_style.h"

namespace tessel {

// What lies under a point of the bar.
enum ChromePart : int32_t {
  kChromeNothing = 0,
  kChromeCaption = 1,
  kChromeHeaderAction0 = 2,  // to 5
  kChromeMinimize = 6,
  kChromeMaximize = 7,
  kChromeResetSize = 8,
  kChromeClose = 9,
};

// The window buttons' image slots.
enum class ChromeSlot { Minimize, Maximize, Restore, ResetSize, Close };

class ChromeTitleBar : public Panel {
 public:
  using Handler = std::function<void(CommandEvent&)>;
  static constexpr int32_t kHeaderActions = 4;

  ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title, const Theme& theme,
                 SurfaceMode mode = SurfaceMode::Sculpted3d);
  ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title, ChromeTitleBarStyle style);

  void setStyle(const ChromeTitleBarStyle& style);
  const ChromeTitleBarStyle& style() const { return style_; }
  void setTitle(std::wstring title);
  const std::wstring& title() const { return title_; }
  void setIcon(Image icon);
  void setShowMinimize(bool show);
  void setShowMaximize(bool show);
  void setShowResetSize(bool show);
  void setMaximizeEnabled(bool enabled) { maximizeEnabled_ = enabled; }
  // Swaps the maximise glyph for the restore glyph.
  void setMaximized(bool maximized);
  bool maximized() const { return maximized_; }
  // Header action `index` (0..3): its images, tooltip and handler; the count grows to include it.
  void setHeaderAction(int32_t index, ChromeButtonImages images, std::wstring tooltip,
                       Handler handler);
  int32_t headerActionCount() const { return headerActionCount_; }
  // A pulsing header action asks for ticks and breathes its image's alpha.
  void setHeaderActionPulse(int32_t index, bool pulse);
  void setButtonImages(ChromeSlot slot, ChromeButtonImages images);
  void setOnMinimize(Handler handler) { onMinimize_ = std::move(handler); }
  void setOnMaximize(Handler handler) { onMaximize_ = std::move(handler); }
  void setOnResetSize(Handler handler) { onResetSize_ = std::move(handler); }
  void setOnClose(Handler handler) { onClose_ = std::move(handler); }

  int32_t partAt(Point local) const;
  // The title's rectangle (local), as the last layout left it.
  const Rect& titleRect() const { return titleRect_; }
  ThemedButton& button(int32_t part) const;

  bool applySkin(const StyleSheet& sheet) override;
  const std::wstring& tooltipText() const override;
  std::wstring clippedText() const override;
  std::optional<SurfaceStyle> surfaceStyle() const override;
  void paint(Canvas& canvas, Point origin) override;
  void mouseDown() override;
  void clicked() override;
  bool tick() override;
  bool containsPoint(Point local) const override;
  void layoutChildren() override;

  // The alpha of a pulsing image at a clock time in milliseconds.
  static uint8_t pulseAlpha(uint64_t ms);

 private:
  // The part's name in commands, e.g. "minimize", "restore", "header-action-2".
  std::wstring partName(int32_t part) const;
  void dispatch(int32_t part, CommandEvent& event);
  const ChromeButtonImages& imagesOf(int32_t part) const;

  ChromeTitleBarStyle style_;
  std::wstring title_;
  Image icon_;
  // Window buttons: minimise, maximise, reset size, close; then the header actions.
  std::array<ThemedButton*, 4> windowButtons_{};
  std::array<ThemedButton*, kHeaderActions> headerActions_{};
  std::array<ChromeButtonImages, 5> slotImages_;
  std::array<ChromeButtonImages, kHeaderActions> actionImages_;
  std::array<Handler, kHeaderActions> actionHandlers_;
  std::array<bool, kHeaderActions> pulses_{};
  int32_t headerActionCount_ = 0;
  bool showMinimize_ = true;
  bool showMaximize_ = true;
  bool showResetSize_ = false;
  bool maximizeEnabled_ = true;
  bool maximized_ = false;
  Rect titleRect_;
  Rect iconRect_;
  Handler onMinimize_, onMaximize_, onResetSize_, onClose_;
  mutable std::wstring tooltipCache_;
};

}  // namespace tessel
