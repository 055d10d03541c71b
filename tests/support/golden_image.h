// Golden images for painter tests: an Image kept under the source tree as a binary PAM file (P7,
// RGB_ALPHA, 8 bits) of its premultiplied bytes, reordered from BGRA to RGBA (so a viewer shows
// semi-transparent pixels darker). Regenerate with STAYHOLD_REGENERATE_GOLDEN=1.
#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tessel/style/image.h"

bool WritePamImage(const std::filesystem::path& path, const tessel::Image& image);
// False on a missing file or anything but an 8-bit, four-channel P7 file.
bool ReadPamImage(const std::filesystem::path& path, tessel::Image& image);

// Compares `image` with the fixture at `relative` (from the source root), each channel within
// `tolerance`; a failure names the first differing pixel and the count. Regenerating writes it.
::testing::AssertionResult MatchesGoldenImage(const tessel::Image& image,
                                              const std::string& relative, int tolerance);

// As MatchesGoldenImage with a PNG fixture (png_file.h), for larger opaque images. Native only.
::testing::AssertionResult MatchesGoldenPng(const tessel::Image& image, const std::string& relative,
                                            int tolerance);

// Compares two images channel by channel; `label` names the image in a failure.
::testing::AssertionResult CompareImages(const tessel::Image& image, const tessel::Image& expected,
                                         const std::string& label, int tolerance);
