// The looks of a check box: the box per interaction state, unchecked and checked, the colour
// of the mark and the caption beside the box.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct CheckBoxStyle {
  ControlStates unchecked;  // the box; active is not used
  ControlStates checked;
  Color checkColor = 0xFFFFFF;
  TextStyle text;
  int32_t boxSize = 18;
  int32_t textLeft = 26;
};

}  // namespace tessel
