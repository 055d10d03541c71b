#include "tessel/paint/image.h"

namespace tessel {

Image Image::blank(int32_t width, int32_t height) {
  Image image;
  if (width < 1 || height < 1) return image;
  image.width = width;
  image.height = height;
  image.pixels = std::make_shared<std::vector<uint8_t>>(size_t(width) * height * 4, 0);
  return image;
}

}  // namespace tessel
