#include "tessel/paint/chrome_glyphs.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace tessel {
namespace {

using State = ChromeButtonState;

// The glyphs themselves are golden images (bitmap_golden_test.cpp); here which one is drawn.
TEST(ChromeGlyphs, AMissingBaseImageGivesTheDrawnGlyphOfTheNamesEnding) {
  const ChromeButtonImages images = chromeButtonImages(L"/no/such/stayhold/assets", L"My_Close");
  const Image* states[] = {&images.normal, &images.hot, &images.pressed, &images.disabled};
  for (int state = 0; state < 4; ++state)
    EXPECT_EQ(*states[state]->pixels,
              *chromeGlyphImage(L"stayhold_chrome_close", State(state)).pixels)
        << state;
  // An unknown name still draws something: a dot in the middle.
  const Image unknown = chromeGlyphImage(L"stayhold_check_updates", State::Normal);
  EXPECT_GT(unknown.alphaAt(18, 11), 200);
  EXPECT_EQ(unknown.alphaAt(18, 7), 0);
}

#ifndef _WIN32
// The native loader reads PAM whatever the file is called, so PAM bytes stand in for PNG files.
TEST(ChromeGlyphs, FilesWinAndAMissingStateRepeatsTheBase) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "stayhold_chrome_assets";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  const auto add = [&](const std::string& name, uint8_t alpha) {
    std::ofstream(folder / name, std::ios::binary)
        << "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nENDHDR\n"
        << std::string{'\xFF', '\xFF', '\xFF', char(alpha)};
  };
  // State files without the base are not mixed with drawn ones.
  add("glyph_close_hot.png", 20);
  ChromeButtonImages images = chromeButtonImages(folder.wstring(), L"glyph_close");
  EXPECT_EQ(*images.hot.pixels, *chromeGlyphImage(L"glyph_close", State::Hot).pixels);
  add("glyph_close.png", 10);
  images = chromeButtonImages(folder.wstring(), L"glyph_close");
  EXPECT_EQ(images.normal.alphaAt(0, 0), 10);
  EXPECT_EQ(images.hot.alphaAt(0, 0), 20);
  EXPECT_EQ(images.pressed.alphaAt(0, 0), 10);
  EXPECT_EQ(images.disabled.alphaAt(0, 0), 10);
  std::filesystem::remove_all(folder);
}
#endif

}  // namespace
}  // namespace tessel
