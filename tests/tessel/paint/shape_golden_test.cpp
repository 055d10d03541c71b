// After a deliberate change, regenerate from the project root (see golden/README.txt):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/tessel_tests --gtest_filter='ShapeGolden.*'
#include <string>

#include <gtest/gtest.h>

#include "tessel/paint/shape_fill.h"
#include "tests/support/golden_image.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

// Per kind and size, three panels side by side, each a pixel larger than the shape on every
// side so that any pixel drawn outside the rectangle shows: the fill, a 2-pixel stroke and a
// 1-pixel stroke.
TEST(ShapeGolden, EveryKindFilledAndStroked) {
  const char* kNames[] = {"rectangle", "rounded_rect", "capsule",     "diamond",   "bevel",
                          "octagon",   "hexagon",      "slant_right", "slant_left"};
  for (int kind = 0; kind < 9; ++kind) {
    for (const Size& size : {Size{1, 1}, Size{3, 50}, Size{40, 24}, Size{24, 40}}) {
      const int32_t panel = size.width + 2;
      Image sheet = Image::blank(panel * 3, size.height + 2);
      const Color fill = rgbColor(0x2A, 0x6F, 0xD0), stroke = rgbColor(0xD0, 0x40, 0x20);
      fillShape(sheet, {1, 1, size.width, size.height}, ShapeKind(kind), fill);
      strokeShape(sheet, {panel + 1, 1, size.width, size.height}, ShapeKind(kind), stroke, 2);
      strokeShape(sheet, {2 * panel + 1, 1, size.width, size.height}, ShapeKind(kind), stroke, 1);
      const std::string file = "tests/tessel/paint/golden/shapes/" + std::string(kNames[kind]) +
                               "_" + std::to_string(size.width) + "x" +
                               std::to_string(size.height) + ".pam";
      EXPECT_TRUE(MatchesGoldenImage(sheet, file, 0));
    }
  }
}

// The comparison every golden test rests on can fail, per channel beyond the tolerance.
TEST(GoldenImage, ToleranceIsPerChannel) {
  if (RegeneratingGoldenImages()) GTEST_SKIP() << "would overwrite a fixture";
  const std::string file = "tests/tessel/paint/golden/shapes/diamond_40x24.pam";
  Image image;
  ASSERT_TRUE(ReadPamImage(SourceFile(file), image));
  uint8_t& red = image.pixel(5, 7)[2];
  red = red == 255 ? 254 : uint8_t(red + 1);
  EXPECT_TRUE(MatchesGoldenImage(image, file, 1));
  EXPECT_FALSE(MatchesGoldenImage(image, file, 0));
  EXPECT_FALSE(MatchesGoldenImage(Image::blank(4, 4), file, 255));  // size differs
}

}  // namespace
}  // namespace tessel
