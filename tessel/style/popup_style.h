// The looks of a designed popup: surface, header and icon, the close and action buttons, the
// texts and the layout metrics.
#pragma once

#include <cstdint>

#include "tessel/style/button_style.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct PopupStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  SurfaceStyle icon;
  ButtonStyle closeButton;
  ButtonStyle primaryAction;
  ButtonStyle secondaryAction;
  TextStyle titleText;
  TextStyle messageText;
  TextStyle iconText;
  int32_t headerHeight = 40;
  int32_t paddingX = 18;
  int32_t paddingY = 14;
  int32_t iconSize = 32;
  int32_t actionWidth = 104;
  int32_t actionHeight = 32;
  int32_t actionGap = 8;
  int32_t shadowOffsetX = 0;
  int32_t shadowOffsetY = 6;
  bool showShadow = true;
};

}  // namespace tessel
