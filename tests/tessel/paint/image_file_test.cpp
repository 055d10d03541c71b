#include "tessel/paint/image_file.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(ResolveSkinPath, RootedPathsStayAndOthersJoinTheSkinFolder) {
#ifdef _WIN32
  const std::wstring sep = L"\\";
#else
  const std::wstring sep = L"/";
#endif
  const struct {
    const char* what;
    std::wstring folder, text, expected;
  } kCases[] = {
      {"relative, trimmed", L"C:\\skins", L"  img/plate.png \t",
       L"C:\\skins" + sep + L"img/plate.png"},
      {"folder already ends in a slash", L"C:\\skins\\", L"plate.png", L"C:\\skins\\plate.png"},
      {"drive and backslash", L"C:\\skins", L"D:\\art\\plate.png", L"D:\\art\\plate.png"},
      {"drive and forward slash", L"C:\\skins", L" z:/art/plate.png", L"z:/art/plate.png"},
      {"network share", L"C:\\skins", L"\\\\host\\share\\p.png", L"\\\\host\\share\\p.png"},
      {"root slash", L"C:\\skins", L"/art/plate.png", L"/art/plate.png"},
      {"drive without a slash is relative", L"/s", L"D:plate.png", L"/s" + sep + L"D:plate.png"},
      {"a digit is no drive letter", L"/s", L"1:\\plate.png", L"/s" + sep + L"1:\\plate.png"},
      {"no folder: the text alone", L"", L" plate.png ", L"plate.png"},
      {"blank text", L"C:\\skins", L"   ", L""},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(resolveSkinPath(c.folder, c.text), c.expected) << c.what;
}

// The premultiplication itself is checked through the PAM loader and the Windows loader.
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
