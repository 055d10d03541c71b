#include "tests/support/png_file.h"

#include <png.h>

#include <algorithm>
#include <cstdint>
#include <vector>

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image) {
  if (image.empty()) return false;
  bool opaque = true;
  for (size_t i = 3; i < image.pixels->size() && opaque; i += 4)
    opaque = (*image.pixels)[i] == 255;
  const size_t step = opaque ? 3 : 4;
  std::vector<uint8_t> straight;
  straight.reserve(size_t(image.width) * size_t(image.height) * step);
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const uint8_t* p = image.pixel(x, y);
      const int a = p[3];
      for (int c = 2; c >= 0; --c)
        straight.push_back(a == 0 ? 0 : uint8_t(std::min(255, (p[c] * 255 + a / 2) / a)));
      if (!opaque) straight.push_back(uint8_t(a));
    }
  }
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = png_uint_32(image.width);
  png.height = png_uint_32(image.height);
  png.format = opaque ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  return png_image_write_to_file(&png, path.string().c_str(), 0, straight.data(), 0, nullptr) != 0;
}

bool ReadPngImage(const std::filesystem::path& path, tessel::Image& image) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&png, path.string().c_str())) return false;
  if (png.width < 1 || png.height < 1 || png.width > (1 << 14) || png.height > (1 << 14)) {
    png_image_free(&png);
    return false;
  }
  png.format = PNG_FORMAT_BGRA;
  tessel::Image read = tessel::Image::blank(int32_t(png.width), int32_t(png.height));
  if (!png_image_finish_read(&png, nullptr, read.pixels->data(), 0, nullptr)) return false;
  for (size_t i = 0; i < read.pixels->size(); i += 4) {
    uint8_t* p = read.pixels->data() + i;
    for (int c = 0; c < 3; ++c)
      p[c] = uint8_t((p[c] * p[3] + 127) / 255);
  }
  image = read;
  return true;
}
