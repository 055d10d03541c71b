// A check box: a square box from the skin (eight surfaces: unchecked and checked, each normal,
// hot, pressed and disabled), a check mark of two lines, and a text to its right. A click or
// Space/Enter toggles it and emits ValueChanged; setChecked changes it silently.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tessel/core/control.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/check_box_style.h"

namespace tessel {

// The surface for a state: disabled before pressed before hot.
const SurfaceStyle& checkBoxSurface(const CheckBoxStyle& style, bool checked, bool enabled,
                                    bool pressed, bool hot);

// The box of a check box of `bounds` (in its parent's coordinates): `boxSize` square, one
// pixel in from the left, centred vertically but never above the top.
Rect checkBoxRect(const Rect& bounds, int32_t boxSize);

// The check mark in a box at (x, y): from (x+3, y+7) to (x+6, y+10), then to
// (x + boxSize - 3, y+3).
struct CheckMark {
  Point start;
  Point corner;
  Point end;
};
CheckMark checkMarkPoints(Point box, int32_t boxSize);

class CheckBox : public Control {
 public:
  CheckBox(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
           SurfaceMode mode = SurfaceMode::Sculpted3d);
  CheckBox(std::wstring id, Rect bounds, std::wstring text, CheckBoxStyle style);

  // Silent: emits nothing and calls no callback.
  void setChecked(bool checked);
  void setText(std::wstring text);
  void setStyle(const CheckBoxStyle& style);
  void setOnChanged(std::function<void(bool)> onChanged) { onChanged_ = std::move(onChanged); }

  bool checked() const { return checked_; }
  const std::wstring& text() const { return text_; }
  const CheckBoxStyle& style() const { return style_; }

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  void paint(Canvas& canvas, Point origin) override;
  void clicked() override;
  bool keyDown(uint32_t virtualKey, bool ctrl, bool shift, bool alt, NativeWindow window) override;
  void captureExtraState(ControlState& state) const override;
  void applyExtraState(const StateValue& value) override;

 private:
  // Where the text starts, from the control's left: the record's textLeft, but past the box.
  int32_t textLeft() const;

  CheckBoxStyle style_;
  std::wstring text_;
  bool checked_ = false;
  std::function<void(bool)> onChanged_;
};

}  // namespace tessel
