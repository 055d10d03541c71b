// How fast wheel scrolling speeds up under quick successive notches, for every control that
// scrolls. Skins may set it; the values are kept within sane limits when read.
#pragma once

#include <cstdint>

namespace tessel {

struct ScrollAcceleration {
  bool enabled = true;
  float strength = 0.45f;
  float maxMultiplier = 4.0f;
  int32_t fastIntervalMs = 42;
  int32_t resetMs = 180;
};

}  // namespace tessel
