#include "tessel/paint/bitmap_surface.h"

#include <array>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

using Bgra = std::array<int, 4>;

// A 1 x N image of premultiplied pixels, given as B, G, R, A.
Image row(std::initializer_list<Bgra> pixels) {
  Image image = Image::blank(int32_t(pixels.size()), 1);
  int32_t x = 0;
  for (const Bgra& p : pixels) {
    for (int c = 0; c < 4; ++c)
      image.pixel(x, 0)[c] = uint8_t(p[c]);
    ++x;
  }
  return image;
}

Bgra at(const Image& image, int32_t x, int32_t y = 0) {
  const uint8_t* p = image.pixel(x, y);
  return {p[0], p[1], p[2], p[3]};
}

// An opaque pixel of straight colour (200, 100, 50): luma round(124.2) = 124.
const Bgra kOpaque = {50, 100, 200, 255};
// Straight (200, 100, 50) at alpha 128, premultiplied; it un-premultiplies to (199, 100, 50).
const Bgra kHalf = {25, 50, 100, 128};

const Color kBlue = rgbColor(40, 160, 240);
const Color kDim = rgbColor(10, 20, 30);

BitmapTint tintOf(TintMode mode, uint8_t amount = 255) {
  BitmapTint tint;
  tint.mode = mode;
  tint.amount = amount;
  tint.color = kBlue;
  tint.secondaryColor = kDim;
  return tint;
}

struct ModeCase {
  const char* what;
  Bgra source;
  BitmapTint tint;
  Bgra expected;
};

BitmapTint with(BitmapTint tint, MaskChannel channel, bool preserve = false, bool invert = false) {
  tint.maskChannel = channel;
  tint.preserveLuminance = preserve;
  tint.invertMask = invert;
  return tint;
}

// Each expected pixel is worked out by hand from the per-pixel steps; the arithmetic is given
// with R, G, B in that order (the table itself holds B, G, R, A).
const ModeCase kModeCases[] = {
    // o = (255 * c + 127) / 255 = c; w = 1.
    {"mono replaces the colour", kOpaque, tintOf(TintMode::Mono), {240, 160, 40, 255}},
    // w = 128/255: 200-160w = 119.69, 100+60w = 130.12, 50+190w = 145.37.
    {"mono at half amount mixes", kOpaque, tintOf(TintMode::Mono, 128), {145, 130, 120, 255}},
    // Source 199, 100, 50 (un-premultiplied with rounding: 25 * 255 / 128 = 49.8 -> 50);
    // w = 1/255: 198.38, 100.24, 50.75 -> 198, 100, 51; premultiplied by 128: 99, 50, 26.
    {"mono at amount 1 nearly keeps a half-covered pixel",
     kHalf,
     tintOf(TintMode::Mono, 1),
     {26, 50, 99, 128}},
    // m = red 200: (200*40+127)/255 = 31, (200*160+127)/255 = 125, (200*240+127)/255 = 188.
    {"mono keeps shading by the red mask",
     kOpaque,
     with(tintOf(TintMode::Mono), MaskChannel::Red, true),
     {188, 125, 31, 255}},
    // m = luma 124 whatever the channel: (124*40+127)/255 = 19, 78, 117.
    {"luma mode masks by luma",
     kOpaque,
     with(tintOf(TintMode::Luma), MaskChannel::Red, true),
     {117, 78, 19, 255}},
    // m = 255 - 124 = 131: (131*40+127)/255 = 21, 82, 123.
    {"luma mode with an inverted mask",
     kOpaque,
     with(tintOf(TintMode::Luma), MaskChannel::Red, true, true),
     {123, 82, 21, 255}},
    // m = alpha 128 whatever the channel: o = 20, 80, 120; premultiplied by 128: 10, 40, 60.
    {"alpha mode masks by alpha and keeps it",
     kHalf,
     with(tintOf(TintMode::Alpha), MaskChannel::Red, true),
     {60, 40, 10, 128}},
    // m = green 100, w = 100/255: 200-160w = 137.25, 100+60w = 123.53, 50+190w = 124.51.
    {"tint weighs by the green mask",
     kOpaque,
     with(tintOf(TintMode::Tint), MaskChannel::Green),
     {125, 124, 137, 255}},
    // o = luma-scaled 19, 78, 117; w = 200/255: 200-181w = 58.04, 100-22w = 82.75, 50+67w = 102.55.
    {"tint keeps luminance at part amount",
     kOpaque,
     with(tintOf(TintMode::Tint, 200), MaskChannel::Alpha, true),
     {103, 83, 58, 255}},
    // o = (200*40+127)/255 = 31, (100*160+127)/255 = 63, (50*240+127)/255 = 47; w = 1.
    {"multiply", kOpaque, tintOf(TintMode::Multiply), {47, 63, 31, 255}},
    // Source 199, 100, 50; o = 31, 63, 47; w = 128/255: 114.67, 81.43, 48.49 -> 115, 81, 48;
    // premultiplied by 128: 58, 41, 24.
    {"multiply weighs by alpha on a half-covered pixel",
     kHalf,
     tintOf(TintMode::Multiply),
     {24, 41, 58, 128}},
    // No entries: o = mix(#0A141E, #28A0F0, 200/255) = 33.53, 129.8, 194.71.
    {"palette without entries blends the two colours by the mask",
     kOpaque,
     with(tintOf(TintMode::Palette), MaskChannel::Red),
     {195, 130, 34, 255}},
    {"mode none leaves the pixel", kOpaque, tintOf(TintMode::None), kOpaque},
    {"a threshold equal to alpha keeps the pixel",
     kHalf,
     [] {
       BitmapTint tint = tintOf(TintMode::Mono);
       tint.coverageThreshold = 128;
       return tint;
     }(),
     {120, 80, 20, 128}},
    {"alpha below the threshold becomes transparent black, not untinted",
     kHalf,
     [] {
       BitmapTint tint = tintOf(TintMode::Multiply, 1);
       tint.coverageThreshold = 129;
       return tint;
     }(),
     {0, 0, 0, 0}},
};

