// The looks of a progress bar: frame, track and fill surfaces and the label beside them.
#pragma once

#include <cstdint>

#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct ProgressBarStyle {
  SurfaceStyle frame;
  SurfaceStyle track;
  SurfaceStyle fill;
  TextStyle labelText;
  int32_t insetX = 3;
  int32_t insetY = 3;
  int32_t labelWidth = 48;
  int32_t labelPaddingX = 8;
  int32_t labelPadding = 6;
};

}  // namespace tessel
