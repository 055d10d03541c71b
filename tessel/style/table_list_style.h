// The looks of a table: surface, header, rows, selection, severity colours of the rows and the
// column grips and sort marks.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct TableListStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  SurfaceStyle row;
  SurfaceStyle selectedRow;
  SurfaceStyle selectedRail;
  TextStyle headerText;
  TextStyle rowText;
  TextStyle selectedText;
  TextStyle highSeverityText;
  Color highSeverityFill = rgbColor(0x6E, 0x1E, 0x1E);
  Color mediumSeverityFill = rgbColor(0x6E, 0x50, 0x14);
  Color lowSeverityFill = rgbColor(0x1E, 0x46, 0x32);
  Color separator = 0x808080;
  Color resizeGrip = 0x808080;
  Color resizeGripHot = 0xFFFFFF;
  Color sortIndicator = 0xC0C0C0;
  Color sortIndicatorHot = 0xFFFFFF;
  int32_t headerHeight = 30;
  int32_t rowHeight = 28;
  int32_t railWidth = 3;
  int32_t resizeGripWidth = 6;
  int32_t sortIndicatorWidth = 14;
  int32_t linePadding = 1;
  int32_t contentInsetX = 8;
  int32_t contentInsetY = 2;
  ScrollAcceleration scrollAcceleration;
};

}  // namespace tessel
