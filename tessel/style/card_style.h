// The looks of a card: body and header surfaces, title and subtitle texts and the header metrics.
#pragma once

#include <cstdint>

#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct CardStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  TextStyle titleText;
  TextStyle subtitleText;
  int32_t headerHeight = 34;
  int32_t contentPadding = 12;
};

}  // namespace tessel
