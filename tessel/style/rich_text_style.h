// The looks of a block of rich (help) text: its surface, an optional icon, body and link texts.
#pragma once

#include <cstdint>

#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct RichTextStyle {
  SurfaceStyle surface;
  SurfaceStyle icon;
  TextStyle text;
  TextStyle linkText;
  int32_t paddingX = 12;
  int32_t paddingY = 10;
  int32_t lineHeight = 0;  // 0: from the font
};

}  // namespace tessel
