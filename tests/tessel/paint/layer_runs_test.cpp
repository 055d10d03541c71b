#include "tessel/paint/layer_runs.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

// One letter a pixel: 't' transparent, 'R'/'B' opaque red/blue, 'h' half-transparent green.
TEST(FindLayerRuns, RowsBecomeFillsBlendsAndGaps) {
  constexpr uint32_t kRed = 0xFFFF0000u, kBlue = 0xFF0000FFu;
  const struct {
    const char* what;
    std::string row;
    std::vector<LayerRun> runs;
  } kCases[] = {
      {"all transparent", "tttttttttttt", {}},
      {"one long colour", "RRRRRRRR", {{0, 0, 8, kRed}}},
      {"short colour is blended", "ttRRRRRRRtt", {{0, 2, 9, 0}}},
      {"edges blended, middle filled",
       "hRRRRRRRRh",
       {{0, 0, 1, 0}, {0, 1, 9, kRed}, {0, 9, 10, 0}}},
      {"two colours side by side", "RRRRRRRRBBBBBBBB", {{0, 0, 8, kRed}, {0, 8, 16, kBlue}}},
      {"short gap inside a blend", "hhttttttthh", {{0, 0, 11, 0}}},
      {"long gap splits", "hhtttttttthh", {{0, 0, 2, 0}, {0, 10, 12, 0}}},
  };
  for (const auto& c : kCases) {
    Image image = Image::blank(int32_t(c.row.size()), 1);
    for (size_t x = 0; x < c.row.size(); ++x) {
      uint8_t* p = image.pixel(int32_t(x), 0);
      const char k = c.row[x];
      p[0] = k == 'B' ? 255 : 0, p[1] = k == 'h' ? 60 : 0, p[2] = k == 'R' ? 255 : 0;
      p[3] = k == 'h' ? 128 : k == 't' ? 0 : 255;
    }
    EXPECT_EQ(findLayerRuns(image), c.runs) << c.what;
  }
}

// Layers made of stretches of every kind, blended through their runs and plainly, under
// several clips and at offsets that put them partly outside the target: the same bytes.
TEST(FindLayerRuns, BlendingThroughRunsEqualsThePlainBlend) {
  std::mt19937 random(11);
  const std::vector<std::vector<Rect>> clips = {
      {}, {Rect{5, 3, 30, 20}, Rect{20, 10, 30, 25}}, {Rect{0, 0, 12, 40}, Rect{30, 0, 20, 40}}};
  for (int round = 0; round < 12; ++round) {
    Image layer = Image::blank(8 + int32_t(random() % 40), 1 + int32_t(random() % 30));
    for (int32_t y = 0; y < layer.height; ++y) {
      for (int32_t x = 0; x < layer.width;) {
        const int32_t length = 1 + int32_t(random() % 14);
        const uint32_t kind = random() % 4;
        const uint8_t alpha = kind == 0 ? 0 : kind == 1 ? 255 : uint8_t(random());
        const uint8_t colour = uint8_t(random() % (alpha + 1));
        for (int32_t i = 0; i < length && x < layer.width; ++i, ++x) {
          uint8_t* p = layer.pixel(x, y);
          p[0] = colour;
          p[1] = kind == 3 ? uint8_t(random() % (alpha + 1)) : colour;
          p[2] = uint8_t(alpha / 2);
          p[3] = alpha;
        }
      }
    }
    const std::vector<LayerRun> runs = findLayerRuns(layer);
    for (const auto& clip : clips) {
      for (const Point at : {Point{0, 0}, Point{-7, 4}, Point{25, -3}, Point{41, 30}}) {
        Image plain = Image::blank(50, 40);
        for (size_t i = 0; i < plain.pixels->size(); ++i)
          (*plain.pixels)[i] = uint8_t(i * 37 % 251);
        Image viaRuns = Image::blank(50, 40);
        *viaRuns.pixels = *plain.pixels;
        ImageCanvas plainCanvas(plain), runsCanvas(viaRuns);
        if (!clip.empty()) plainCanvas.clipToRects(clip), runsCanvas.clipToRects(clip);
        plainCanvas.blendImage(layer, Rect{0, 0, layer.width, layer.height},
                               Rect{at.x, at.y, layer.width, layer.height}, 255);
        runsCanvas.blendLayer(layer, runs, at);
        ASSERT_EQ(*plain.pixels, *viaRuns.pixels)
            << "round " << round << " at " << at.x << "," << at.y << ", clip " << clip.size();
      }
    }
  }
}

}  // namespace
}  // namespace tessel
