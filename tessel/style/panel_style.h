// The looks of a panel: one surface and the padding that keeps children off its edge.
#pragma once

#include <cstdint>

#include "tessel/style/surface_style.h"

namespace tessel {

struct PanelStyle {
  SurfaceStyle surface;
  int32_t padding = 12;
};

}  // namespace tessel
