// The looks of read-only text that can be selected: surface, selection and the two texts.
#pragma once

#include <cstdint>

#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct SelectableTextStyle {
  SurfaceStyle surface;
  SurfaceStyle selection;
  TextStyle text;
  TextStyle selectedText;
  int32_t paddingX = 8;
  int32_t paddingY = 6;
  int32_t lineHeight = 0;
  ScrollAcceleration scrollAcceleration;
};

}  // namespace tessel
