// After a deliberate change, regenerate from the project root (see golden/README.txt):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/tessel_tests --gtest_filter='BitmapGolden.*'
#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "tessel/paint/bitmap_surface.h"
#include "tessel/paint/chrome_glyphs.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/image_file.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

const std::string kFolder = "tests/tessel/paint/golden/bitmaps/";

// An image of straight R, G, B, A given pixel by pixel.
Image straightImage(int32_t width, int32_t height,
                    const std::function<std::array<int, 4>(int32_t x, int32_t y)>& pixel) {
  std::vector<uint8_t> rgba;
  for (int32_t y = 0; y < height; ++y)
    for (int32_t x = 0; x < width; ++x)
      for (int c : pixel(x, y))
        rgba.push_back(uint8_t(c));
  return imageFromStraightRgba(width, height, rgba);
}

TEST(BitmapGolden, NineSlicePlateAtThreeSizes) {
  // A 24 x 18 plate with margins of 7 and 5: four differently coloured corners rounded with a
  // radius of 5 at the outside, edges striped across the way they stretch (so that stretching
  // shows), and a translucent middle with a diagonal gradient.
  const NineSlice slice{7, 5, 7, 5};
  const Image plate = straightImage(24, 18, [](int32_t x, int32_t y) -> std::array<int, 4> {
    const bool left = x < 7, right = x >= 17, top = y < 5, bottom = y >= 13;
    if ((left || right) && (top || bottom)) {
      const int dx = left ? std::max(5 - x, 0) : std::max(x - 18, 0);
      const int dy = top ? std::max(5 - y, 0) : std::max(y - 12, 0);
      return {left ? 230 : 60, top ? 200 : 90, right ? 220 : 40, dx * dx + dy * dy > 25 ? 0 : 255};
    }
    if (left || right || top || bottom) {
      const bool stripe = ((top || bottom) ? x : y) % 2 == 0;
      return {stripe ? 255 : 120, stripe ? 237 : 110, stripe ? 184 : 90, 255};
    }
    return {40 + 8 * x, 110 + 6 * y, 190, 200};
  });
  for (const Size size : {Size{64, 40}, Size{24, 18}, Size{10, 8}}) {
    // Over a dark ground, at a slight transparency, with a two-pixel border that stays empty.
    Image sheet = Image::blank(size.width + 4, size.height + 4);
    ImageCanvas canvas(sheet);
    canvas.fillRect({0, 0, sheet.width, sheet.height}, rgbColor(0x18, 0x1C, 0x24));
    drawImageNineSlice(canvas, plate, {2, 2, size.width, size.height}, slice, BitmapTint(), 230);
    const std::string file = kFolder + "plate_" + std::to_string(size.width) + "x" +
                             std::to_string(size.height) + ".pam";
    EXPECT_TRUE(MatchesGoldenImage(sheet, file, 0)) << file;
  }
}

BitmapTint tint(TintMode mode, Color color, MaskChannel channel, bool preserve,
                uint8_t amount = 255) {
  return {mode, channel, color, 0x000000, {}, 0, amount, 16, preserve};
}

TEST(BitmapGolden, EachTintModeOnATestImage) {
  // 16 x 16: hue across, brightness down, an alpha ramp in the last four rows (the last below
  // the threshold of 16) and a transparent 2 x 2 corner.
  const Image source = straightImage(16, 16, [](int32_t x, int32_t y) -> std::array<int, 4> {
    const int shade = 255 - y * 10, alphas[4] = {192, 128, 64, 8};
    return {shade * (15 - x) / 15, shade * (x < 8 ? x : 15 - x) / 7, shade * x / 15,
            x < 2 && y < 2 ? 0
            : y < 12       ? 255
                           : alphas[y - 12]};
  });
  BitmapTint palette = tint(TintMode::Palette, 0, MaskChannel::Luma, false);
  palette.paletteCount = 4;
  palette.palette[0] = rgbColor(0x10, 0x20, 0x30);
  palette.palette[1] = rgbColor(0x2A, 0x6F, 0xD0);
  palette.palette[2] = rgbColor(0x50, 0xD2, 0xBE);
  palette.palette[3] = rgbColor(0xFF, 0xED, 0xB8);
  BitmapTint blend = tint(TintMode::Palette, rgbColor(0xFF, 0xB4, 0x5A), MaskChannel::Luma, false);
  blend.secondaryColor = rgbColor(0x1A, 0x0A, 0x30);
  const struct {
    const char* name;
    BitmapTint tint;
  } kTints[] = {
      {"source", BitmapTint()},
      {"mono", tint(TintMode::Mono, rgbColor(0x28, 0xA0, 0xF0), MaskChannel::Luma, true)},
      {"luma", tint(TintMode::Luma, rgbColor(0xFF, 0xB4, 0x5A), MaskChannel::Alpha, true)},
      {"alpha", tint(TintMode::Alpha, rgbColor(0xE2, 0xF4, 0xF0), MaskChannel::Luma, true)},
      {"tint", tint(TintMode::Tint, rgbColor(0xC4, 0x2B, 0x1C), MaskChannel::Alpha, true, 200)},
      {"multiply", tint(TintMode::Multiply, rgbColor(0xFF, 0xD0, 0x80), MaskChannel::Alpha, false)},
      {"palette", palette},
      {"palette_blend", blend},
  };
  for (const auto& entry : kTints) {
    const std::string file = kFolder + "tint_" + entry.name + ".pam";
    EXPECT_TRUE(MatchesGoldenImage(tintedImage(source, entry.tint), file, 0)) << file;
  }
}

TEST(BitmapGolden, ChromeGlyphStandIns) {
  // One row per glyph, one column per state: normal, hot, pressed, disabled.
  const wchar_t* kNames[] = {L"stayhold_chrome_minimize", L"stayhold_chrome_maximize",
                             L"stayhold_chrome_restore", L"stayhold_chrome_close"};
  Image sheet = Image::blank(kChromeGlyphWidth * 4, kChromeGlyphHeight * 4);
  ImageCanvas canvas(sheet);
  for (int32_t row = 0; row < 4; ++row) {
    for (int32_t column = 0; column < 4; ++column) {
      const Image glyph = chromeGlyphImage(kNames[row], ChromeButtonState(column));
      canvas.putPixels(glyph, {0, 0, glyph.width, glyph.height},
                       {column * kChromeGlyphWidth, row * kChromeGlyphHeight});
    }
  }
  // Edges come from floating-point distances; a last-bit difference of a C library may move
  // a channel by one.
  EXPECT_TRUE(MatchesGoldenImage(sheet, kFolder + "chrome_glyphs.pam", 1));
}

}  // namespace
}  // namespace tessel
