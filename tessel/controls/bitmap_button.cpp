#include "tessel/controls/bitmap_button.h"

#include <utility>

#include "tessel/controls/text_fit.h"
#include "tessel/paint/alpha_bands.h"
#include "tessel/paint/bitmap_surface.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

BitmapButton::BitmapButton(std::wstring id, Rect bounds, BitmapButtonImages images,
                           std::wstring text, const Theme& theme)
    : BitmapButton(std::move(id), bounds, std::move(images), std::move(text),
                   buildBitmapButtonStyle(theme)) {}

BitmapButton::BitmapButton(std::wstring id, Rect bounds, BitmapButtonImages images,
                           std::wstring text, BitmapButtonStyle style)
    : Control(std::move(id), bounds),
      images_(std::move(images)),
      style_(std::move(style)),
      text_(std::move(text)) {}

void BitmapButton::setImages(BitmapButtonImages images) {
  images_ = std::move(images);
  invalidate(8);
}

void BitmapButton::setText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  invalidate(8);
}

void BitmapButton::setActive(bool active) {
  if (active == active_) return;
  active_ = active;
  invalidate(8);
}

void BitmapButton::setStyle(const BitmapButtonStyle& style) {
  style_ = style;
  invalidate(8);
}

ButtonVisualState BitmapButton::visualState() const {
  return pickButtonState(enabled(), pressed(), active_, hot());
}

const Image& BitmapButton::shownImage() const {
  const Image* image = &images_.normal;
  switch (visualState()) {
    case ButtonVisualState::Disabled:
      image = &images_.disabled;
      break;
    case ButtonVisualState::Pressed:
      image = &images_.pressed;
      break;
    case ButtonVisualState::Active:
      image = &images_.active;
      break;
    case ButtonVisualState::Hot:
      image = &images_.hot;
      break;
    case ButtonVisualState::Normal:
      break;
  }
  return image->empty() ? images_.normal : *image;
}

const BitmapTint& BitmapButton::shownTint() const {
  switch (visualState()) {
    case ButtonVisualState::Disabled:
      return style_.tints.disabled;
    case ButtonVisualState::Pressed:
      return style_.tints.pressed;
    case ButtonVisualState::Active:
      return style_.tints.active;
    case ButtonVisualState::Hot:
      return style_.tints.hot;
    case ButtonVisualState::Normal:
      break;
  }
  return style_.tints.normal;
}

bool BitmapButton::applySkin(const StyleSheet& sheet) {
  const BitmapButtonStyle* found = sheet.bitmapButtons.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

std::wstring BitmapButton::clippedText() const {
  return textIsClipped(text_, style_.text, bounds().width) ? text_ : std::wstring();
}

void BitmapButton::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  const Image& image = shownImage();
  if (!image.empty()) drawImage(canvas, image, rect, shownTint(), 255);
  if (text_.empty()) return;
  const bool disabled = visualState() == ButtonVisualState::Disabled;
  canvas.drawText(text_, rect, style_.text,
                  disabled ? style_.text.disabledColor : style_.text.color,
                  kTextCenter | kTextMiddle | kTextEndEllipsis);
}

void BitmapButton::clicked() {
  if (!enabled()) return;
  CommandEvent event = makeCommand(text_);
  emitCommand(event);
  if (!event.handled && onClicked_) onClicked_();
}

bool BitmapButton::containsPoint(Point local) const {
  if (!Control::containsPoint(local)) return false;
  const Image& image = shownImage();
  // Without an image the button is its rectangle.
  if (image.empty()) return true;
  return coverageAt(image, bounds().width, bounds().height, local.x, local.y) >= kHitAlpha;
}

}  // namespace tessel
