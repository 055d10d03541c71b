#include "tessel/paint/alpha_bands.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Rows split by '|': '#' opaque, 'o' alpha 10, '.' transparent; any other letter is its code.
Image alphaRows(const std::string& rows) {
  const size_t bar = rows.find('|');
  const int32_t width = int32_t(bar == std::string::npos ? rows.size() : bar);
  const int32_t height = int32_t(rows.size() + 1) / (width + 1);
  Image image = Image::blank(width, height);
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) {
      const char k = rows[size_t(y * (width + 1) + x)];
      image.pixel(x, y)[3] = k == '#' ? 255 : k == 'o' ? 10 : k == '.' ? 0 : uint8_t(k);
    }
  }
  return image;
}

// The nearest source pixel by integer division, clamped to the bitmap.
TEST(CoverageAt, NearestSourcePixelClampedToTheBitmap) {
  const Image small = alphaRows("\x0A\x14|\x1E\x28"), strip = alphaRows("\x01\x02\x03\x04");
  const struct {
    const Image* bitmap;
    int32_t width, height, x, y;
    uint8_t coverage;
  } kCases[] = {
      {&small, 4, 4, 1, 0, 10},     {&small, 4, 4, 2, 0, 20}, {&small, 4, 4, -5, 0, 10},
      {&small, 4, 4, 100, 100, 40}, {&strip, 2, 1, 1, 0, 3},  {&small, 0, 4, 0, 0, 0},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(coverageAt(*c.bitmap, c.width, c.height, c.x, c.y), c.coverage)
        << c.width << "x" << c.height << " at " << c.x << "," << c.y;
  EXPECT_EQ(coverageAt(Image(), 4, 4, 1, 1), 0);
}

TEST(IsInsideOutline, CoverageBitmapRulesElseTheShape) {
  const Image at16 = alphaRows(std::string(5, '\x10')), at15 = alphaRows(std::string(5, '\x0F'));
  const Image empty;
  const struct {
    const char* what;
    const Image* coverage;
    int32_t x, y;
    bool inside;
  } kCases[] = {
      {"no bitmap: diamond corner", nullptr, 0, 0, false},
      {"empty bitmap: diamond centre", &empty, 2, 2, true},
      {"coverage at the threshold covers the corner", &at16, 0, 0, true},
      {"coverage below the threshold misses the centre", &at15, 2, 2, false},
      {"outside the size, even with coverage", &at16, 5, 0, false},
      {"left of the size, even with coverage", &at16, -1, 2, false},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(isInsideOutline(ShapeKind::Diamond, c.coverage, 16, 5, 5, c.x, c.y), c.inside)
        << c.what;
}

// The rectangle is the bitmap's size at the origin unless given, the area the rectangle unless
// given a size.
TEST(AlphaBands, LargestRectanglePerBandInsideTheOutline) {
  const struct {
    const char* what;
    std::string bitmap;
    uint8_t threshold;
    int32_t bandHeight;
    std::vector<Rect> bands;
    Rect rect = {}, area = {};
  } kCases[] = {
      {"equal bands merge", "######|######|######|######", 16, 2, {{0, 0, 6, 4}}},
      {"a transparent row rejects its band", "######|......|######|######", 16, 2, {{0, 2, 6, 2}}},
      {"a band is the narrowest row's extent",
       "..##..|.####.|######|######",
       16,
       2,
       {{2, 0, 2, 2}, {0, 2, 6, 2}}},
      {"rows that don't overlap reject the band", "##....|....##|######", 16, 2, {{0, 2, 6, 1}}},
      {"holes inside a row do not matter", "#.##.#|######", 16, 2, {{0, 0, 6, 2}}},
      {"band height below 1 counts as 1",
       "######|.####.|.####.",
       16,
       0,
       {{0, 0, 6, 1}, {1, 1, 4, 2}}},
      {"a gap keeps equal bands apart",
       "######|......|######",
       16,
       1,
       {{0, 0, 6, 1}, {0, 2, 6, 1}}},
      {"faint pixels at the threshold count", "oo##oo|######", 10, 1, {{0, 0, 6, 2}}},
      {"area inside an offset rect",
       "......|#.####|######|######",
       16,
       1,
       {{102, 51, 3, 1}, {101, 52, 4, 2}},
       {100, 50, 6, 4},
       {101, 51, 4, 3}},
      {"bitmap stretched over the rect",
       "#.|##",
       16,
       2,
       {{0, 0, 2, 2}, {0, 2, 4, 2}},
       {0, 0, 4, 4}},
      {"empty area", "######", 16, 1, {}, {0, 0, 6, 1}, {0, 0, 0, 1}},
  };
  for (const auto& c : kCases) {
    const Image bitmap = alphaRows(c.bitmap);
    const Rect rect = c.rect.empty() ? Rect{0, 0, bitmap.width, bitmap.height} : c.rect;
    const Rect area = c.area.width == 0 && c.area.height == 0 ? rect : c.area;
    EXPECT_EQ(alphaBands(rect, area, bitmap, c.threshold, c.bandHeight), c.bands) << c.what;
  }
  // Without a bitmap the area is the one band.
  EXPECT_EQ(alphaBands({0, 0, 40, 24}, {3, 2, 30, 20}, Image(), 16, 4),
            (std::vector<Rect>{{3, 2, 30, 20}}));
  EXPECT_TRUE(alphaBands({0, 0, 40, 24}, {3, 2, 0, 20}, Image(), 16, 4).empty());
}

}  // namespace
}  // namespace tessel