TEST(TintedImage, EachModeByHand) {
  for (const ModeCase& c : kModeCases) {
    const Image tinted = tintedImage(row({c.source}), c.tint);
    ASSERT_EQ(tinted.width, 1) << c.what;
    EXPECT_EQ(at(tinted, 0), c.expected) << c.what;
  }
}

TEST(TintedImage, SinglePaletteColourIndexesByTheMask) {
  // One distinct colour cannot be ranked, so the index is (count * m) / 256.
  BitmapTint tint = tintOf(TintMode::Palette);
  tint.paletteCount = 4;
  tint.palette[0] = rgbColor(1, 1, 1);
  tint.palette[1] = rgbColor(2, 2, 2);
  tint.palette[2] = rgbColor(3, 3, 3);
  tint.palette[3] = rgbColor(4, 4, 4);
  tint.maskChannel = MaskChannel::Red;  // 800 / 256 = 3
  EXPECT_EQ(at(tintedImage(row({kOpaque}), tint), 0), (Bgra{4, 4, 4, 255}));
  tint.maskChannel = MaskChannel::Green;  // 400 / 256 = 1
  EXPECT_EQ(at(tintedImage(row({kOpaque}), tint), 0), (Bgra{2, 2, 2, 255}));
  tint.maskChannel = MaskChannel::Blue;  // 200 / 256 = 0
  EXPECT_EQ(at(tintedImage(row({kOpaque}), tint), 0), (Bgra{1, 1, 1, 255}));
}

BitmapTint greyPalette(int count) {
  BitmapTint tint = tintOf(TintMode::Palette);
  tint.paletteCount = uint8_t(count);
  for (int i = 0; i < count; ++i)
    tint.palette[size_t(i)] = rgbColor(i * 10, i * 10, i * 10);
  return tint;
}

Bgra grey(int value, int alpha = 255) {
  return {value, value, value, alpha};
}

TEST(TintedImage, PaletteMapsATwoColourImageToTheFirstAndLastEntries) {
  const Bgra dark = {20, 10, 10, 255};
  const Bgra light = {220, 230, 240, 255};
  // The light colour comes first in the image: ranking is by luma, not by appearance.
  const Image tinted = tintedImage(row({light, dark, dark, light}), greyPalette(5));
  EXPECT_EQ(at(tinted, 0), grey(40));
  EXPECT_EQ(at(tinted, 1), grey(0));
  EXPECT_EQ(at(tinted, 2), grey(0));
  EXPECT_EQ(at(tinted, 3), grey(40));
}

TEST(TintedImage, PaletteRanksRoundHalvesUp) {
  // Five greys on three entries: round(2 * rank / 4) for ranks 0..4 is 0, 1, 1, 2, 2.
  const Image tinted =
      tintedImage(row({grey(90), grey(10), grey(200), grey(50), grey(130)}), greyPalette(3));
  EXPECT_EQ(at(tinted, 1), grey(0));   // rank 0
  EXPECT_EQ(at(tinted, 3), grey(10));  // rank 1
  EXPECT_EQ(at(tinted, 0), grey(10));  // rank 2
  EXPECT_EQ(at(tinted, 4), grey(20));  // rank 3
  EXPECT_EQ(at(tinted, 2), grey(20));  // rank 4
}

