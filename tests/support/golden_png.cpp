#include "tests/support/golden_image.h"
#include "tests/support/png_file.h"
#include "tests/support/source_files.h"

::testing::AssertionResult MatchesGoldenPng(const tessel::Image& image, const std::string& relative,
                                            int tolerance) {
  const std::filesystem::path path = SourceFile(relative);
  if (RegeneratingGoldenImages()) {
    if (!WritePngImage(path, image))
      return ::testing::AssertionFailure() << "cannot write " << path.string();
    return ::testing::AssertionSuccess();
  }
  tessel::Image expected;
  if (!ReadPngImage(path, expected))
    return ::testing::AssertionFailure()
           << "cannot read " << path.string() << " (regenerate with STAYHOLD_REGENERATE_GOLDEN=1)";
  return CompareImages(image, expected, relative, tolerance);
}
