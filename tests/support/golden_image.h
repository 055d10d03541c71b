// Golden images for painter tests: an Image kept as a binary PAM file (P7, RGB_ALPHA, 8 bits)
// under the source tree. The file holds the image's premultiplied bytes as they are, only
// reordered from B, G, R, A to R, G, B, A, so a viewer shows semi-transparent pixels darker.
// Regenerate after a deliberate change with STAYHOLD_REGENERATE_GOLDEN=1 (see
// RegeneratingGoldenImages).
#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tessel/style/image.h"

bool WritePamImage(const std::filesystem::path& path, const tessel::Image& image);
// False on a missing file or anything but an 8-bit, four-channel P7 file.
bool ReadPamImage(const std::filesystem::path& path, tessel::Image& image);

// Compares `image` with the fixture at `relative` (from the source root), allowing each channel
// to differ by `tolerance`. A failure names the first differing pixel and the count of them.
// While regenerating, writes the fixture instead and succeeds.
::testing::AssertionResult MatchesGoldenImage(const tessel::Image& image,
                                              const std::string& relative, int tolerance);

// As MatchesGoldenImage, with the fixture kept as a PNG file (png_file.h): for larger, opaque
// images such as skin galleries. Native build only.
::testing::AssertionResult MatchesGoldenPng(const tessel::Image& image, const std::string& relative,
                                            int tolerance);

// The comparison behind both: the fixture is read and written by the given functions.
using GoldenWriter = bool (*)(const std::filesystem::path&, const tessel::Image&);
using GoldenReader = bool (*)(const std::filesystem::path&, tessel::Image&);
::testing::AssertionResult MatchesGoldenFile(const tessel::Image& image,
                                             const std::string& relative, int tolerance,
                                             const GoldenWriter& write, const GoldenReader& read);

// Compares two images channel by channel; `label` names the image in a failure.
::testing::AssertionResult CompareImages(const tessel::Image& image, const tessel::Image& expected,
                                         const std::string& label, int tolerance);
