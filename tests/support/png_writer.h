// Writes a memory image as a PNG file for people to look at (contact sheets, galleries):
// 8-bit RGBA, un-premultiplied, stored without compression so nothing beyond the standard
// library is needed.
#pragma once

#include <filesystem>

#include "tessel/paint/image.h"

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image);
