#include "tessel/controls/designed_popup.h"

#include <algorithm>
#include <utility>

#include "tessel/controls/text_fit.h"
#include "tessel/controls/themed_button.h"
#include "tessel/core/system_move.h"
#include "tessel/paint/bitmap_surface.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/paint/text_wrap.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {
namespace {

constexpr uint32_t kKeyEnter = 13;
constexpr uint32_t kKeyEscape = 27;
// The close button is a square of the header less this margin above and below, at most
// kCloseSide: large enough to hit, small enough to leave the header its look.
constexpr int32_t kCloseSide = 28;
constexpr int32_t kCloseMargin = 4;
constexpr int32_t kIconTitleGap = 10;
constexpr int32_t kTitleCloseGap = 8;
// Leading between message lines: a line's measured height alone sets them too close to read.
constexpr int32_t kLineGap = 2;
// Dark enough to read as depth on every skin, light enough not to look like a border.
constexpr uint8_t kShadowAlpha = 56;

ChromeButtonState chromeState(ButtonVisualState state) {
  switch (state) {
    case ButtonVisualState::Disabled:
      return ChromeButtonState::Disabled;
    case ButtonVisualState::Pressed:
      return ChromeButtonState::Pressed;
    case ButtonVisualState::Hot:
      return ChromeButtonState::Hot;
    default:
      return ChromeButtonState::Normal;
  }
}

const Image& stateImage(const ChromeButtonImages& images, ButtonVisualState state) {
  switch (state) {
    case ButtonVisualState::Disabled:
      return images.disabled;
    case ButtonVisualState::Pressed:
      return images.pressed;
    case ButtonVisualState::Hot:
      return images.hot;
    default:
      return images.normal;
  }
}

Rect offsetBy(const Rect& rect, Point origin) {
  return Rect{rect.x + origin.x, rect.y + origin.y, rect.width, rect.height};
}

}  // namespace

DesignedPopup::DesignedPopup(std::wstring id, Rect bounds, const Theme& theme, SurfaceMode mode)
    : DesignedPopup(std::move(id), bounds, buildPopupStyle(theme, mode)) {}

DesignedPopup::DesignedPopup(std::wstring id, Rect bounds, PopupStyle style)
    : Control(std::move(id), bounds), style_(std::move(style)) {}

void DesignedPopup::setStyle(const PopupStyle& style) {
  style_ = style;
  invalidate(8);
}

void DesignedPopup::setTitle(std::wstring title) {
  if (title == title_) return;
  title_ = std::move(title);
  invalidate(8);
}

void DesignedPopup::setMessage(std::wstring message) {
  if (message == message_) return;
  message_ = std::move(message);
  invalidate(8);
}

void DesignedPopup::setIconGlyph(std::wstring glyph) {
  if (glyph == iconGlyph_) return;
  iconGlyph_ = std::move(glyph);
  invalidate(8);
}

void DesignedPopup::addAction(PopupAction action) {
  actions_.push_back(std::move(action));
  invalidate(8);
}

void DesignedPopup::show() {
  open_ = true;
  setVisible(true);
  invalidate(8);
}

void DesignedPopup::hide() {
  open_ = false;
  hotAction_ = -1;
  pressedAction_ = -1;
  setVisible(false);
}

int32_t DesignedPopup::headerBand() const {
  return std::clamp(style_.headerHeight, 0, std::max(bounds().height, 0));
}

Rect DesignedPopup::closeRect() const {
  const int32_t side = std::clamp(headerBand() - 2 * kCloseMargin, 0, kCloseSide);
  if (side == 0) return Rect{};
  return Rect{bounds().width - style_.paddingX - side, (headerBand() - side) / 2, side, side};
}

Rect DesignedPopup::actionRect(size_t index) const {
  if (index >= actions_.size()) return Rect{};
  const Rect row =
      applyInsets(Rect{0, 0, bounds().width, bounds().height}, style_.surface.actionRowInsets);
  const int32_t width = std::max(style_.actionWidth, 0);
  const int32_t height = std::max(style_.actionHeight, 0);
  const int32_t gap = std::max(style_.actionGap, 0);
  const int32_t count = static_cast<int32_t>(actions_.size());
  const int32_t total = count * width + (count - 1) * gap;
  const int32_t left = row.right() - style_.paddingX - total;
  return Rect{left + static_cast<int32_t>(index) * (width + gap),
              row.bottom() - style_.paddingY - height, width, height};
}

Rect DesignedPopup::messageRect() const {
  const int32_t top = headerBand() + style_.paddingY;
  // The action row's top less one gap, so that the last line doesn't touch the buttons.
  const int32_t bottom = actions_.empty() ? bounds().height - style_.paddingY
                                          : actionRect(0).y - std::max(style_.actionGap, 0);
  const int32_t width = bounds().width - 2 * style_.paddingX;
  return Rect{style_.paddingX, top, std::max(width, 0), std::max(bottom - top, 0)};
}

