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

// '#' is opaque, 'o' faint (alpha 10), '.' transparent; white, premultiplied.
Image mask(const std::vector<std::string>& rows) {
  Image image = Image::blank(int32_t(rows[0].size()), int32_t(rows.size()));
  for (int32_t y = 0; y < image.height; ++y) {
    for (int32_t x = 0; x < image.width; ++x) {
      const char c = rows[y][x];
      const uint8_t alpha = c == '#' ? 255 : c == 'o' ? 10 : 0;
      uint8_t* p = image.pixel(x, y);
      p[0] = p[1] = p[2] = p[3] = alpha;
    }
  }
  return image;
}

Image alphaGrid(int32_t width, int32_t height, std::vector<uint8_t> alphas) {
  Image image = Image::blank(width, height);
  for (size_t i = 0; i < alphas.size(); ++i)
    (*image.pixels)[i * 4 + 3] = alphas[i];
  return image;
}

TEST(CoverageAt, NearestSourcePixelByIntegerDivisionClampedToTheBitmap) {
  const Image small = alphaGrid(2, 2, {10, 20, 30, 40});
  const Image strip = alphaGrid(4, 1, {1, 2, 3, 4});
  const struct {
    const char* what;
    const Image* bitmap;
    int32_t width, height, x, y;
    uint8_t coverage;
  } cases[] = {
      {"2x2 over 4x4, origin", &small, 4, 4, 0, 0, 10},
      {"2x2 over 4x4, still the first column", &small, 4, 4, 1, 0, 10},
      {"2x2 over 4x4, second column", &small, 4, 4, 2, 0, 20},
      {"2x2 over 4x4, second row", &small, 4, 4, 0, 2, 30},
      {"2x2 over 4x4, last pixel", &small, 4, 4, 3, 3, 40},
      {"left of the bitmap clamps", &small, 4, 4, -5, 0, 10},
      {"beyond the bitmap clamps", &small, 4, 4, 100, 100, 40},
      {"4x1 shrunk to 2x1, first", &strip, 2, 1, 0, 0, 1},
      {"4x1 shrunk to 2x1, second takes source 2", &strip, 2, 1, 1, 0, 3},
      {"no size", &small, 0, 4, 0, 0, 0},
  };
  for (const auto& c : cases)
    EXPECT_EQ(coverageAt(*c.bitmap, c.width, c.height, c.x, c.y), c.coverage) << c.what;
  EXPECT_EQ(coverageAt(Image(), 4, 4, 1, 1), 0);
}

