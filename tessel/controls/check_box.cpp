#include "tessel/controls/check_box.h"

#include <algorithm>
#include <utility>

#include "tessel/controls/text_fit.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {
namespace {

constexpr uint32_t kKeyEnter = 0x0D;
constexpr uint32_t kKeySpace = 0x20;
constexpr int32_t kCheckLineWidth = 2;

const wchar_t* boolText(bool value) {
  return value ? L"true" : L"false";
}

}  // namespace

const SurfaceStyle& checkBoxSurface(const CheckBoxStyle& style, bool checked, bool enabled,
                                    bool pressed, bool hot) {
  const ControlStates& box = checked ? style.checked : style.unchecked;
  if (!enabled) return box.disabled;
  if (pressed) return box.pressed;
  if (hot) return box.hot;
  return box.normal;
}

Rect checkBoxRect(const Rect& bounds, int32_t boxSize) {
  const int32_t down = std::max((bounds.height - boxSize) / 2, 0);
  return Rect{bounds.x + 1, bounds.y + down, boxSize, boxSize};
}

CheckMark checkMarkPoints(Point box, int32_t boxSize) {
  return CheckMark{Point{box.x + 3, box.y + 7}, Point{box.x + 6, box.y + 10},
                   Point{box.x + boxSize - 3, box.y + 3}};
}

CheckBox::CheckBox(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
                   SurfaceMode mode)
    : CheckBox(std::move(id), bounds, std::move(text), buildCheckBoxStyle(theme, mode)) {}

CheckBox::CheckBox(std::wstring id, Rect bounds, std::wstring text, CheckBoxStyle style)
    : Control(std::move(id), bounds), style_(std::move(style)), text_(std::move(text)) {}

void CheckBox::setChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  invalidate(8);
}

void CheckBox::setText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  invalidate(8);
}

void CheckBox::setStyle(const CheckBoxStyle& style) {
  style_ = style;
  invalidate(8);
}

bool CheckBox::applySkin(const StyleSheet& sheet) {
  const CheckBoxStyle* found = sheet.checkBoxes.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

int32_t CheckBox::textLeft() const {
  return std::max(style_.textLeft, 1 + style_.boxSize);
}

std::wstring CheckBox::clippedText() const {
  return textIsClipped(text_, style_.text, bounds().width - textLeft()) ? text_ : std::wstring();
}

void CheckBox::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  const Rect box = checkBoxRect(rect, style_.boxSize);
  drawSurface(canvas, box, checkBoxSurface(style_, checked_, enabled(), pressed(), hot()));
  if (checked_) {
    const CheckMark mark = checkMarkPoints(Point{box.x, box.y}, style_.boxSize);
    canvas.drawLine(mark.start, mark.corner, style_.checkColor, kCheckLineWidth);
    canvas.drawLine(mark.corner, mark.end, style_.checkColor, kCheckLineWidth);
  }
  const Rect text{rect.x + textLeft(), rect.y, rect.width - textLeft(), rect.height};
  if (text.empty()) return;
  canvas.drawText(text_, text, style_.text,
                  enabled() ? style_.text.color : style_.text.disabledColor,
                  kTextLeft | kTextMiddle | kTextEndEllipsis);
}

void CheckBox::clicked() {
  if (!enabled()) return;
  const bool previous = checked_;
  setChecked(!previous);
  ValueChangedEvent event;
  event.text = boolText(checked_);
  event.previousText = boolText(previous);
  event.checked = checked_;
  event.previousChecked = previous;
  emitValueChanged(event);
  if (!event.handled && onChanged_) onChanged_(checked_);
}

bool CheckBox::keyDown(uint32_t virtualKey, bool ctrl, bool, bool alt, NativeWindow) {
  if (ctrl || alt || (virtualKey != kKeySpace && virtualKey != kKeyEnter)) return false;
  clicked();
  return true;
}

void CheckBox::captureExtraState(ControlState& state) const {
  state.setValue(L"checked", boolText(checked_));
}

void CheckBox::applyExtraState(const StateValue& value) {
  if (value.first != L"checked") return;
  if (value.second == L"true" || value.second == L"1") setChecked(true);
  if (value.second == L"false" || value.second == L"0") setChecked(false);
}

}  // namespace tessel
