// Whether a control's text fits its width, for the tooltip that shows clipped text in full, and
// the width that text needs. Measurement goes through the screen's text measure when the window
// layer has installed one; without it a fixed estimate stands in, so the answer never depends
// on a window existing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tessel/style/text_style.h"

namespace tessel {

using ScreenTextMeasure = std::function<int32_t(const std::wstring&, const TextStyle&)>;

// Installs (or, given an empty function, removes) the process's screen text measure.
void setScreenTextMeasure(ScreenTextMeasure measure);

// The width of `text` in `style`: the screen measure, or else pointSize * 2 / 3 pixels per
// character, at least 5.
int32_t measuredTextWidth(const std::wstring& text, const TextStyle& style);

// False for empty text; true when `width` < 1; otherwise whether the measured width exceeds it.
bool textIsClipped(const std::wstring& text, const TextStyle& style, int32_t width);

}  // namespace tessel
