// The looks of a tooltip: its surface, accent rail and icon, the text, and the shadow beneath.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct TooltipStyle {
  SurfaceStyle surface;
  SurfaceStyle accentRail;
  SurfaceStyle icon;
  Color shadow = 0x000000;
  TextStyle textStyle;
  TextStyle iconText;
  int32_t maxWidth = 360;
  int32_t paddingX = 10;
  int32_t paddingY = 7;
  int32_t iconSize = 18;
  int32_t gap = 8;
  int32_t shadowOffsetX = 0;
  int32_t shadowOffsetY = 3;
  bool showAccentRail = true;
  bool showIcon = false;
  bool showShadow = true;
  ScrollAcceleration scrollAcceleration;
};

}  // namespace tessel
