#include "tests/support/golden_image.h"
#include "tests/support/png_file.h"

::testing::AssertionResult MatchesGoldenPng(const tessel::Image& image, const std::string& relative,
                                            int tolerance) {
  return MatchesGoldenFile(image, relative, tolerance, WritePngImage, ReadPngImage);
}
