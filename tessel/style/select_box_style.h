// The looks of a select box: the closed box and its arrow per interaction state, the dropdown
// with its options, and the dropdown's metrics and scroll bar.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct SelectBoxStyle {
  ControlStates surface;       // the closed box; active is not used
  ControlStates arrowSurface;  // the arrow button; active is not used
  SurfaceStyle dropdownSurface;
  ControlStates optionSurface;  // an option: hot, and active for the selected one
  ScrollBarStyle scrollBar;
  ScrollAcceleration scrollAcceleration;
  TextStyle text;
  Color arrowColor = 0xFFFFFF;
  int32_t arrowWidth = 28;
  int32_t itemHeight = 28;
  int32_t maxVisibleItems = 8;
  int32_t dropdownGap = 4;
  int32_t dropdownPadding = 4;
  int32_t dropdownItemPaddingX = 10;
  int32_t dropdownItemPaddingY = 4;
  int32_t dropdownScrollBarWidth = 12;
  int32_t dropdownScrollRailGap = 2;
  bool dropdownEmbeddedScrollRail = false;
};

}  // namespace tessel
