// A memory image: premultiplied pixels in the byte order blue, green, red, alpha, top row first,
// with shared ownership so that copies of a style share one pixel buffer. Everything the
// software painter produces lands in one of these.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace tessel {

struct Image {
  int32_t width = 0;
  int32_t height = 0;
  std::shared_ptr<std::vector<uint8_t>> pixels;

  // A transparent image of the given size; empty when a side is below 1.
  static Image blank(int32_t width, int32_t height);

  bool empty() const { return width < 1 || height < 1 || !pixels || pixels->empty(); }
  uint8_t* pixel(int32_t x, int32_t y) { return pixels->data() + (size_t(y) * width + x) * 4; }
  const uint8_t* pixel(int32_t x, int32_t y) const {
    return pixels->data() + (size_t(y) * width + x) * 4;
  }
  uint8_t alphaAt(int32_t x, int32_t y) const { return pixel(x, y)[3]; }
};

}  // namespace tessel
