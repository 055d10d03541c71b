// The looks of a status chip: a capsule with a coloured badge and one line of text.
#pragma once

#include <cstdint>

#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct StatusChipStyle {
  SurfaceStyle surface;
  SurfaceStyle badge;
  TextStyle text;
  int32_t badgeSize = 10;
  int32_t badgeLeft = 10;
  int32_t textLeft = 28;
};

}  // namespace tessel
