// Lays the keys of a skin over a surface, a set of state surfaces, a text style or a bitmap
// tint. Nothing is reset: keys that are absent keep what the record held, and a value that
// doesn't parse is ignored.
#pragma once

#include "tessel/paint/bitmap_tint.h"
#include "tessel/skin/style_reader.h"
#include "tessel/skin/surface_style.h"
#include "tessel/skin/text_style.h"

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

void parseSurfaceStyle(const StyleReader& reader, SurfaceStyle& surface);
// The whole object applies to every state, then each state's own member over its copy.
void parseControlStates(const StyleReader& reader, ControlStates& states);
void parseTextStyle(const StyleReader& reader, TextStyle& text);
// The tint keys at one level (`mode`, `tintMode`, `tint.mode`, ... ).
void parseBitmapTint(const StyleReader& reader, BitmapTint& tint);
// As parseControlStates, with `hover`, `down` and `checked` as aliases of hot, pressed, active.
void parseTintStates(const StyleReader& reader, TintStates& tints);
// One number, two (horizontal, vertical), four (left, top, right, bottom), or an object with
// left/top/right/bottom members that override the number form. Three numbers set nothing.
bool parseInsets(const StyleReader& reader, const std::wstring& name, Insets& insets);

}  // namespace tessel
