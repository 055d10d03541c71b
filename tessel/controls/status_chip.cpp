#include "tessel/controls/status_chip.h"

#include <utility>

#include "tessel/controls/decorative_hit.h"
#include "tessel/controls/text_fit.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

StatusChip::StatusChip(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
                       SurfaceMode mode)
    : StatusChip(std::move(id), bounds, std::move(text), buildStatusChipStyle(theme, mode)) {}

StatusChip::StatusChip(std::wstring id, Rect bounds, std::wstring text, StatusChipStyle style)
    : Control(std::move(id), bounds), style_(std::move(style)), text_(std::move(text)) {}

void StatusChip::setText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  invalidate(8);
}

void StatusChip::setStyle(const StatusChipStyle& style) {
  style_ = style;
  invalidate(8);
}

Rect StatusChip::badgeRect(const Rect& rect) const {
  return Rect{rect.x + style_.badgeLeft, rect.y + (rect.height - style_.badgeSize) / 2,
              style_.badgeSize, style_.badgeSize};
}

Rect StatusChip::textRect(const Rect& rect) const {
  return Rect{rect.x + style_.textLeft, rect.y, rect.width - style_.textLeft - kTextRightGap,
              rect.height};
}

bool StatusChip::applySkin(const StyleSheet& sheet) {
  const StatusChipStyle* found = sheet.statusChips.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

std::wstring StatusChip::clippedText() const {
  const Rect text = textRect(Rect{0, 0, bounds().width, bounds().height});
  return textIsClipped(text_, style_.text, text.width) ? text_ : std::wstring();
}

void StatusChip::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  drawSurface(canvas, rect, style_.surface);
  const Rect badge = badgeRect(rect);
  if (!badge.empty()) drawSurface(canvas, badge, style_.badge);
  const Rect text = textRect(rect);
  if (text.empty()) return;
  canvas.drawText(text_, text, style_.text,
                  enabled() ? style_.text.color : style_.text.disabledColor,
                  kTextLeft | kTextMiddle | kTextEndEllipsis);
}

bool StatusChip::containsPoint(Point local) const {
  return Control::containsPoint(local) && offersTooltip(*this);
}

}  // namespace tessel
