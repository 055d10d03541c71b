// The overall rendering style of a skin, which re-derives every surface from the palette.
#pragma once

#include <cstdint>

namespace tessel {

enum class SurfaceMode : int32_t {
  Flat2d = 0,
  Sculpted3d = 1,
  Textured = 2,
  BitmapPlates = 3,
  WindowsClean = 4,
};

}  // namespace tessel
