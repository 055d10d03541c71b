#include "tessel/paint/image_file.h"

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {
namespace {

#ifdef _WIN32
const std::wstring kSep = L"\\";
#else
const std::wstring kSep = L"/";
#endif

TEST(ResolveSkinPath, RootedPathsStayAndOthersJoinTheSkinFolder) {
  const struct {
    const char* what;
    std::wstring folder, text, expected;
  } kCases[] = {
      {"relative, trimmed", L"C:\\skins", L"  plate.png \t", L"C:\\skins" + kSep + L"plate.png"},
      {"relative with a folder", L"/srv/skins", L"img/plate.png",
       L"/srv/skins" + kSep + L"img/plate.png"},
      {"folder already ends in a slash", L"C:\\skins\\", L"plate.png", L"C:\\skins\\plate.png"},
      {"folder ends in a forward slash", L"/srv/skins/", L"plate.png", L"/srv/skins/plate.png"},
      {"drive and backslash", L"C:\\skins", L"D:\\art\\plate.png", L"D:\\art\\plate.png"},
      {"drive and forward slash", L"C:\\skins", L" d:/art/plate.png", L"d:/art/plate.png"},
      {"root backslash", L"C:\\skins", L"\\art\\plate.png", L"\\art\\plate.png"},
      {"network share", L"C:\\skins", L"\\\\host\\share\\p.png", L"\\\\host\\share\\p.png"},
      {"root slash", L"C:\\skins", L"/art/plate.png", L"/art/plate.png"},
      {"drive without a slash is relative", L"C:\\skins", L"D:plate.png",
       L"C:\\skins" + kSep + L"D:plate.png"},
      {"a digit is no drive letter", L"C:\\skins", L"1:\\plate.png",
       L"C:\\skins" + kSep + L"1:\\plate.png"},
      {"no folder: the text alone", L"", L" plate.png ", L"plate.png"},
      {"blank text", L"C:\\skins", L"   ", L""},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(resolveSkinPath(c.folder, c.text), c.expected) << c.what;
}

TEST(ImageFromStraightRgba, PremultipliesIntoBgra) {
  const std::vector<uint8_t> rgba = {255, 0,   0,  255, 0,  255, 0,  128, 0,   0,   255, 0,
                                     200, 100, 50, 128, 10, 20,  30, 255, 255, 255, 255, 1};
  const Image image = imageFromStraightRgba(3, 2, rgba);
  ASSERT_EQ(image.width, 3);
  ASSERT_EQ(image.height, 2);
  // (c * a + 127) / 255: 255 at 128 is 128; 200, 100, 50 at 128 are 100, 50, 25; 255 at 1 is 1.
  const std::vector<uint8_t> expected = {0,  0,  255, 255, 0,  128, 0,  128, 0, 0, 0, 0,
                                         25, 50, 100, 128, 30, 20,  10, 255, 1, 1, 1, 1};
  EXPECT_EQ(*image.pixels, expected);
}

TEST(ImageFromStraightRgba, EmptyForBadSizesOrShortData) {
  const std::vector<uint8_t> four(16, 255);
  EXPECT_TRUE(imageFromStraightRgba(0, 4, four).empty());
  EXPECT_TRUE(imageFromStraightRgba(2, -1, four).empty());
  EXPECT_TRUE(imageFromStraightRgba(3, 2, four).empty());  // needs 24 bytes
  EXPECT_FALSE(imageFromStraightRgba(2, 2, four).empty());
  EXPECT_TRUE(imageFromStraightRgba(1 << 30, 1 << 30, four).empty());  // no overflow
}

}  // namespace
}  // namespace tessel
