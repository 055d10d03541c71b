#include "tessel/paint/alpha_bands.h"

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tessel {

// Readable failures for lists of rectangles.
static void PrintTo(const Rect& r, std::ostream* os) {
  *os << "{" << r.x << ", " << r.y << ", " << r.width << ", " << r.height << "}";
}

namespace {

Image alphaGrid(int32_t width, int32_t height, std::vector<uint8_t> alphas) {
  Image image = Image::blank(width, height);
  for (size_t i = 0; i < alphas.size(); ++i)
    (*image.pixels)[i * 4 + 3] = alphas[i];
  return image;
}

TEST(CoverageAt, NearestSourcePixelByIntegerDivisionClampedToTheBitmap) {
  const Image small = alphaGrid(2, 2, {10, 20, 30, 40}), strip = alphaGrid(4, 1, {1, 2, 3, 4});
  const struct {
    const char* what;
    const Image* bitmap;
    int32_t width, height, x, y;
    uint8_t coverage;
  } kCases[] = {
      {"2x2 over 4x4, still the first column", &small, 4, 4, 1, 0, 10},
      {"2x2 over 4x4, second column", &small, 4, 4, 2, 0, 20},
      {"2x2 over 4x4, last pixel", &small, 4, 4, 3, 3, 40},
      {"left of the bitmap clamps", &small, 4, 4, -5, 0, 10},
      {"beyond the bitmap clamps", &small, 4, 4, 100, 100, 40},
      {"4x1 shrunk to 2x1, second takes source 2", &strip, 2, 1, 1, 0, 3},
      {"no size", &small, 0, 4, 0, 0, 0},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(coverageAt(*c.bitmap, c.width, c.height, c.x, c.y), c.coverage) << c.what;
  EXPECT_EQ(coverageAt(Image(), 4, 4, 1, 1), 0);
}

TEST(IsInsideOutline, CoverageBitmapRulesElseTheShape) {
  const Image coverage = alphaGrid(5, 5, std::vector<uint8_t>(25, 16));
  const Image faint = alphaGrid(5, 5, std::vector<uint8_t>(25, 15)), empty;
  const struct {
    const char* what;
    const Image* coverage;
    int32_t x, y;
    bool inside;
  } kCases[] = {
      {"no bitmap: diamond corner", nullptr, 0, 0, false},
      {"empty bitmap: diamond centre", &empty, 2, 2, true},
      {"coverage at the threshold covers the corner", &coverage, 0, 0, true},
      {"coverage below the threshold misses the centre", &faint, 2, 2, false},
      {"outside the size, even with coverage", &coverage, 5, 0, false},
      {"left of the size, even with coverage", &coverage, -1, 2, false},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(isInsideOutline(ShapeKind::Diamond, c.coverage, 16, 5, 5, c.x, c.y), c.inside)
        << c.what;
}

// Bitmaps as rows split by '|': '#' opaque, 'o' faint (alpha 10), '.' transparent. The rectangle
// is the bitmap's size at the origin unless given, the area the rectangle unless given a size.
TEST(AlphaBands, LargestRectanglePerBandInsideTheOutline) {
  const struct {
    const char* what;
    std::string bitmap;
    uint8_t threshold;
    int32_t bandHeight;
    std::vector<Rect> bands;
    Rect rect = {}, area = {};
  } kCases[] = {
      {"two equal bands in a row merge", "######|######|######|######", 16, 2, {{0, 0, 6, 4}}},
      {"one transparent row rejects its band",
       "######|......|######|######",
       16,
       2,
       {{0, 2, 6, 2}}},
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
      {"band height beyond the area is one band", ".####.|######|######", 16, 50, {{1, 0, 4, 3}}},
      {"the last band is shorter",
       "######|######|######|######|.####.",
       16,
       2,
       {{0, 0, 6, 4}, {1, 4, 4, 1}}},
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
    const int32_t width =
        int32_t(c.bitmap.find('|') == std::string::npos ? c.bitmap.size() : c.bitmap.find('|'));
    const int32_t height = int32_t(c.bitmap.size() + 1) / (width + 1);
    Image bitmap = Image::blank(width, height);
    for (int32_t y = 0; y < height; ++y) {
      for (int32_t x = 0; x < width; ++x) {
        const char k = c.bitmap[size_t(y * (width + 1) + x)];
        uint8_t* p = bitmap.pixel(x, y);
        p[0] = p[1] = p[2] = p[3] = k == '#' ? 255 : k == 'o' ? 10 : 0;
      }
    }
    const Rect rect = c.rect.empty() ? Rect{0, 0, width, height} : c.rect;
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
