// A memory image: premultiplied pixels in the byte order blue, green, red, alpha, top row first,
// with shared ownership so that copies of a style share one pixel buffer. Everything the
// software painter produces lands in one of these.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tessel {

struct ImageVariants;

struct Image {
  // How many recoloured copies one image keeps; a further one pushes out the oldest.
  static constexpr size_t kMaxVariants = 12;

  int32_t width = 0;
  int32_t height = 0;
  std::shared_ptr<std::vector<uint8_t>> pixels;
  // Recoloured copies made from these pixels, shared by every copy of the image. Images that
  // serve as sources are not painted into afterwards, so the copies never go stale.
  std::shared_ptr<ImageVariants> variants;

  // A transparent image of the given size; empty when a side is below 1.
  static Image blank(int32_t width, int32_t height);

  bool empty() const { return width < 1 || height < 1 || !pixels || pixels->empty(); }
  uint8_t* pixel(int32_t x, int32_t y) { return pixels->data() + (size_t(y) * width + x) * 4; }
  const uint8_t* pixel(int32_t x, int32_t y) const {
    return pixels->data() + (size_t(y) * width + x) * 4;
  }
  uint8_t alphaAt(int32_t x, int32_t y) const { return pixel(x, y)[3]; }

  // The variant kept under `key`, or null. Copies of this image see the same list.
  const Image* findVariant(uint64_t key) const;
  // Keeps `variant` under `key` (replacing one with that key), dropping the oldest entry
  // beyond kMaxVariants. Does nothing for an image made without a variant list.
  void keepVariant(uint64_t key, const Image& variant) const;
  // Keys in the list, oldest first.
  std::vector<uint64_t> variantKeys() const;
};

struct ImageVariants {
  std::vector<std::pair<uint64_t, Image>> entries;  // oldest first
};

}  // namespace tessel
