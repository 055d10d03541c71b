// The looks of a custom window title bar: its surface, the caption buttons (one button style
// for all) and where buttons, icon and title sit.
#pragma once

#include <cstdint>

#include "tessel/style/button_style.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct ChromeTitleBarStyle {
  SurfaceStyle surface;
  ButtonStyle titleButton;
  TextStyle titleText;
  int32_t buttonWidth = 46;
  int32_t buttonHeight = 30;
  int32_t buttonTop = 0;
  int32_t buttonGap = 0;
  int32_t headerActionGap = 6;
  int32_t headerActionGroupGap = 12;
  int32_t rightMargin = 0;
  int32_t iconSize = 16;
  int32_t iconLeft = 12;
  int32_t titleLeft = 38;
};

}  // namespace tessel
