// The looks of a button drawn from a bitmap: its caption and the tint per interaction state.
#pragma once

#include "tessel/style/control_states.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct BitmapButtonStyle {
  TextStyle text;
  TintStates tints;
};

}  // namespace tessel
