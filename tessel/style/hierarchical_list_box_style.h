// The looks of a (tree) list box: its surface, rows and selected rows per interaction state,
// the rail beside a selected row, texts and metrics.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct HierarchicalListBoxStyle {
  SurfaceStyle surface;
  ControlStates row;          // normal, hot and pressed
  ControlStates selectedRow;  // normal and hot
  SurfaceStyle selectedRail;
  ScrollBarStyle scrollBar;
  ScrollAcceleration scrollAcceleration;
  TextStyle text;
  TextStyle selectedText;
  TextStyle disabledText;
  Color separator = 0x808080;
  int32_t rowHeight = 28;
  int32_t railWidth = 3;
  int32_t linePadding = 2;
  int32_t contentInsetX = 4;
  int32_t contentInsetY = 4;
  int32_t itemPaddingX = 10;
  int32_t itemPaddingY = 4;
  int32_t scrollBarWidth = 12;
  int32_t scrollRailGap = 2;
  bool showSeparators = false;
};

}  // namespace tessel
