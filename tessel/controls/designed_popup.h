// The message body of every notice: a skinned card with a title, a wrapped message, an icon
// glyph, a close button in the top right corner and a right-aligned row of action buttons.
// It is one control, so that its parts follow the popup's outline. A popup that isn't open
// takes no pointer. Enter runs the primary action and Escape closes, for keyboards.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tessel/controls/themed_button.h"
#include "tessel/core/control.h"
#include "tessel/paint/chrome_glyphs.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/button_style.h"
#include "tessel/style/popup_style.h"

namespace tessel {

struct PopupAction {
  std::wstring id;
  std::wstring value;
  std::wstring text;
  bool primary = false;
  ChromeButtonImages image;  // optional state images drawn before the text
  std::function<void()> handler;
};

class DesignedPopup : public Control {
 public:
  DesignedPopup(std::wstring id, Rect bounds, const Theme& theme,
                SurfaceMode mode = SurfaceMode::Sculpted3d);
  DesignedPopup(std::wstring id, Rect bounds, PopupStyle style);

  void setStyle(const PopupStyle& style);
  const PopupStyle& style() const { return style_; }
  void setTitle(std::wstring title);
  void setMessage(std::wstring message);
  void setIconGlyph(std::wstring glyph);
  void addAction(PopupAction action);
  const std::vector<PopupAction>& actions() const { return actions_; }
  void show();
  void hide();
  bool isOpen() const { return open_; }
  void setOnClose(std::function<void()> onClose) { onClose_ = std::move(onClose); }
  void setCloseImages(ChromeButtonImages images) { closeImages_ = std::move(images); }
  void setDragEnabled(bool enabled) { dragEnabled_ = enabled; }

  // Local rectangles of the last layout: the close button, each action, the message area.
  // The close button is a square of the header's height less 4 above and below, at most 28,
  // centred in the header and paddingX from the right edge. Actions stand paddingY above the
  // bottom of the action-row insets, right-aligned; an index out of range gives an empty rect.
  // The message fills the rest inside the padding, one actionGap above the row when there is one.
  Rect closeRect() const;
  Rect actionRect(size_t index) const;
  Rect messageRect() const;
  // The action under a local point, or -1.
  int32_t actionAt(Point local) const;

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  std::optional<SurfaceStyle> surfaceStyle() const override;
  void paint(Canvas& canvas, Point origin) override;
  Control* hitTest(Point point, Point origin) override;
  void setHot(bool hot) override;
  void setPressed(bool pressed) override;
  void mouseDown() override;
  void mouseDragged() override;
  void clicked() override;
  bool keyDown(uint32_t virtualKey, bool ctrl, bool shift, bool alt, NativeWindow window) override;
  bool containsPoint(Point local) const override;

  // Runs action `index` as a click on it would: the popup event, then the command, then the
  // handler, each only when nothing before took it.
  void runAction(size_t index);
  // Closes as the close button does.
  void close();

 private:
  // The header's band, cut to the height; the icon (empty without a glyph) and the title in it.
  int32_t headerBand() const;
  Rect iconRect() const;
  Rect titleRect() const;
  bool onCloseButton(Point local) const;
  const ButtonStyle& actionStyle(size_t index) const;
  ButtonVisualState actionState(size_t index) const;
  ButtonVisualState closeState() const;
  void paintMessage(Canvas& canvas, const Rect& area);
  void paintAction(Canvas& canvas, size_t index, const Rect& rect);

  PopupStyle style_;
  std::wstring title_;
  std::wstring message_;
  std::wstring iconGlyph_;
  std::vector<PopupAction> actions_;
  ChromeButtonImages closeImages_;
  bool open_ = false;
  int32_t hotAction_ = -1;
  int32_t pressedAction_ = -1;
  bool dragEnabled_ = true;
  std::function<void()> onClose_;
};

}  // namespace tessel
