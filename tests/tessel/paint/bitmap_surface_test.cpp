#include "tessel/paint/bitmap_surface.h"

#include <array>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

using Bgra = std::array<int, 4>;

// A 1 x N image of premultiplied pixels, given as B, G, R, A.
Image row(const std::vector<Bgra>& pixels) {
  Image image = Image::blank(int32_t(pixels.size()), 1);
  for (size_t i = 0; i < pixels.size() * 4; ++i)
    (*image.pixels)[i] = uint8_t(pixels[i / 4][i % 4]);
  return image;
}

Bgra at(const Image& image, int32_t x) {
  const uint8_t* p = image.pixel(x, 0);
  return {p[0], p[1], p[2], p[3]};
}

Bgra grey(int value, int alpha = 255) {
  return {value, value, value, alpha};
}

// An opaque pixel of straight colour (200, 100, 50): luma round(124.2) = 124.
const Bgra kOpaque = {50, 100, 200, 255};
// Straight (200, 100, 50) at alpha 128, premultiplied; it un-premultiplies to (199, 100, 50).
const Bgra kHalf = {25, 50, 100, 128};

BitmapTint tintOf(TintMode mode, uint8_t amount = 255, MaskChannel channel = MaskChannel::Alpha,
                  bool preserve = false, bool invert = false, uint8_t threshold = 0) {
  return {mode,     channel, rgbColor(40, 160, 240), rgbColor(10, 20, 30), {}, 0, amount, threshold,
          preserve, invert};
}

BitmapTint greyPalette(int count, uint8_t threshold = 0, MaskChannel channel = MaskChannel::Alpha) {
  BitmapTint tint = tintOf(TintMode::Palette, 255, channel, false, false, threshold);
  tint.paletteCount = uint8_t(count);
  for (int i = 0; i < count; ++i)
    tint.palette[size_t(i)] = rgbColor(i * 10, i * 10, i * 10);
  return tint;
}

