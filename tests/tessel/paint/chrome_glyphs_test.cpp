#include "tessel/paint/chrome_glyphs.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {
namespace {

const wchar_t* kBases[] = {L"stayhold_chrome_minimize", L"stayhold_chrome_maximize",
                           L"stayhold_chrome_restore", L"stayhold_chrome_close"};

const std::wstring kNoFolder = L"/no/such/stayhold/assets";

// The straight colour of the most opaque pixel, which lies in a glyph's stroke.
Color strokeColor(const Image& image) {
  const uint8_t* best = image.pixel(0, 0);
  for (int32_t y = 0; y < image.height; ++y)
    for (int32_t x = 0; x < image.width; ++x)
      if (image.pixel(x, y)[3] > best[3]) best = image.pixel(x, y);
  auto straight = [&](int c) { return uint32_t((best[c] * 255 + best[3] / 2) / best[3]); };
  return rgbColor(straight(2), straight(1), straight(0));
}

uint8_t maxAlpha(const Image& image) {
  uint8_t most = 0;
  for (int32_t y = 0; y < image.height; ++y)
    for (int32_t x = 0; x < image.width; ++x)
      most = std::max(most, image.alphaAt(x, y));
  return most;
}

bool near(Color a, Color b) {
  auto close = [](uint32_t x, uint32_t y) { return (x > y ? x - y : y - x) <= 2; };
  return close(redOf(a), redOf(b)) && close(greenOf(a), greenOf(b)) && close(blueOf(a), blueOf(b));
}

TEST(ChromeGlyphs, AMissingBaseImageGivesFourDrawnStates) {
  for (const wchar_t* base : kBases) {
    const ChromeButtonImages images = chromeButtonImages(kNoFolder, base);
    const Image states[] = {images.normal, images.hot, images.pressed, images.disabled};
    for (const Image& state : states) {
      ASSERT_EQ(state.width, 36);
      ASSERT_EQ(state.height, 22);
      EXPECT_EQ(state.alphaAt(0, 0), 0);  // a transparent ground at the corner
    }
    for (int i = 0; i < 4; ++i)
      for (int j = i + 1; j < 4; ++j)
        EXPECT_NE(*states[i].pixels, *states[j].pixels) << "states " << i << " and " << j;
    EXPECT_TRUE(near(strokeColor(images.normal), kChromeGlyphCool));
    EXPECT_TRUE(near(strokeColor(images.disabled), kChromeGlyphCool));
    EXPECT_TRUE(near(strokeColor(images.hot), kChromeGlyphWarm));
    EXPECT_TRUE(near(strokeColor(images.pressed), kChromeGlyphWarm));
    EXPECT_GT(maxAlpha(images.normal), 200);
    EXPECT_LT(maxAlpha(images.disabled), 128);  // faded
  }
}

TEST(ChromeGlyphs, EachBaseNameHasItsOwnGlyph) {
  std::vector<std::vector<uint8_t>> seen;
  for (const wchar_t* base : kBases) {
    const Image glyph = chromeGlyphImage(base, ChromeButtonState::Normal);
    for (const auto& other : seen)
      EXPECT_NE(*glyph.pixels, other);
    seen.push_back(*glyph.pixels);
  }
  // The ending decides, in any case; an unknown name still draws something.
  EXPECT_EQ(*chromeGlyphImage(L"My_Close", ChromeButtonState::Hot).pixels,
            *chromeGlyphImage(L"stayhold_chrome_close", ChromeButtonState::Hot).pixels);
  const Image unknown = chromeGlyphImage(L"stayhold_check_updates", ChromeButtonState::Normal);
  EXPECT_GT(unknown.alphaAt(18, 11), 0);
}

TEST(ChromeGlyphs, MinimizeIsALowBarAndCloseACross) {
  const Image minimize = chromeGlyphImage(L"x_minimize", ChromeButtonState::Normal);
  EXPECT_EQ(minimize.alphaAt(18, 8), 0);
  EXPECT_GT(minimize.alphaAt(14, 14), 200);
  EXPECT_GT(minimize.alphaAt(22, 14), 200);
  const Image close = chromeGlyphImage(L"x_close", ChromeButtonState::Normal);
  EXPECT_GT(close.alphaAt(18, 11), 150);  // the crossing
  EXPECT_GT(close.alphaAt(14, 7), 150);   // the top-left arm
  EXPECT_EQ(close.alphaAt(18, 7), 0);     // between the arms
}

#ifndef _WIN32
// The native loader reads PAM whatever the file is called, so PAM bytes stand in for PNG files.
class AssetsFolder {
 public:
  AssetsFolder() : path_(std::filesystem::temp_directory_path() / "stayhold_chrome_assets") {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~AssetsFolder() { std::filesystem::remove_all(path_); }
  void add(const std::string& name, uint8_t alpha) {
    std::ofstream(path_ / name, std::ios::binary)
        << "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nENDHDR\n"
        << std::string{'\xFF', '\xFF', '\xFF', char(alpha)};
  }
  std::wstring path() const { return path_.wstring(); }

 private:
  std::filesystem::path path_;
};

TEST(ChromeGlyphs, FilesWinAndAMissingStateRepeatsTheBase) {
  AssetsFolder folder;
  folder.add("glyph_close.png", 10);
  folder.add("glyph_close_hot.png", 20);
  const ChromeButtonImages images = chromeButtonImages(folder.path(), L"glyph_close");
  EXPECT_EQ(images.normal.alphaAt(0, 0), 10);
  EXPECT_EQ(images.hot.alphaAt(0, 0), 20);
  EXPECT_EQ(images.pressed.alphaAt(0, 0), 10);
  EXPECT_EQ(images.disabled.alphaAt(0, 0), 10);
}

TEST(ChromeGlyphs, StateFilesWithoutTheBaseAreNotMixedWithDrawnOnes) {
  AssetsFolder folder;
  folder.add("glyph_close_hot.png", 20);
  const ChromeButtonImages images = chromeButtonImages(folder.path(), L"glyph_close");
  EXPECT_EQ(images.hot.width, 36);
  EXPECT_EQ(*images.hot.pixels, *chromeGlyphImage(L"glyph_close", ChromeButtonState::Hot).pixels);
}
#endif

}  // namespace
}  // namespace tessel
