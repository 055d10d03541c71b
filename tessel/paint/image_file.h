// Images from files and from memory, and where a skin's image paths point. Loading never
// reports why it failed: a missing or unreadable file gives an empty image and `false`, and
// the caller keeps its vector look. The Windows build decodes through the Windows Imaging
// Component (PNG and whatever else Windows offers); the native build, which exists for
// tests, reads binary PAM files instead (see loadImageFile).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessel/style/image.h"

namespace tessel {

// Decodes the file at `path` into premultiplied BGRA. On failure `image` becomes empty.
// Native build: a PAM file (P7, MAXVAL 255, DEPTH 4 as RGB_ALPHA or DEPTH 3 as RGB) whose
// colours are straight (not premultiplied), as PAM defines RGB_ALPHA and as PNG stores them.
bool loadImageFile(const std::wstring& path, Image& image);

// A skin's image path made usable: trimmed; kept as it is when it starts with a drive letter,
// ":" and a slash, or with a slash or backslash; otherwise joined to `sourceDirectory` when
// that isn't empty. The join uses the platform's separator, and none when the directory
// already ends in one.
std::wstring resolveSkinPath(const std::wstring& sourceDirectory, const std::wstring& text);

// An image from straight (not premultiplied) bytes in the order red, green, blue, alpha, top
// row first. Empty when a size is below 1 or `rgba` is shorter than width * height * 4.
Image imageFromStraightRgba(int32_t width, int32_t height, const std::vector<uint8_t>& rgba);

}  // namespace tessel