Rect DesignedPopup::iconRect() const {
  if (iconGlyph_.empty()) return Rect{};
  const int32_t side = std::clamp(style_.iconSize, 0, headerBand());
  return Rect{style_.paddingX, (headerBand() - side) / 2, side, side};
}

Rect DesignedPopup::titleRect() const {
  const Rect icon = iconRect();
  const int32_t left = icon.empty() ? style_.paddingX : icon.right() + kIconTitleGap;
  const Rect close = closeRect();
  const int32_t right = close.empty() ? bounds().width - style_.paddingX : close.x - kTitleCloseGap;
  return Rect{left, 0, std::max(right - left, 0), headerBand()};
}

int32_t DesignedPopup::actionAt(Point local) const {
  for (size_t i = 0; i < actions_.size(); ++i)
    if (actionRect(i).contains(local.x, local.y)) return static_cast<int32_t>(i);
  return -1;
}

bool DesignedPopup::onCloseButton(Point local) const {
  return closeRect().contains(local.x, local.y);
}

const ButtonStyle& DesignedPopup::actionStyle(size_t index) const {
  return actions_[index].primary ? style_.primaryAction : style_.secondaryAction;
}

ButtonVisualState DesignedPopup::actionState(size_t index) const {
  const int32_t i = static_cast<int32_t>(index);
  return pickButtonState(enabled(), pressedAction_ == i, false, hotAction_ == i);
}

ButtonVisualState DesignedPopup::closeState() const {
  const bool over = onCloseButton(mousePosition());
  return pickButtonState(enabled(), pressed() && over, false, hot() && over);
}

bool DesignedPopup::applySkin(const StyleSheet& sheet) {
  const PopupStyle* found = sheet.popups.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

std::wstring DesignedPopup::clippedText() const {
  const int32_t index = actionAt(mousePosition());
  if (index < 0) return std::wstring();
  const size_t i = static_cast<size_t>(index);
  const ButtonStyle& style = actionStyle(i);
  const Rect text = applyInsets(
      actionRect(i), buttonTextPadding(buttonStateSurface(style.surface, actionState(i))));
  return textIsClipped(actions_[i].text, style.text, text.width) ? actions_[i].text
                                                                 : std::wstring();
}

std::optional<SurfaceStyle> DesignedPopup::surfaceStyle() const {
  return style_.surface;
}

void DesignedPopup::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  const Point at{rect.x, rect.y};
  if (style_.showShadow && (style_.shadowOffsetX != 0 || style_.shadowOffsetY != 0)) {
    const Rect shadow{rect.x + style_.shadowOffsetX, rect.y + style_.shadowOffsetY, rect.width,
                      rect.height};
    fillShapeAlphaOn(canvas, shadow, style_.surface.shape, style_.surface.shadow, kShadowAlpha);
  }
  drawSurface(canvas, rect, style_.surface);
  const Rect header{rect.x, rect.y, rect.width, headerBand()};
  if (!header.empty()) drawSurface(canvas, header, style_.header);

  const Rect icon = offsetBy(iconRect(), at);
  if (!icon.empty()) {
    drawSurface(canvas, icon, style_.icon);
    canvas.drawText(iconGlyph_, icon, style_.iconText,
                    enabled() ? style_.iconText.color : style_.iconText.disabledColor,
                    kTextCenter | kTextMiddle);
  }
  const Rect title = offsetBy(titleRect(), at);
  if (!title.empty()) {
    canvas.drawText(title_, title, style_.titleText,
                    enabled() ? style_.titleText.color : style_.titleText.disabledColor,
                    kTextLeft | kTextMiddle | kTextEndEllipsis);
  }
  paintMessage(canvas, offsetBy(messageRect(), at));

  const Rect close = offsetBy(closeRect(), at);
  if (!close.empty()) {
    const ButtonVisualState state = closeState();
    drawSurface(canvas, close, buttonStateSurface(style_.closeButton.surface, state));
    const Image& own = stateImage(closeImages_, state);
    const Image& image = !own.empty() ? own : stateImage(closeImages_, ButtonVisualState::Normal);
    blendImageFitted(canvas,
                     !image.empty() ? image : chromeGlyphImage(L"chrome_close", chromeState(state)),
                     applyInsets(close, Insets{3, 3, 3, 3}));
  }
  for (size_t i = 0; i < actions_.size(); ++i)
    paintAction(canvas, i, offsetBy(actionRect(i), at));
}

void DesignedPopup::paintMessage(Canvas& canvas, const Rect& area) {
  if (area.empty() || message_.empty()) return;
  const TextStyle& style = style_.messageText;
  const auto measure = [&](const std::wstring& text) {
    return canvas.measureText(text, style).width;
  };
  std::vector<std::wstring> lines = wrapText(message_, area.width, measure);
  const int32_t textHeight = std::max(canvas.measureText(L"Ag", style).height, 1);
  const int32_t lineHeight = textHeight + kLineGap;
  // The last line needs no leading below it.
  const size_t fitting = static_cast<size_t>((area.height + kLineGap) / lineHeight);
  // Lines below the area are dropped; the last one that shows says so with an ellipsis.
  if (lines.size() > fitting) {
    lines.resize(fitting);
    if (!lines.empty()) lines.back() += L"...";
  }
  const Color color = enabled() ? style.color : style.disabledColor;
  for (size_t i = 0; i < lines.size(); ++i) {
    const Rect line{area.x, area.y + static_cast<int32_t>(i) * lineHeight, area.width, textHeight};
    canvas.drawText(lines[i], line, style, color, kTextLeft | kTextTop | kTextEndEllipsis);
  }
}

