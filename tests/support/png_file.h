// PNG files of memory images, for people to look at (contact sheets, galleries) and as golden
// images of whole skins. Written 8-bit, un-premultiplied, as RGB when every pixel is opaque and
// as RGBA otherwise, deflated by zlib with a per-row filter. The reader takes back what the
// writer writes (8-bit RGB or RGBA, not interlaced) and premultiplies it again, which is exact
// for opaque pixels.
#pragma once

#include <filesystem>

#include "tessel/style/image.h"

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image);
// False on a missing or damaged file or on a form the writer doesn't produce.
bool ReadPngImage(const std::filesystem::path& path, tessel::Image& image);