TEST(TintedImage, PaletteRankingLeavesOutPixelsBelowTheThreshold) {
  BitmapTint tint = greyPalette(5);
  tint.coverageThreshold = 16;
  // The faint pixel is straight grey 26; counted, it would push grey 100 to rank 1 of 3.
  const Image tinted = tintedImage(row({grey(100), grey(1, 10), grey(250)}), tint);
  EXPECT_EQ(at(tinted, 0), grey(0));
  EXPECT_EQ(at(tinted, 1), grey(0, 0));
  EXPECT_EQ(at(tinted, 2), grey(40));
}

TEST(TintedImage, PaletteOverMoreThan32ColoursIndexesByTheMask) {
  std::vector<Bgra> pixels;
  for (int i = 0; i < 40; ++i)
    pixels.push_back(grey(i * 6));
  Image image = Image::blank(40, 1);
  for (int32_t x = 0; x < 40; ++x)
    for (int c = 0; c < 4; ++c)
      image.pixel(x, 0)[c] = uint8_t(pixels[size_t(x)][c]);
  BitmapTint tint = greyPalette(2);
  tint.palette[1] = rgbColor(255, 255, 255);
  tint.maskChannel = MaskChannel::Luma;  // (2 * m) / 256: below 128 entry 0, from 128 entry 1
  const Image tinted = tintedImage(image, tint);
  for (int32_t x = 0; x < 40; ++x) {
    const int expected = x * 6 < 128 ? 0 : 255;
    EXPECT_EQ(at(tinted, x), grey(expected)) << "grey " << x * 6;
  }
}

TEST(TintedImage, InactiveTintGivesTheSourceItself) {
  const Image source = row({kOpaque, kHalf});
  for (const BitmapTint& tint : {tintOf(TintMode::Mono, 0), tintOf(TintMode::None)}) {
    const Image result = tintedImage(source, tint);
    EXPECT_EQ(result.pixels, source.pixels);
  }
  EXPECT_TRUE(source.variantKeys().empty());
}

TEST(TintedImage, KeptWithTheImageAndSharedByItsCopies) {
  const Image source = row({kOpaque});
  const Image copy = source;
  const BitmapTint tint = tintOf(TintMode::Mono);
  const Image first = tintedImage(copy, tint);
  EXPECT_EQ(source.variantKeys(), std::vector<uint64_t>{tintKey(tint)});
  const Image again = tintedImage(source, tint);
  EXPECT_EQ(again.pixels, first.pixels);  // not computed twice
  EXPECT_NE(first.pixels, source.pixels);
  EXPECT_EQ(at(source, 0), kOpaque);  // the source is untouched
}

TEST(TintedImage, AThirteenthTintEvictsTheFirst) {
  const Image source = row({kOpaque});
  std::vector<uint64_t> keys;
  for (int amount = 1; amount <= 13; ++amount) {
    const BitmapTint tint = tintOf(TintMode::Mono, uint8_t(amount));
    keys.push_back(tintKey(tint));
    tintedImage(source, tint);
    EXPECT_EQ(source.variantKeys().size(), size_t(std::min(amount, 12)));
  }
  EXPECT_EQ(source.variantKeys(), std::vector<uint64_t>(keys.begin() + 1, keys.end()));
  // The evicted tint is made anew and then pushes out the next oldest.
  tintedImage(source, tintOf(TintMode::Mono, 1));
  EXPECT_EQ(source.variantKeys().back(), keys[0]);
  EXPECT_EQ(source.variantKeys().front(), keys[2]);
}

TEST(TintedImage, ReusingAKeptTintDoesNotReorderTheList) {
  const Image source = row({kOpaque});
  tintedImage(source, tintOf(TintMode::Mono, 1));
  tintedImage(source, tintOf(TintMode::Mono, 2));
  tintedImage(source, tintOf(TintMode::Mono, 1));
  EXPECT_EQ(source.variantKeys(), (std::vector<uint64_t>{tintKey(tintOf(TintMode::Mono, 1)),
                                                         tintKey(tintOf(TintMode::Mono, 2))}));
}

TEST(TintKey, EveryFieldCountsButUnusedPaletteEntriesDoNot) {
  BitmapTint base = tintOf(TintMode::Palette, 200);
  base.paletteCount = 2;
  base.palette[0] = rgbColor(1, 2, 3);
  base.palette[1] = rgbColor(4, 5, 6);
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
  BitmapTint unused = base;
  unused.palette[5] = rgbColor(9, 9, 9);
  EXPECT_EQ(tintKey(unused), tintKey(base));
}

