// A button drawn from images: one per state (normal, hot, pressed, disabled, active), each
// recoloured by the skin's tint of that state, with an optional centred text. A state without
// its own image shows the normal one. Clicks hit where the shown image is opaque.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tessel/controls/themed_button.h"
#include "tessel/core/control.h"
#include "tessel/style/image.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/bitmap_button_style.h"

namespace tessel {

struct BitmapButtonImages {
  Image normal;
  Image hot;
  Image pressed;
  Image disabled;
  Image active;
};

class BitmapButton : public Control {
 public:
  // Alpha at or above which a pixel of the image takes clicks.
  static constexpr uint8_t kHitAlpha = 16;

  BitmapButton(std::wstring id, Rect bounds, BitmapButtonImages images, std::wstring text,
               const Theme& theme);
  BitmapButton(std::wstring id, Rect bounds, BitmapButtonImages images, std::wstring text,
               BitmapButtonStyle style);

  void setImages(BitmapButtonImages images);
  void setText(std::wstring text);
  void setActive(bool active);
  void setStyle(const BitmapButtonStyle& style);
  void setOnClicked(std::function<void()> onClicked) { onClicked_ = std::move(onClicked); }

  const std::wstring& text() const { return text_; }
  bool active() const { return active_; }
  const BitmapButtonStyle& style() const { return style_; }
  ButtonVisualState visualState() const;
  // The image of the present state, or the normal one when that state has none.
  const Image& shownImage() const;
  const BitmapTint& shownTint() const;

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  void paint(Canvas& canvas, Point origin) override;
  void clicked() override;
  bool containsPoint(Point local) const override;

 private:
  BitmapButtonImages images_;
  BitmapButtonStyle style_;
  std::wstring text_;
  bool active_ = false;
  std::function<void()> onClicked_;
};

}  // namespace tessel
