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

// A file in the temporary folder that is removed again.
class TempFile {
 public:
  TempFile(const std::string& name, const std::string& bytes)
      : path_(std::filesystem::temp_directory_path() / ("stayhold_image_file_" + name)) {
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  ~TempFile() { std::filesystem::remove(path_); }
  std::wstring path() const {
    std::wstring wide;
    WideFromUtf8Strict(path_.string(), wide);
    return wide;
  }

 private:
  std::filesystem::path path_;
};

std::string header(const std::string& fields) {
  return "P7\n" + fields + "ENDHDR\n";
}

TEST(LoadImageFile, StraightPamIsPremultiplied) {
  Image image;
  ASSERT_TRUE(loadImageFile(fixture("straight_3x2.pam"), image));
  ASSERT_EQ(image.width, 3);
  ASSERT_EQ(image.height, 2);
  // The fixture's straight RGBA: red, green at 128, clear blue, (200, 100, 50) at 128,
  // (10, 20, 30), white at alpha 1; premultiplied as (c * a + 127) / 255, in B, G, R, A.
  const std::vector<uint8_t> expected = {0,  0,  255, 255, 0,  128, 0,  128, 0, 0, 0, 0,
                                         25, 50, 100, 128, 30, 20,  10, 255, 1, 1, 1, 1};
  EXPECT_EQ(*image.pixels, expected);
}

TEST(LoadImageFile, RgbPamIsOpaque) {
  Image image;
  ASSERT_TRUE(loadImageFile(fixture("rgb_2x1.pam"), image));
  EXPECT_EQ(*image.pixels, (std::vector<uint8_t>{30, 20, 10, 255, 230, 240, 250, 255}));
}

TEST(LoadImageFile, NonAsciiFileName) {
  std::ifstream source(SourceFile("tests/tessel/paint/fixtures/rgb_2x1.pam"), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(source)), {});
  const std::string name = "\xC3\xBA\xC4\x8D\xE6\xBC\xA2.pam";  // "úč漢.pam" in UTF-8
  const TempFile file(name, bytes);
  std::wstring path;
  ASSERT_TRUE(WideFromUtf8Strict(
      (std::filesystem::temp_directory_path() / ("stayhold_image_file_" + name)).string(), path));
  Image image;
  EXPECT_TRUE(loadImageFile(path, image));
  EXPECT_EQ(image.width, 2);
}

TEST(LoadImageFile, MissingOrDamagedFilesGiveAnEmptyImage) {
  const std::string pixels(4 * 4, '\x7F');
  const struct {
    const char* what;
    std::string bytes;
  } kCases[] = {
      {"empty file", ""},
      {"other magic", "P6\n2 2\n255\n" + pixels},
      {"header never ends", "P7\nWIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\n"},
      {"truncated pixels",
       header("WIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\n") + pixels.substr(3)},
      {"16-bit samples", header("WIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 65535\n") + pixels + pixels},
      {"grey scale", header("WIDTH 2\nHEIGHT 2\nDEPTH 1\nMAXVAL 255\n") + pixels},
      {"depth and tuple type disagree",
       header("WIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB\n") + pixels},
      {"zero width", header("WIDTH 0\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\n") + pixels},
      {"negative height", header("WIDTH 2\nHEIGHT -2\nDEPTH 4\nMAXVAL 255\n") + pixels},
      {"absurd size", header("WIDTH 100000\nHEIGHT 100000\nDEPTH 4\nMAXVAL 255\n") + pixels},
      {"number missing", header("WIDTH x\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\n") + pixels},
  };
  for (const auto& c : kCases) {
    const TempFile file("damaged.pam", c.bytes);
    Image image = Image::blank(2, 2);  // a failed load must not leave an old image behind
    EXPECT_FALSE(loadImageFile(file.path(), image)) << c.what;
    EXPECT_TRUE(image.empty()) << c.what;
  }
  Image image = Image::blank(2, 2);
  EXPECT_FALSE(loadImageFile(fixture("no_such_file.pam"), image));
  EXPECT_TRUE(image.empty());
  EXPECT_FALSE(loadImageFile(L"", image));
  EXPECT_FALSE(loadImageFile(fixture(""), image));  // a folder
}

TEST(LoadImageFile, ExtraBytesAfterThePixelsAreIgnored) {
  const std::string pixels = "\x01\x02\x03\x04";
  const TempFile file("long.pam",
                      header("WIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\n") + pixels + "trailing");
  Image image;
  ASSERT_TRUE(loadImageFile(file.path(), image));
  EXPECT_EQ(image.alphaAt(0, 0), 4);
}

}  // namespace
}  // namespace tessel
