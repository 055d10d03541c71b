// A 5x7 pixel font for labels in generated test images (contact sheets, galleries). Upper-case
// letters, digits and a little punctuation; lower case is drawn as upper case and anything else
// as a blank. Measurement is exact and the same on every machine.
#pragma once

#include <string>

#include "tessel/paint/color.h"
#include "tessel/paint/image.h"

// Width in pixels of `text` at `scale` (6 pixels per character at scale 1, no trailing gap).
int BitmapTextWidth(const std::string& text, int scale);
constexpr int BitmapTextHeight(int scale) {
  return 7 * scale;
}

// Draws opaque pixels of `color` into `image` with the top-left corner at (x, y), clipped.
void DrawBitmapText(tessel::Image& image, int x, int y, const std::string& text,
                    tessel::Color color, int scale);
