// Plain looks for control tests: flat one-colour surfaces without border, so that a pixel tells
// which surface was painted, and a count of the pixels of one colour.
#pragma once

#include <cstdint>

#include "tessel/style/image.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

inline SurfaceStyle FlatSurface(Color fill) {
  SurfaceStyle surface;
  surface.fill = fill;
  surface.drawBorder = false;
  return surface;
}

inline TextStyle PlainText(Color color) {
  TextStyle text;
  text.color = color;
  text.disabledColor = color ^ 0x00FFFFFFu;
  return text;
}

inline Image OpaqueImage(int32_t width, int32_t height, Color color) {
  Image image = Image::blank(width, height);
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) {
      uint8_t* p = image.pixel(x, y);
      p[0] = static_cast<uint8_t>((color >> 16) & 0xFF);
      p[1] = static_cast<uint8_t>((color >> 8) & 0xFF);
      p[2] = static_cast<uint8_t>(color & 0xFF);
      p[3] = 255;
    }
  }
  return image;
}

inline int CountColor(const Image& image, Color color) {
  int count = 0;
  for (int32_t y = 0; y < image.height; ++y) {
    for (int32_t x = 0; x < image.width; ++x) {
      const uint8_t* p = image.pixel(x, y);
      if (rgbColor(p[2], p[1], p[0]) == color && p[3] == 255) ++count;
    }
  }
  return count;
}

}  // namespace tessel
