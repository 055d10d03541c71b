#include "tessel/controls/themed_button.h"

#include <algorithm>
#include <utility>

#include "tessel/controls/text_fit.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

ButtonVisualState pickButtonState(bool enabled, bool pressed, bool active, bool hot) {
  if (!enabled) return ButtonVisualState::Disabled;
  if (pressed) return ButtonVisualState::Pressed;
  if (active) return ButtonVisualState::Active;
  if (hot) return ButtonVisualState::Hot;
  return ButtonVisualState::Normal;
}

const SurfaceStyle& buttonStateSurface(const ControlStates& states, ButtonVisualState state) {
  switch (state) {
    case ButtonVisualState::Disabled:
      return states.disabled;
    case ButtonVisualState::Pressed:
      return states.pressed;
    case ButtonVisualState::Active:
      return states.active;
    case ButtonVisualState::Hot:
      return states.hot;
    case ButtonVisualState::Normal:
      break;
  }
  return states.normal;
}

Insets buttonTextPadding(const SurfaceStyle& surface) {
  const auto clampSide = [](int32_t side) { return std::clamp(side, 2, 6); };
  const Insets& insets = surface.textInsets;
  return Insets{clampSide(insets.left), clampSide(insets.top), clampSide(insets.right),
                clampSide(insets.bottom)};
}

ThemedButton::ThemedButton(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
                           ButtonTone tone, SurfaceMode mode)
    : ThemedButton(std::move(id), bounds, std::move(text), buildButtonStyle(theme, mode, tone)) {}

ThemedButton::ThemedButton(std::wstring id, Rect bounds, std::wstring text, ButtonStyle style)
    : Control(std::move(id), bounds), style_(std::move(style)), text_(std::move(text)) {}

void ThemedButton::setText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  invalidate(8);
}

void ThemedButton::setActiveText(std::wstring text) {
  if (text == activeText_) return;
  activeText_ = std::move(text);
  invalidate(8);
}

void ThemedButton::setStyle(const ButtonStyle& style) {
  style_ = style;
  invalidate(8);
}

void ThemedButton::setActive(bool active) {
  if (active == active_) return;
  active_ = active;
  invalidate(8);
}

const std::wstring& ThemedButton::shownText() const {
  return active_ && !activeText_.empty() ? activeText_ : text_;
}

ButtonVisualState ThemedButton::visualState() const {
  return pickButtonState(enabled(), pressed(), active_, hot());
}

bool ThemedButton::applySkin(const StyleSheet& sheet) {
  const ButtonStyle* found = sheet.buttons.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

Rect ThemedButton::textRect(const Rect& rect) const {
  return applyInsets(rect, buttonTextPadding(buttonStateSurface(style_.surface, visualState())));
}

std::wstring ThemedButton::clippedText() const {
  const Rect text = textRect(Rect{0, 0, bounds().width, bounds().height});
  return textIsClipped(shownText(), style_.text, text.width) ? shownText() : std::wstring();
}

Size ThemedButton::minimumSize() const {
  if (collapsed()) return Size{};
  Size size = Control::minimumSize();
  const Insets padding = buttonTextPadding(style_.surface.normal);
  int32_t textWidth = measuredTextWidth(text_, style_.text);
  if (!activeText_.empty()) {
    textWidth = std::max(textWidth, measuredTextWidth(activeText_, style_.text));
  }
  size.width = std::max(size.width, textWidth + padding.left + padding.right);
  return size;
}

std::optional<SurfaceStyle> ThemedButton::surfaceStyle() const {
  return style_.surface.normal;
}

void ThemedButton::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  const ButtonVisualState state = visualState();
  drawSurface(canvas, rect, buttonStateSurface(style_.surface, state));
  // One text record serves every state; only the disabled state changes its colour.
  const Color color =
      state == ButtonVisualState::Disabled ? style_.text.disabledColor : style_.text.color;
  canvas.drawText(shownText(), textRect(rect), style_.text, color,
                  kTextCenter | kTextMiddle | kTextEndEllipsis);
}

void ThemedButton::clicked() {
  if (!enabled()) return;
  CommandEvent event = makeCommand(text_);
  emitCommand(event);
  if (!event.handled && onClicked_) onClicked_();
}

bool ThemedButton::containsPoint(Point local) const {
  const Size size{bounds().width, bounds().height};
  if (!Rect{0, 0, size.width, size.height}.contains(local.x, local.y)) return false;
  if (!useShapeHit_ && !style_.useSurfaceHitTesting) return true;
  if (style_.hitShape.present) {
    return isInsideShape(style_.hitShape.kind, size.width, size.height, local.x, local.y);
  }
  // The rest surface decides, so that the outline does not move under a pressed pointer.
  return hitTestSurface(style_.surface.normal, size, local);
}

}  // namespace tessel
