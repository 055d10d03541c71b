// The looks of a control per interaction state: a surface or a bitmap tint for normal, hot,
// pressed, disabled and active (checked, open, selected, or focused for a text field). Plain
// values that skins fill and controls pick from; a control leaves the states it lacks unused.
#pragma once

#include "tessel/style/bitmap_tint.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// The surfaces of a button-like control, one per state.
struct ControlStates {
  SurfaceStyle normal;
  SurfaceStyle hot;
  SurfaceStyle pressed;
  SurfaceStyle disabled;
  SurfaceStyle active;

  // All five at once, as a shape or a whole-object value sets them.
  template <typename F>
  void each(F&& f) {
    for (SurfaceStyle* state : {&normal, &hot, &pressed, &disabled, &active})
      f(*state);
  }
};

// Tints of a bitmap button, one per state.
struct TintStates {
  BitmapTint normal;
  BitmapTint hot;
  BitmapTint pressed;
  BitmapTint disabled;
  BitmapTint active;
};

}  // namespace tessel
