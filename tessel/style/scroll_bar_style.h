// The looks of a scroll bar: its track, the thumb and the two arrow buttons per interaction
// state, and the metrics of each part.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/scroll_acceleration.h"
#include "tessel/style/surface_style.h"

namespace tessel {

struct ScrollBarStyle {
  SurfaceStyle track;
  ControlStates thumb;
  ControlStates decrementButton;
  ControlStates incrementButton;
  Color arrow = 0xFFFFFF;
  int32_t buttonExtent = 16;
  int32_t minThumbExtent = 24;
  int32_t trackPadding = 2;
  int32_t trackThickness = 12;
  int32_t thumbThickness = 8;
  bool showButtons = false;
  ScrollAcceleration acceleration;
};

}  // namespace tessel
