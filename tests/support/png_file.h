// PNG files of memory images, for people to look at and as golden images of whole skins: 8-bit,
// un-premultiplied, RGB when every pixel is opaque, else RGBA. The reader premultiplies again,
// which is exact for opaque pixels.
#pragma once

#include <filesystem>

#include "tessel/style/image.h"

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image);
// False on a missing or damaged file.
bool ReadPngImage(const std::filesystem::path& path, tessel::Image& image);