// Worked out by hand from the per-pixel steps, with R, G, B in that order (the table holds
// B, G, R, A). The modes at their usual settings are golden images (bitmap_golden_test.cpp);
// these are the settings those leave out.
TEST(TintedImage, SettingsByHand) {
  using M = TintMode;
  using C = MaskChannel;
  const struct {
    const char* what;
    Bgra source;
    BitmapTint tint;
    Bgra expected;
  } kCases[] = {
      // o = (255 * c + 127) / 255 = c; w = 1.
      {"mono replaces the colour", kOpaque, tintOf(M::Mono), {240, 160, 40, 255}},
      // w = 128/255: 200-160w = 119.69, 100+60w = 130.12, 50+190w = 145.37.
      {"mono at half amount", kOpaque, tintOf(M::Mono, 128), {145, 130, 120, 255}},
      // Source 199, 100, 50 (25 * 255 / 128 = 49.8 -> 50); w = 1/255: 198.38, 100.24, 50.75 ->
      // 198, 100, 51; premultiplied by 128: 99, 50, 26.
      {"mono at amount 1, half covered", kHalf, tintOf(M::Mono, 1), {26, 50, 99, 128}},
      // m = red 200: (200*40+127)/255 = 31, (200*160+127)/255 = 125, (200*240+127)/255 = 188.
      {"mono shaded by red", kOpaque, tintOf(M::Mono, 255, C::Red, true), {188, 125, 31, 255}},
      // m = 255 - luma 124 = 131, whatever the channel: (131*40+127)/255 = 21, 82, 123.
      {"luma inverted", kOpaque, tintOf(M::Luma, 255, C::Red, true, true), {123, 82, 21, 255}},
      // m = green 100, w = 100/255: 200-160w = 137.25, 100+60w = 123.53, 50+190w = 124.51.
      {"tint weighed by green", kOpaque, tintOf(M::Tint, 255, C::Green), {125, 124, 137, 255}},
      {"a threshold equal to alpha keeps the pixel",
       kHalf,
       tintOf(M::Mono, 255, C::Alpha, false, false, 128),
       {120, 80, 20, 128}},
      {"below the threshold: transparent black, not untinted",
       kHalf,
       tintOf(M::Multiply, 1, C::Alpha, false, false, 129),
       {0, 0, 0, 0}},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(at(tintedImage(row({c.source}), c.tint), 0), c.expected) << c.what;
}

TEST(TintedImage, PaletteRanksFewColoursByLumaElseIndexesByTheMask) {
  const Bgra dark = {20, 10, 10, 255}, light = {220, 230, 240, 255};
  const struct {
    const char* what;
    std::vector<Bgra> pixels, expected;
    BitmapTint tint;
  } kCases[] = {
      // The light colour comes first in the image: ranking is by luma, not by appearance.
      {"two colours take the first and last entries",
       {light, dark, dark, light},
       {grey(40), grey(0), grey(0), grey(40)},
       greyPalette(5)},
      // Five greys on three entries: round(2 * rank / 4) for ranks 2, 0, 4, 1, 3.
      {"ranks round halves up",
       {grey(90), grey(10), grey(200), grey(50), grey(130)},
       {grey(10), grey(0), grey(20), grey(10), grey(20)},
       greyPalette(3)},
      // The faint pixel is straight grey 26; counted, it would push grey 100 to rank 1 of 3.
      {"pixels below the threshold are not ranked",
       {grey(100), grey(1, 10), grey(250)},
       {grey(0), grey(0, 0), grey(40)},
       greyPalette(5, 16)},
      // One distinct colour cannot be ranked: the index is (count * m) / 256, 4 * 100 / 256 by
      // the green channel.
      {"one colour indexes by the mask",
       {kOpaque},
       {grey(10)},
       greyPalette(4, 0, MaskChannel::Green)},
  };
  for (const auto& c : kCases) {
    const Image tinted = tintedImage(row(c.pixels), c.tint);
    for (size_t x = 0; x < c.pixels.size(); ++x)
      EXPECT_EQ(at(tinted, int32_t(x)), c.expected[x]) << c.what << " " << x;
  }
}

TEST(TintedImage, KeptWithTheImageSharedByItsCopiesTwelveAtMost) {
  const Image source = row({kOpaque, kHalf});
  for (const BitmapTint& tint : {tintOf(TintMode::Mono, 0), tintOf(TintMode::None)})
    EXPECT_EQ(tintedImage(source, tint).pixels, source.pixels);  // inactive: the source itself
  EXPECT_TRUE(source.variantKeys().empty());
  const Image copy = source;
  const Image first = tintedImage(copy, tintOf(TintMode::Mono, 1));
  EXPECT_EQ(tintedImage(source, tintOf(TintMode::Mono, 1)).pixels, first.pixels);  // made once
  EXPECT_NE(first.pixels, source.pixels);
  EXPECT_EQ(at(source, 0), kOpaque);  // the source is untouched
  std::vector<uint64_t> keys;
  for (int amount = 1; amount <= 13; ++amount) {
    keys.push_back(tintKey(tintOf(TintMode::Mono, uint8_t(amount))));
    tintedImage(source, tintOf(TintMode::Mono, uint8_t(amount)));
    tintedImage(source, tintOf(TintMode::Mono, 2));  // a reuse does not reorder the list
  }
  EXPECT_EQ(source.variantKeys(), std::vector<uint64_t>(keys.begin() + 1, keys.end()));
  // The evicted tint is made anew and then pushes out the next oldest.
  tintedImage(source, tintOf(TintMode::Mono, 1));
  EXPECT_EQ(source.variantKeys().back(), keys[0]);
  EXPECT_EQ(source.variantKeys().front(), keys[2]);
}

TEST(TintKey, EveryFieldCountsButUnusedPaletteEntriesDoNot) {
  BitmapTint base = greyPalette(2);
  const struct {
    const char* what;
    void (*change)(BitmapTint&);
  } kChanges[] = {
      {"mode", [](BitmapTint& t) { t.mode = TintMode::Multiply; }},
      {"mask channel", [](BitmapTint& t) { t.maskChannel = MaskChannel::Blue; }},
      {"colour", [](BitmapTint& t) { t.color ^= 1; }},
      {"secondary colour", [](BitmapTint& t) { t.secondaryColor ^= 0x10000; }},
      {"palette entry", [](BitmapTint& t) { t.palette[1] ^= 0x100; }},
      {"palette count", [](BitmapTint& t) { t.paletteCount = 3; }},
      {"amount", [](BitmapTint& t) { t.amount = 201; }},
      {"threshold", [](BitmapTint& t) { t.coverageThreshold = 1; }},
      {"preserve luminance", [](BitmapTint& t) { t.preserveLuminance = true; }},
      {"invert mask", [](BitmapTint& t) { t.invertMask = true; }},
  };
  std::set<uint64_t> keys = {tintKey(base)};
  for (const auto& change : kChanges) {
    BitmapTint changed = base;
    change.change(changed);
    EXPECT_TRUE(keys.insert(tintKey(changed)).second) << change.what;
  }
  base.palette[2] = rgbColor(9, 9, 9);  // the first entry beyond the count
  EXPECT_EQ(keys.count(tintKey(base)), 1u);
}

// An image canvas that records the blends it is asked for instead.
struct BlendRecorder : ImageCanvas {
  struct Blend {
    Image image;
    Rect source, target;
    uint8_t opacity;
  };
  explicit BlendRecorder(Image& image) : ImageCanvas(image) {}
  void blendImage(const Image& image, const Rect& source, const Rect& target,
                  uint8_t opacity) override {
    blends.push_back({image, source, target, opacity});
  }
  std::vector<Blend> blends;
};

TEST(DrawImage, StretchesTheTintedImageWithTheOpacityOrNothing) {
  Image ground = Image::blank(1, 1);
  BlendRecorder canvas(ground);
  const Image image = row({kOpaque, kOpaque});
  drawImage(canvas, image, {10, 20, 50, 30}, BitmapTint(), 77);
  ASSERT_EQ(canvas.blends.size(), 1u);
  const auto& blend = canvas.blends[0];
  EXPECT_TRUE(blend.source == (Rect{0, 0, 2, 1}) && blend.target == (Rect{10, 20, 50, 30}));
  EXPECT_EQ(blend.opacity, 77);
  EXPECT_EQ(blend.image.pixels, image.pixels);
  drawImageNineSlice(canvas, image, {0, 0, 4, 4}, NineSlice{}, tintOf(TintMode::Mono), 255);
  ASSERT_EQ(canvas.blends.size(), 2u);
  EXPECT_EQ(at(canvas.blends[1].image, 0), (Bgra{240, 160, 40, 255}));
  canvas.blends.clear();
  drawImage(canvas, Image(), {0, 0, 4, 4}, BitmapTint(), 255);
  drawImage(canvas, image, {0, 0, 0, 4}, BitmapTint(), 255);
  drawImage(canvas, image, {0, 0, 4, 4}, BitmapTint(), 0);
  drawImageNineSlice(canvas, Image(), {0, 0, 4, 4}, NineSlice{1, 1, 1, 1}, BitmapTint(), 255);
  drawImageNineSlice(canvas, image, {0, 0, 4, 4}, NineSlice{1, 1, 1, 1}, BitmapTint(), 0);
  EXPECT_TRUE(canvas.blends.empty());
}

// The usual slicing is a golden image at three sizes (bitmap_golden_test.cpp); here margins
// beyond the image, below zero or wider than the target.
TEST(NineSlice, NoBlendEverGetsASizeBelowOneOrLeavesTheTarget) {
  Image image = Image::blank(12, 9), ground = Image::blank(1, 1);
  const NineSlice slices[] = {
      {0, 0, 0, 0},     {3, 2, 4, 3},   {6, 4, 6, 5}, {12, 9, 12, 9},
      {20, 20, 20, 20}, {-3, 5, -1, 2}, {11, 8, 0, 0}};  // a middle of one pixel
  for (const NineSlice& slice : slices) {
    for (int32_t width = -2; width <= 16; ++width) {
      for (int32_t height = -2; height <= 14; ++height) {
        const Rect target{3, -2, width, height};
        BlendRecorder canvas(ground);
        drawImageNineSlice(canvas, image, target, slice, BitmapTint(), 255);
        std::vector<int> hits(size_t(std::max(width, 0) * std::max(height, 0)), 0);
        for (const auto& blend : canvas.blends) {
          const Rect& s = blend.source;
          const Rect& t = blend.target;
          ASSERT_TRUE(s.width >= 1 && s.height >= 1 && t.width >= 1 && t.height >= 1);
          ASSERT_TRUE(s.x >= 0 && s.y >= 0 && s.right() <= 12 && s.bottom() <= 9);
          ASSERT_TRUE(t.x >= target.x && t.y >= target.y && t.right() <= target.right() &&
                      t.bottom() <= target.bottom());
          for (int32_t y = t.y; y < t.bottom(); ++y)
            for (int32_t x = t.x; x < t.right(); ++x)
              ++hits[size_t((y - target.y) * width + (x - target.x))];
        }
        // While the image keeps a middle, the pieces tile the target exactly once.
        const bool imageHasMiddle = std::max(slice.left, 0) + std::max(slice.right, 0) < 12 &&
                                    std::max(slice.top, 0) + std::max(slice.bottom, 0) < 9;
        for (int count : hits)
          ASSERT_TRUE(!imageHasMiddle || count == 1) << width << "x" << height;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
