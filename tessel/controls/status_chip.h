// A status chip: a skinned surface with a small badge and one line of text after it. Purely
// decorative: it takes the pointer only when it has a tooltip to offer.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/core/control.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/status_chip_style.h"

namespace tessel {

class StatusChip : public Control {
 public:
  // The text ends this many pixels before the chip's right edge.
  static constexpr int32_t kTextRightGap = 8;

  StatusChip(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
             SurfaceMode mode = SurfaceMode::Sculpted3d);
  StatusChip(std::wstring id, Rect bounds, std::wstring text, StatusChipStyle style);

  void setText(std::wstring text);
  void setStyle(const StatusChipStyle& style);
  const std::wstring& text() const { return text_; }
  const StatusChipStyle& style() const { return style_; }

  // In coordinates of the chip's rectangle `rect`.
  Rect badgeRect(const Rect& rect) const;
  Rect textRect(const Rect& rect) const;

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  void paint(Canvas& canvas, Point origin) override;
  bool containsPoint(Point local) const override;

 private:
  StatusChipStyle style_;
  std::wstring text_;
};

}  // namespace tessel