// A canvas that only records the blends it is asked for.
class BlendRecorder : public Canvas {
 public:
  struct Blend {
    Image image;
    Rect source;
    Rect target;
    uint8_t opacity;
  };
  std::vector<Blend> blends;

  Size size() const override { return {1000, 1000}; }
  void save() override {}
  void restore() override {}
  void clipToRects(const std::vector<Rect>&) override {}
  Rect clipBox() const override { return {0, 0, 1000, 1000}; }
  void fillRect(const Rect&, Color) override {}
  void blendImage(const Image& image, const Rect& source, const Rect& target,
                  uint8_t opacity) override {
    blends.push_back({image, source, target, opacity});
  }
  Image copyPixels(const Rect&) const override { return {}; }
  void putPixels(const Image&, const Rect&, Point) override {}
  Size measureText(const std::wstring&, const TextStyle&) const override { return {}; }
  void drawText(const std::wstring&, const Rect&, const TextStyle&, Color, uint32_t) override {}
};

TEST(DrawImage, StretchesTheWholeImageWithTheOpacity) {
  const Image image = Image::blank(5, 3);
  BlendRecorder canvas;
  drawImage(canvas, image, {10, 20, 50, 30}, BitmapTint(), 77);
  ASSERT_EQ(canvas.blends.size(), 1u);
  EXPECT_EQ(canvas.blends[0].source, (Rect{0, 0, 5, 3}));
  EXPECT_EQ(canvas.blends[0].target, (Rect{10, 20, 50, 30}));
  EXPECT_EQ(canvas.blends[0].opacity, 77);
  EXPECT_EQ(canvas.blends[0].image.pixels, image.pixels);
}

TEST(DrawImage, TintsBeforeBlending) {
  const Image image = row({kOpaque});
  BlendRecorder canvas;
  drawImage(canvas, image, {0, 0, 4, 4}, tintOf(TintMode::Mono), 255);
  drawImageNineSlice(canvas, image, {0, 0, 4, 4}, NineSlice{}, tintOf(TintMode::Mono), 255);
  ASSERT_EQ(canvas.blends.size(), 2u);
  for (const auto& blend : canvas.blends)
    EXPECT_EQ(at(blend.image, 0), (Bgra{240, 160, 40, 255}));
}

TEST(DrawImage, TintAmountZeroDrawsTheSource) {
  Image plain = Image::blank(6, 6), tinted = Image::blank(6, 6);
  const Image source = row({kOpaque, kHalf});
  ImageCanvas plainCanvas(plain), tintedCanvas(tinted);
  drawImage(plainCanvas, source, {0, 0, 6, 6}, BitmapTint(), 200);
  drawImage(tintedCanvas, source, {0, 0, 6, 6}, tintOf(TintMode::Multiply, 0), 200);
  EXPECT_EQ(*tinted.pixels, *plain.pixels);
  EXPECT_NE(at(plain, 0), (Bgra{0, 0, 0, 0}));  // something was drawn at all
}

TEST(DrawImage, NothingForEmptyImagesRectanglesOrOpacity) {
  BlendRecorder canvas;
  const Image image = row({kOpaque});
  drawImage(canvas, Image(), {0, 0, 4, 4}, BitmapTint(), 255);
  drawImage(canvas, image, {0, 0, 0, 4}, BitmapTint(), 255);
  drawImage(canvas, image, {0, 0, 4, -3}, BitmapTint(), 255);
  drawImage(canvas, image, {0, 0, 4, 4}, BitmapTint(), 0);
  drawImageNineSlice(canvas, Image(), {0, 0, 4, 4}, NineSlice{1, 1, 1, 1}, BitmapTint(), 255);
  drawImageNineSlice(canvas, image, {0, 0, -4, 4}, NineSlice{1, 1, 1, 1}, BitmapTint(), 255);
  drawImageNineSlice(canvas, image, {0, 0, 4, 4}, NineSlice{1, 1, 1, 1}, BitmapTint(), 0);
  EXPECT_TRUE(canvas.blends.empty());
}

struct SliceCase {
  const char* what;
  Size image;
  Rect target;
  NineSlice slice;
  std::vector<SlicePiece> pieces;  // row by row
};

