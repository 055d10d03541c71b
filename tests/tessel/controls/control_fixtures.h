// Plain looks for control tests: flat one-colour surfaces without border, so that a pixel tells
// which surface was painted; where a colour shows; and a record of system moves.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessel/core/system_move.h"
#include "tessel/style/button_style.h"
#include "tessel/style/image.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {

inline SurfaceStyle FlatSurface(Color fill) {
  SurfaceStyle surface;
  surface.fill = fill;
  surface.drawBorder = false;
  return surface;
}

// Disabled text is the colour's complement.
inline TextStyle PlainText(Color color) {
  TextStyle text;
  text.color = color;
  text.disabledColor = color ^ 0x00FFFFFFu;
  return text;
}

// A button whose five states are flat surfaces of their own colours (normal, hot, pressed,
// active, disabled), with white text.
inline ButtonStyle FlatButton(const std::vector<Color>& states) {
  ButtonStyle style;
  SurfaceStyle* surfaces[] = {&style.surface.normal, &style.surface.hot, &style.surface.pressed,
                              &style.surface.active, &style.surface.disabled};
  for (size_t i = 0; i < 5; ++i)
    *surfaces[i] = FlatSurface(states[i]);
  style.text = PlainText(rgbColor(250, 250, 250));
  return style;
}

inline bool Shows(const Image& image, Color color) {
  for (int32_t y = 0; y < image.height; ++y)
    for (int32_t x = 0; x < image.width; ++x)
      if (PixelAt(image, x, y) == color) return true;
  return false;
}

// Notes each system move as "move <id>" in `seen` while it lives.
struct MoveRecorder {
  explicit MoveRecorder(std::vector<std::wstring>& seen) {
    setSystemMoveHook([&seen](Control& source) { seen.push_back(L"move " + source.id()); });
  }
  ~MoveRecorder() { setSystemMoveHook(nullptr); }
};

}  // namespace tessel