TEST(IsInsideOutline, CoverageBitmapRulesElseTheShape) {
  const Image coverage = alphaGrid(5, 5, std::vector<uint8_t>(25, 16));
  const Image faint = alphaGrid(5, 5, std::vector<uint8_t>(25, 15));
  const Image empty;
  const struct {
    const char* what;
    const Image* coverage;
    int32_t x, y;
    bool inside;
  } cases[] = {
      {"no bitmap: diamond corner", nullptr, 0, 0, false},
      {"no bitmap: diamond centre", nullptr, 2, 2, true},
      {"empty bitmap: diamond corner", &empty, 0, 0, false},
      {"empty bitmap: diamond centre", &empty, 2, 2, true},
      {"coverage at the threshold covers the corner", &coverage, 0, 0, true},
      {"coverage below the threshold misses the centre", &faint, 2, 2, false},
      {"outside the size, even with coverage", &coverage, 5, 0, false},
      {"left of the size, even with coverage", &coverage, -1, 2, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(isInsideOutline(ShapeKind::Diamond, c.coverage, 16, 5, 5, c.x, c.y), c.inside)
        << c.what;
}

struct BandCase {
  const char* what;
  std::vector<std::string> bitmap;
  Rect rect;
  Rect area;
  uint8_t threshold;
  int32_t bandHeight;
  std::vector<Rect> bands;
};

const BandCase kBandCases[] = {
    {"two equal bands in a row merge",
     {"######", "######", "######", "######"},
     {0, 0, 6, 4},
     {0, 0, 6, 4},
     16,
     2,
     {{0, 0, 6, 4}}},
    {"one transparent row rejects its band whole",
     {"######", "......", "######", "######"},
     {0, 0, 6, 4},
     {0, 0, 6, 4},
     16,
     2,
     {{0, 2, 6, 2}}},
    {"a band is the narrowest row's extent",
     {"..##..", ".####.", "######", "######"},
     {0, 0, 6, 4},
     {0, 0, 6, 4},
     16,
     2,
     {{2, 0, 2, 2}, {0, 2, 6, 2}}},
    {"rows that don't overlap reject the band",
     {"##....", "....##", "######", "######"},
     {0, 0, 6, 4},
     {0, 0, 6, 4},
     16,
     2,
     {{0, 2, 6, 2}}},
    {"holes inside a row do not matter",
     {"#.##.#", "######"},
     {0, 0, 6, 2},
     {0, 0, 6, 2},
     16,
     2,
     {{0, 0, 6, 2}}},
    {"band height below 1 counts as 1",
     {"######", ".####.", ".####."},
     {0, 0, 6, 3},
     {0, 0, 6, 3},
     16,
     0,
     {{0, 0, 6, 1}, {1, 1, 4, 2}}},
    {"band height beyond the area is one band",
     {".####.", "######", "######"},
     {0, 0, 6, 3},
     {0, 0, 6, 3},
     16,
     50,
     {{1, 0, 4, 3}}},
    {"the last band is shorter",
     {"######", "######", "######", "######", ".####."},
     {0, 0, 6, 5},
     {0, 0, 6, 5},
     16,
     2,
     {{0, 0, 6, 4}, {1, 4, 4, 1}}},
    {"a gap keeps equal bands apart",
     {"######", "......", "######"},
     {0, 0, 6, 3},
     {0, 0, 6, 3},
     16,
     1,
     {{0, 0, 6, 1}, {0, 2, 6, 1}}},
    {"faint pixels are below the threshold",
     {"oo##oo", "######"},
     {0, 0, 6, 2},
     {0, 0, 6, 2},
     16,
     1,
     {{2, 0, 2, 1}, {0, 1, 6, 1}}},
    {"faint pixels at the threshold count",
     {"oo##oo", "######"},
     {0, 0, 6, 2},
     {0, 0, 6, 2},
     10,
     1,
     {{0, 0, 6, 2}}},
    {"nothing covered", {"......", "......"}, {0, 0, 6, 2}, {0, 0, 6, 2}, 16, 1, {}},
    {"area inside an offset rect, bands in the same coordinates",
     {"......", "#.####", "######", "######"},
     {100, 50, 6, 4},
     {101, 51, 4, 3},
     16,
     1,
     {{102, 51, 3, 1}, {101, 52, 4, 2}}},
    {"bitmap stretched over the rect",
     {"#.", "##"},
     {0, 0, 4, 4},
     {0, 0, 4, 4},
     16,
     2,
     {{0, 0, 2, 2}, {0, 2, 4, 2}}},
    {"empty area", {"######"}, {0, 0, 6, 1}, {0, 0, 0, 1}, 16, 1, {}},
};

TEST(AlphaBands, LargestRectanglePerBandInsideTheOutline) {
  for (const BandCase& c : kBandCases)
    EXPECT_EQ(alphaBands(c.rect, c.area, mask(c.bitmap), c.threshold, c.bandHeight), c.bands)
        << c.what;
}

TEST(AlphaBands, WithoutABitmapTheAreaIsTheOneBand) {
  EXPECT_EQ(alphaBands({0, 0, 40, 24}, {3, 2, 30, 20}, Image(), 16, 4),
            (std::vector<Rect>{{3, 2, 30, 20}}));
  EXPECT_TRUE(alphaBands({0, 0, 40, 24}, {3, 2, 0, 20}, Image(), 16, 4).empty());
}

}  // namespace
}  // namespace tessel
