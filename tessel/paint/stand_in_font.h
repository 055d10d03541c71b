// A 5x7 pixel font that stands in for real text where no font engine exists: the memory-image
// canvas of the native build, and labels in generated images. Upper-case letters, digits and a
// little punctuation; lower case is drawn as upper case and anything else as a blank.
// Measurement is exact and the same on every machine, which is what layout tests need.
#pragma once

#include <string>

#include "tessel/style/color.h"
#include "tessel/style/image.h"

namespace tessel {

// Width in pixels of `text` at `scale` (6 pixels per character at scale 1, no trailing gap).
int BitmapTextWidth(const std::string& text, int scale);
constexpr int BitmapTextHeight(int scale) {
  return 7 * scale;
}

// Draws opaque pixels of `color` into `image` with the top-left corner at (x, y), clipped.
void DrawBitmapText(Image& image, int x, int y, const std::string& text, Color color, int scale);

// Wide text as the stand-in font sees it: code units above 127 become blanks.
std::string StandInText(const std::wstring& text);

}  // namespace tessel
