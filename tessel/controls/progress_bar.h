// A progress bar: a frame, a track inside it and a fill over the track's left part, with the
// percentage in a label column at the right. The value is a percentage, 0 to 100; at 0 no
// fill is painted at all.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/core/control.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/progress_bar_style.h"

namespace tessel {

// Where the parts of a progress bar lie, for a frame rectangle.
struct ProgressBarLayout {
  Rect track;
  Rect fill;   // empty when the value is 0
  Rect label;  // empty without text
};

// The track is `frame` deflated by insetX and insetY; with text, a label column is cut off at
// its right: labelWidth when positive, else a third of the track's height, at most half the
// track's width. The fill is `value` percent of the track's width. The label's text ends
// labelPaddingX before the column's right end.
ProgressBarLayout progressBarLayout(const ProgressBarStyle& style, const Rect& frame, int32_t value,
                                    bool showText);

class ProgressBar : public Control {
 public:
  ProgressBar(std::wstring id, Rect bounds, const Theme& theme,
              SurfaceMode mode = SurfaceMode::Sculpted3d);
  ProgressBar(std::wstring id, Rect bounds, ProgressBarStyle style);

  // Clamped to 0..100.
  void setValue(int32_t value);
  void setShowText(bool showText);
  void setStyle(const ProgressBarStyle& style);

  int32_t value() const { return value_; }
  bool showText() const { return showText_; }
  const ProgressBarStyle& style() const { return style_; }
  // The label: the value followed by "%".
  std::wstring labelText() const;

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  void paint(Canvas& canvas, Point origin) override;
  bool containsPoint(Point local) const override;
  void captureExtraState(ControlState& state) const override;
  void applyExtraState(const StateValue& value) override;

 private:
  ProgressBarStyle style_;
  int32_t value_ = 0;
  bool showText_ = true;
};

}  // namespace tessel
