// After a deliberate change, regenerate from the project root (see golden/README.txt):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/stayhold_tests --gtest_filter='ShapeGolden.*'
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tessel/paint/shape_fill.h"
#include "tests/support/golden_image.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

const struct {
  ShapeKind kind;
  const char* name;
} kKinds[] = {
    {ShapeKind::Rectangle, "rectangle"},  {ShapeKind::RoundedRect, "rounded_rect"},
    {ShapeKind::Capsule, "capsule"},      {ShapeKind::Diamond, "diamond"},
    {ShapeKind::Bevel, "bevel"},          {ShapeKind::Octagon, "octagon"},
    {ShapeKind::Hexagon, "hexagon"},      {ShapeKind::SlantRight, "slant_right"},
    {ShapeKind::SlantLeft, "slant_left"},
};

const Size kSizes[] = {{1, 1}, {3, 50}, {40, 24}, {24, 40}};

const Color kFill = rgbColor(0x2A, 0x6F, 0xD0);
const Color kStroke = rgbColor(0xD0, 0x40, 0x20);

// Three panels side by side, each a pixel larger than the shape on every side so that any
// pixel drawn outside the rectangle shows: the fill, a 2-pixel stroke and a 1-pixel stroke.
Image shapeSheet(ShapeKind kind, Size size) {
  const int32_t panel = size.width + 2;
  Image sheet = Image::blank(panel * 3, size.height + 2);
  fillShape(sheet, {1, 1, size.width, size.height}, kind, kFill);
  strokeShape(sheet, {panel + 1, 1, size.width, size.height}, kind, kStroke, 2);
  strokeShape(sheet, {2 * panel + 1, 1, size.width, size.height}, kind, kStroke, 1);
  return sheet;
}

TEST(ShapeGolden, EveryKindFilledAndStroked) {
  for (const auto& kind : kKinds) {
    for (const Size& size : kSizes) {
      const std::string file = "tests/tessel/paint/golden/shapes/" + std::string(kind.name) + "_" +
                               std::to_string(size.width) + "x" + std::to_string(size.height) +
                               ".pam";
      EXPECT_TRUE(MatchesGoldenImage(shapeSheet(kind.kind, size), file, 0));
    }
  }
}

TEST(GoldenImage, PamKeepsThePremultipliedBytes) {
  Image image = Image::blank(3, 2);
  for (size_t i = 0; i < image.pixels->size(); ++i)
    (*image.pixels)[i] = uint8_t(i * 11);
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / "stayhold_golden_round_trip.pam";
  ASSERT_TRUE(WritePamImage(path, image));
  Image read;
  ASSERT_TRUE(ReadPamImage(path, read));
  std::filesystem::remove(path);
  EXPECT_EQ(read.width, 3);
  EXPECT_EQ(read.height, 2);
  EXPECT_EQ(*read.pixels, *image.pixels);
  EXPECT_FALSE(ReadPamImage(path, read));  // gone
}

TEST(GoldenImage, ToleranceIsPerChannelAndFailuresNameThePixel) {
  if (RegeneratingGoldenImages()) GTEST_SKIP() << "would overwrite a fixture";
  const std::string file = "tests/tessel/paint/golden/shapes/diamond_40x24.pam";
  Image image;
  ASSERT_TRUE(ReadPamImage(SourceFile(file), image));
  uint8_t& red = image.pixel(5, 7)[2];
  red = red == 255 ? 254 : uint8_t(red + 1);
  EXPECT_TRUE(MatchesGoldenImage(image, file, 1));
  const ::testing::AssertionResult strict = MatchesGoldenImage(image, file, 0);
  EXPECT_FALSE(strict);
  EXPECT_NE(std::string(strict.message()).find("1 pixel(s) differ"), std::string::npos);
  EXPECT_NE(std::string(strict.message()).find("(5, 7)"), std::string::npos);
  EXPECT_FALSE(MatchesGoldenImage(Image::blank(4, 4), file, 255));  // size differs
}

}  // namespace
}  // namespace tessel
