// The looks of a push button: a surface per interaction state, its caption, and the outline that
// decides where a click lands.
#pragma once

#include "tessel/style/control_states.h"
#include "tessel/style/shape_kind.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct ButtonStyle {
  ControlStates surface;
  TextStyle text;
  ShapeStyle hitShape;  // when present, clicks land inside this outline only
  bool useSurfaceHitTesting = false;
};

}  // namespace tessel