void DesignedPopup::paintAction(Canvas& canvas, size_t index, const Rect& rect) {
  if (rect.empty()) return;
  const PopupAction& action = actions_[index];
  const ButtonStyle& style = actionStyle(index);
  const ButtonVisualState state = actionState(index);
  const SurfaceStyle& surface = buttonStateSurface(style.surface, state);
  drawSurface(canvas, rect, surface);
  Rect text = applyInsets(rect, buttonTextPadding(surface));
  const Image& own = stateImage(action.image, state);
  const Image& image = !own.empty() ? own : action.image.normal;
  if (!image.empty()) {
    // The image takes a square at the text's start; the text is centred in what remains.
    const Rect room{text.x, text.y, std::min(text.height, text.width), text.height};
    blendImageFitted(canvas, image, room);
    text = Rect{room.right(), text.y, std::max(text.right() - room.right(), 0), text.height};
  }
  const Color color =
      state == ButtonVisualState::Disabled ? style.text.disabledColor : style.text.color;
  canvas.drawText(action.text, text, style.text, color,
                  kTextCenter | kTextMiddle | kTextEndEllipsis);
}

Control* DesignedPopup::hitTest(Point point, Point origin) {
  if (!open_) return nullptr;
  Control* hit = Control::hitTest(point, origin);
  // The window tells only a change of the hot control; moving between actions is seen here.
  if (hit == this && hot()) {
    const int32_t over = actionAt(mousePosition());
    if (over != hotAction_) {
      hotAction_ = over;
      invalidate(8);
    }
  }
  return hit;
}

void DesignedPopup::setHot(bool hot) {
  hotAction_ = hot ? actionAt(mousePosition()) : -1;
  Control::setHot(hot);
}

void DesignedPopup::setPressed(bool pressed) {
  pressedAction_ = pressed ? actionAt(mousePosition()) : -1;
  Control::setPressed(pressed);
}

void DesignedPopup::mouseDown() {
  if (!dragEnabled_) return;
  const Point p = mousePosition();
  if (onCloseButton(p) || actionAt(p) >= 0) return;
  CommandEvent event = makeCommand(L"drag");
  event.command += L".drag";
  emitCommand(event);
  if (!event.handled) startSystemMove(*this);
}

void DesignedPopup::mouseDragged() {
  const int32_t over = actionAt(mousePosition());
  hotAction_ = over;
  // A pressed action shows pressed only while the pointer stays on it.
  if (pressed()) pressedAction_ = over;
  invalidate(8);
}

void DesignedPopup::clicked() {
  if (!enabled()) return;
  const Point p = mousePosition();
  if (onCloseButton(p)) {
    close();
    return;
  }
  const int32_t index = actionAt(p);
  if (index >= 0) runAction(static_cast<size_t>(index));
}

bool DesignedPopup::keyDown(uint32_t virtualKey, bool ctrl, bool, bool alt, NativeWindow) {
  if (!open_ || !enabled()) return false;
  if (virtualKey == kKeyEscape) {
    close();
    return true;
  }
  if (virtualKey != kKeyEnter || ctrl || alt || actions_.empty()) return false;
  const auto primary = std::find_if(actions_.begin(), actions_.end(),
                                    [](const PopupAction& action) { return action.primary; });
  runAction(primary == actions_.end() ? 0 : static_cast<size_t>(primary - actions_.begin()));
  return true;
}

bool DesignedPopup::containsPoint(Point local) const {
  return hitTestSurface(style_.surface, Size{bounds().width, bounds().height}, local);
}

void DesignedPopup::runAction(size_t index) {
  if (index >= actions_.size()) return;
  // Copied: a handler may close the popup or add actions, and the record must outlive both.
  const PopupAction action = actions_[index];
  PopupEvent popup;
  popup.kind = PopupEvent::kAction;
  popup.actionIndex = static_cast<int32_t>(index);
  popup.action = action.id;
  popup.value = action.value;
  popup.source = action.id;
  emitPopup(popup);
  if (popup.handled) return;
  CommandEvent command = makeCommand(action.value);
  command.command = (commandName().empty() ? id() : commandName()) + L".action." + action.id;
  command.source = action.id;
  emitCommand(command);
  if (!command.handled && action.handler) action.handler();
}

void DesignedPopup::close() {
  open_ = false;
  hotAction_ = -1;
  pressedAction_ = -1;
  setVisible(false);
  PopupEvent event;
  event.kind = PopupEvent::kClose;
  event.actionIndex = -1;
  event.action = L"close";
  event.value = commandName();
  emitPopup(event);
  if (!event.handled && onClose_) onClose_();
}

}  // namespace tessel
