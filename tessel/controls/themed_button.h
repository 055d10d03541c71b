// A push button painted from the skin's button record: one surface per state, chosen with
// disabled before pressed before active before hot, and its text centred on one line with an
// end ellipsis. A click emits a command; the plain onClicked callback runs only when no
// handler marked the command handled.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tessel/core/control.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/button_style.h"

namespace tessel {

// The state names in the order of their priority.
enum class ButtonVisualState { Disabled, Pressed, Active, Hot, Normal };

ButtonVisualState pickButtonState(bool enabled, bool pressed, bool active, bool hot);
const SurfaceStyle& buttonStateSurface(const ControlStates& states, ButtonVisualState state);

// The text's padding: each side of the surface's text insets clamped to 2..6.
Insets buttonTextPadding(const SurfaceStyle& surface);

class ThemedButton : public Control {
 public:
  ThemedButton(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
               ButtonTone tone = ButtonTone::Default, SurfaceMode mode = SurfaceMode::Sculpted3d);
  ThemedButton(std::wstring id, Rect bounds, std::wstring text, ButtonStyle style);

  void setText(std::wstring text);
  // The text while active; a button with one is active-capable and sized for both texts.
  void setActiveText(std::wstring text);
  void setStyle(const ButtonStyle& style);
  void setActive(bool active);
  // Hit-testing by the surface's outline (or the record's hit shape) instead of the rectangle.
  void setUseShapeHit(bool useShapeHit) { useShapeHit_ = useShapeHit; }
  void setOnClicked(std::function<void()> onClicked) { onClicked_ = std::move(onClicked); }

  const std::wstring& text() const { return text_; }
  const std::wstring& activeText() const { return activeText_; }
  // What the button shows in its present state.
  const std::wstring& shownText() const;
  const ButtonStyle& style() const { return style_; }
  bool active() const { return active_; }
  ButtonVisualState visualState() const;

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  Size minimumSize() const override;
  std::optional<SurfaceStyle> surfaceStyle() const override;
  void paint(Canvas& canvas, Point origin) override;
  void clicked() override;
  bool containsPoint(Point local) const override;

 private:
  // The rectangle the text lives in, local or absolute depending on `rect`.
  Rect textRect(const Rect& rect) const;

  ButtonStyle style_;
  std::wstring text_;
  std::wstring activeText_;
  bool active_ = false;
  bool useShapeHit_ = false;
  std::function<void()> onClicked_;
};

}  // namespace tessel
