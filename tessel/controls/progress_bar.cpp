#include "tessel/controls/progress_bar.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "tessel/controls/text_fit.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

ProgressBarLayout progressBarLayout(const ProgressBarStyle& style, const Rect& frame, int32_t value,
                                    bool showText) {
  ProgressBarLayout layout;
  Rect track{frame.x + style.insetX, frame.y + style.insetY, frame.width - 2 * style.insetX,
             frame.height - 2 * style.insetY};
  if (showText) {
    int32_t column = style.labelWidth > 0 ? style.labelWidth : track.height / 3;
    column = std::max(std::min(column, track.width / 2), 0);
    track.width -= column;
    layout.label = Rect{track.right(), track.y, column - style.labelPaddingX, track.height};
  }
  layout.track = track;
  const int32_t percent = std::clamp(value, 0, 100);
  const int32_t fillWidth = track.width > 0 ? track.width * percent / 100 : 0;
  if (fillWidth > 0 && track.height > 0) {
    layout.fill = Rect{track.x, track.y, fillWidth, track.height};
  }
  return layout;
}

ProgressBar::ProgressBar(std::wstring id, Rect bounds, const Theme& theme, SurfaceMode mode)
    : ProgressBar(std::move(id), bounds, buildProgressBarStyle(theme, mode)) {}

ProgressBar::ProgressBar(std::wstring id, Rect bounds, ProgressBarStyle style)
    : Control(std::move(id), bounds), style_(std::move(style)) {}

void ProgressBar::setValue(int32_t value) {
  value = std::clamp(value, 0, 100);
  if (value == value_) return;
  value_ = value;
  invalidate(8);
}

void ProgressBar::setShowText(bool showText) {
  if (showText == showText_) return;
  showText_ = showText;
  invalidate(8);
}

void ProgressBar::setStyle(const ProgressBarStyle& style) {
  style_ = style;
  invalidate(8);
}

std::wstring ProgressBar::labelText() const {
  return std::to_wstring(value_) + L"%";
}

bool ProgressBar::applySkin(const StyleSheet& sheet) {
  const ProgressBarStyle* found = sheet.progressBars.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

std::wstring ProgressBar::clippedText() const {
  if (!showText_) return std::wstring();
  const ProgressBarLayout layout =
      progressBarLayout(style_, Rect{0, 0, bounds().width, bounds().height}, value_, true);
  const std::wstring label = labelText();
  return textIsClipped(label, style_.labelText, layout.label.width) ? label : std::wstring();
}

void ProgressBar::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  drawSurface(canvas, rect, style_.frame);
  const ProgressBarLayout layout = progressBarLayout(style_, rect, value_, showText_);
  if (!layout.track.empty()) drawSurface(canvas, layout.track, style_.track);
  if (!layout.fill.empty()) drawSurface(canvas, layout.fill, style_.fill);
  if (showText_ && !layout.label.empty()) {
    canvas.drawText(labelText(), layout.label, style_.labelText,
                    enabled() ? style_.labelText.color : style_.labelText.disabledColor,
                    kTextRight | kTextMiddle);
  }
}

bool ProgressBar::containsPoint(Point local) const {
  return hitTestSurface(style_.frame, Size{bounds().width, bounds().height}, local);
}

void ProgressBar::captureExtraState(ControlState& state) const {
  state.setValue(L"value", std::to_wstring(value_));
}

void ProgressBar::applyExtraState(const StateValue& value) {
  if (value.first != L"value") return;
  wchar_t* end = nullptr;
  const long parsed = std::wcstol(value.second.c_str(), &end, 10);
  if (end == value.second.c_str()) return;
  setValue(static_cast<int32_t>(std::clamp(parsed, 0L, 100L)));
}

}  // namespace tessel
