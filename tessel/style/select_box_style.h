// The looks of a select box: the closed box and its arrow per interaction state, the dropdown
// with its options, and the dropdown's metrics and scroll bar.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct SelectBoxStyle {
  SurfaceStyle surface;
  SurfaceStyle hotSurface;
  SurfaceStyle pressedSurface;
  SurfaceStyle disabledSurface;
  SurfaceStyle arrowSurface;
  SurfaceStyle arrowHotSurface;
  SurfaceStyle arrowPressedSurface;
  SurfaceStyle arrowDisabledSurface;
  SurfaceStyle dropdownSurface;
  SurfaceStyle optionHotSurface;
  SurfaceStyle optionSelectedSurface;
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
