// Lays the keys of a skin over a surface, a set of state surfaces, a text style or a bitmap
// tint. Nothing is reset: keys that are absent keep what the record held, and a value that
// doesn't parse is ignored.
#pragma once

#include "tessel/skin/style_reader.h"
#include "tessel/style/control_states.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

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
