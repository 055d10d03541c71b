// The native loader reads PAM files; the Windows loader is tested under Wine with PNG files.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/wide_text.h"
#include "tessel/paint/image_file.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

std::wstring fixture(const std::string& name) {
  return SourceFile("tests/tessel/paint/fixtures/" + name).wstring();
}

// Loads `bytes` from a temporary file of that name, into an image that held something before.
bool loadBytes(const std::string& name, const std::string& bytes, Image& image) {
  const std::filesystem::path path = std::filesystem::temp_directory_path() / name;
  std::ofstream(path, std::ios::binary) << bytes;
  std::wstring wide;
  EXPECT_TRUE(WideFromUtf8Strict(path.string(), wide));
  image = Image::blank(2, 2);
  const bool loaded = loadImageFile(wide, image);
  std::filesystem::remove(path);
  return loaded;
}

TEST(LoadImageFile, StraightPamIsPremultipliedAndRgbIsOpaque) {
  Image image;
  ASSERT_TRUE(loadImageFile(fixture("straight_3x2.pam"), image));
  ASSERT_EQ(image.width, 3);
  // The fixture's straight RGBA: red, green at 128, clear blue, (200, 100, 50) at 128,
  // (10, 20, 30), white at alpha 1; premultiplied as (c * a + 127) / 255, in B, G, R, A.
  EXPECT_EQ(*image.pixels, (std::vector<uint8_t>{0,  0,  255, 255, 0,  128, 0,  128, 0, 0, 0, 0,
                                                 25, 50, 100, 128, 30, 20,  10, 255, 1, 1, 1, 1}));
  ASSERT_TRUE(loadImageFile(fixture("rgb_2x1.pam"), image));
  EXPECT_EQ(*image.pixels, (std::vector<uint8_t>{30, 20, 10, 255, 230, 240, 250, 255}));
  // A name beyond ASCII, and bytes after the pixels, are no obstacle.
  const std::string header = "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nENDHDR\n";
  ASSERT_TRUE(
      loadBytes("stayhold_\xC3\xBA\xC4\x8D\xE6\xBC\xA2.pam", header + "\1\2\3\4tail", image));
  EXPECT_EQ(image.alphaAt(0, 0), 4);
}

TEST(LoadImageFile, MissingOrDamagedFilesGiveAnEmptyImage) {
  const std::string pixels(4 * 4, '\x7F');
  const auto pam = [&](const std::string& fields, const std::string& body) {
    return "P7\nWIDTH 2\n" + fields + "\nENDHDR\n" + body;
  };
  const struct {
    const char* what;
    std::string bytes;
  } kCases[] = {
      {"empty file", ""},
      {"other magic", "P6\n2 2\n255\n" + pixels},
      {"header never ends", "P7\nWIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\n"},
      {"truncated pixels",
       pam("HEIGHT 2\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA", pixels.substr(3))},
      {"16-bit samples", pam("HEIGHT 2\nDEPTH 4\nMAXVAL 65535", pixels + pixels)},
      {"grey scale", pam("HEIGHT 2\nDEPTH 1\nMAXVAL 255", pixels)},
      {"depth and tuple type disagree", pam("HEIGHT 2\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB", pixels)},
      {"zero width", "P7\nWIDTH 0\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\nENDHDR\n" + pixels},
      {"negative height", pam("HEIGHT -2\nDEPTH 4\nMAXVAL 255", pixels)},
      {"absurd size", pam("HEIGHT 100000\nDEPTH 4\nMAXVAL 255", pixels)},
      {"number missing", pam("HEIGHT x\nDEPTH 4\nMAXVAL 255", pixels)},
  };
  for (const auto& c : kCases) {
    Image image;
    EXPECT_FALSE(loadBytes("stayhold_damaged.pam", c.bytes, image)) << c.what;
    EXPECT_TRUE(image.empty()) << c.what;  // a failed load leaves no old image behind
  }
  for (const std::wstring& path : {fixture("no_such_file.pam"), std::wstring(), fixture("")}) {
    Image image = Image::blank(2, 2);
    EXPECT_FALSE(loadImageFile(path, image));
    EXPECT_TRUE(image.empty());
  }
}

}  // namespace
}  // namespace tessel
