// The looks of a menu bar and its popups: bar, items per interaction state, popup, popup items
// and the columns of a popup line.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct MenuBarStyle {
  SurfaceStyle surface;
  ControlStates itemSurface;  // a bar item; active while its popup is open
  SurfaceStyle popupSurface;
  ControlStates popupItemSurface;  // a popup line: hot and pressed
  TextStyle itemText;
  TextStyle shortcutText;
  Color separator = 0x808080;
  Color check = 0xFFFFFF;
  Color arrow = 0xFFFFFF;
  int32_t height = 30;
  int32_t itemPaddingX = 10;
  int32_t itemGap = 2;
  int32_t popupPadding = 4;
  int32_t popupItemHeight = 28;
  int32_t popupMinWidth = 180;
  int32_t checkColumnWidth = 24;
  int32_t shortcutColumnWidth = 72;
  int32_t submenuArrowWidth = 18;
  int32_t separatorHeight = 9;
  int32_t popupGap = 2;
  bool drawSurface = true;
  bool drawItemSurface = true;
};

}  // namespace tessel
