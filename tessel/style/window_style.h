// The looks of a top-level window: its surface, the fallback colour and how the frame and the
// window region follow the skin.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/surface_style.h"

namespace tessel {

struct WindowStyle {
  SurfaceStyle surface;
  Color fallbackBackground = 0x000000;
  bool drawSurface = true;
  bool customFrame = true;
  bool useSurfaceRegion = false;
  bool useChildSurfaceRegion = false;
  bool clipRegionOnResize = true;
  int32_t resizeBorderThickness = 6;
};

}  // namespace tessel
