// Colours as the toolkit keeps them in memory: 0x00BBGGRR, the layout of a Windows COLORREF,
// so that a value passes to GDI unchanged. Skins write #RRGGBB; the skin reader converts.
#pragma once

#include <cstdint>

namespace tessel {

using Color = uint32_t;

constexpr Color rgbColor(uint32_t red, uint32_t green, uint32_t blue) {
  return (red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16);
}
constexpr uint32_t redOf(Color c) {
  return c & 0xFF;
}
constexpr uint32_t greenOf(Color c) {
  return (c >> 8) & 0xFF;
}
constexpr uint32_t blueOf(Color c) {
  return (c >> 16) & 0xFF;
}

// The colour as one opaque pixel of a memory image (bytes blue, green, red, alpha), read as a
// little-endian word, for filling rows a word at a time.
constexpr uint32_t opaquePixelWord(Color c) {
  return 0xFF000000u | redOf(c) << 16 | greenOf(c) << 8 | blueOf(c);
}

// a + (b - a) * t per channel with t clamped to 0..1, truncated toward zero.
Color mixColor(Color a, Color b, double t);

// The contrast ratio of two colours by relative luminance, 1 to 21.
double contrastRatio(Color a, Color b);

// `fill`, or the nearest step of it away from `text` (toward white when the fill is the lighter
// of the two, else toward black) at which `text` reaches `minimum` contrast, so that derived
// surfaces keep their text readable.
Color readableFill(Color fill, Color text, double minimum = 4.6);

}  // namespace tessel