const SliceCase kSliceCases[] = {
    {"corners unscaled, edges stretch one way, the middle both",
     {30, 20},
     {10, 10, 100, 50},
     {6, 4, 5, 3},
     {{{0, 0, 6, 4}, {10, 10, 6, 4}},
      {{6, 0, 19, 4}, {16, 10, 89, 4}},
      {{25, 0, 5, 4}, {105, 10, 5, 4}},
      {{0, 4, 6, 13}, {10, 14, 6, 43}},
      {{6, 4, 19, 13}, {16, 14, 89, 43}},
      {{25, 4, 5, 13}, {105, 14, 5, 43}},
      {{0, 17, 6, 3}, {10, 57, 6, 3}},
      {{6, 17, 19, 3}, {16, 57, 89, 3}},
      {{25, 17, 5, 3}, {105, 57, 5, 3}}}},
    {"margins larger than the destination shrink; the empty middle is skipped",
     {30, 20},
     {0, 0, 8, 5},
     {6, 4, 6, 4},
     // Target margins: left 6, right min(6, 8-6) = 2; top 4, bottom min(4, 5-4) = 1.
     {{{0, 0, 6, 4}, {0, 0, 6, 4}},
      {{24, 0, 6, 4}, {6, 0, 2, 4}},
      {{0, 16, 6, 4}, {0, 4, 6, 1}},
      {{24, 16, 6, 4}, {6, 4, 2, 1}}}},
    {"margins larger than the image are clamped to it",
     {30, 20},
     {0, 0, 60, 40},
     {50, 25, 50, 0},
     // Image margins: left 30, right 0; top 20, bottom 0: only the top-left corner remains.
     {{{0, 0, 30, 20}, {0, 0, 30, 20}}}},
    {"negative margins count as none",
     {30, 20},
     {5, 5, 60, 40},
     {-4, -1, -9, -2},
     {{{0, 0, 30, 20}, {5, 5, 60, 40}}}},
    {"a target narrower than the left margin leaves no room for the right",
     {30, 20},
     {0, 0, 4, 20},
     {6, 0, 6, 0},
     {{{0, 0, 6, 20}, {0, 0, 4, 20}}}},
};

TEST(NineSlice, PiecesByHand) {
  for (const SliceCase& c : kSliceCases) {
    const std::vector<SlicePiece> pieces = nineSlicePieces(c.image, c.target, c.slice);
    ASSERT_EQ(pieces.size(), c.pieces.size()) << c.what;
    for (size_t i = 0; i < pieces.size(); ++i) {
      EXPECT_EQ(pieces[i].source, c.pieces[i].source) << c.what << " piece " << i;
      EXPECT_EQ(pieces[i].target, c.pieces[i].target) << c.what << " piece " << i;
    }
  }
}

TEST(NineSlice, NoBlendEverGetsASizeBelowOneOrLeavesTheTarget) {
  const Image image = Image::blank(12, 9);
  const NineSlice slices[] = {{0, 0, 0, 0},   {3, 2, 4, 3},     {6, 4, 6, 5},
                              {12, 9, 12, 9}, {20, 20, 20, 20}, {-3, 5, -1, 2}};
  for (const NineSlice& slice : slices) {
    for (int32_t width = -2; width <= 16; ++width) {
      for (int32_t height = -2; height <= 14; ++height) {
        const Rect target{3, -2, width, height};
        BlendRecorder canvas;
        drawImageNineSlice(canvas, image, target, slice, BitmapTint(), 255);
        std::vector<int> hits(size_t(std::max(width, 0) * std::max(height, 0)), 0);
        for (const auto& blend : canvas.blends) {
          ASSERT_GE(blend.source.width, 1);
          ASSERT_GE(blend.source.height, 1);
          ASSERT_GE(blend.target.width, 1);
          ASSERT_GE(blend.target.height, 1);
          ASSERT_GE(blend.source.x, 0);
          ASSERT_GE(blend.source.y, 0);
          ASSERT_LE(blend.source.right(), image.width);
          ASSERT_LE(blend.source.bottom(), image.height);
          ASSERT_GE(blend.target.x, target.x);
          ASSERT_GE(blend.target.y, target.y);
          ASSERT_LE(blend.target.right(), target.right());
          ASSERT_LE(blend.target.bottom(), target.bottom());
          for (int32_t y = blend.target.y; y < blend.target.bottom(); ++y)
            for (int32_t x = blend.target.x; x < blend.target.right(); ++x)
              ++hits[size_t((y - target.y) * width + (x - target.x))];
        }
        // While the image keeps a middle, the pieces tile the target exactly once.
        const bool imageHasMiddle = std::max(slice.left, 0) + std::max(slice.right, 0) < 12 &&
                                    std::max(slice.top, 0) + std::max(slice.bottom, 0) < 9;
        if (!imageHasMiddle) continue;
        for (int count : hits)
          ASSERT_EQ(count, 1) << width << "x" << height;
      }
    }
  }
}

}  // namespace
}  // namespace tessel
