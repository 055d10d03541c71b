#include "tessel/paint/layer_runs.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

// A row written as stretches: 't' transparent, 'R'/'B' opaque red/blue, 'h' half-transparent,
// one letter per pixel.
Image RowImage(const std::string& pixels) {
  Image image = Image::blank(int32_t(pixels.size()), 1);
  for (size_t x = 0; x < pixels.size(); ++x) {
    uint8_t* p = image.pixel(int32_t(x), 0);
    switch (pixels[x]) {
      case 'R':
        p[2] = 255, p[3] = 255;
        break;
      case 'B':
        p[0] = 255, p[3] = 255;
        break;
      case 'h':
        p[1] = 60, p[3] = 128;
        break;
      default:
        break;
    }
  }
  return image;
}

constexpr uint32_t kRed = 0xFFFF0000u;
constexpr uint32_t kBlue = 0xFF0000FFu;

struct RunCase {
  const char* what;
  std::string row;
  std::vector<LayerRun> runs;
};

TEST(FindLayerRuns, RowsBecomeFillsBlendsAndGaps) {
  const RunCase cases[] = {
      {"all transparent", "tttttttttttt", {}},
      {"one long colour", "RRRRRRRRRR", {{0, 0, 10, kRed}}},
      {"short colour is blended", "ttRRRRtt", {{0, 2, 6, 0}}},
      {"edges blended, middle filled",
       "hRRRRRRRRRRh",
       {{0, 0, 1, 0}, {0, 1, 11, kRed}, {0, 11, 12, 0}}},
      {"two colours side by side", "RRRRRRRRBBBBBBBB", {{0, 0, 8, kRed}, {0, 8, 16, kBlue}}},
      {"short gap inside a blend", "hhtthh", {{0, 0, 6, 0}}},
      {"long gap splits", "hhttttttttthh", {{0, 0, 2, 0}, {0, 11, 13, 0}}},
      {"trailing transparency dropped", "hRRthttt", {{0, 0, 5, 0}}},
  };
  for (const RunCase& c : cases) {
    EXPECT_EQ(findLayerRuns(RowImage(c.row)), c.runs) << c.what;
  }
}

// Layers made of stretches of every kind, blended through their runs and plainly, under
// several clips and at offsets that put them partly outside the target: the same bytes.
TEST(FindLayerRuns, BlendingThroughRunsEqualsThePlainBlend) {
  std::mt19937 random(11);
  const std::vector<std::vector<Rect>> clips = {
      {},                                          // no clip beyond the target
      {Rect{5, 3, 30, 20}, Rect{20, 10, 30, 25}},  // overlapping
      {Rect{0, 0, 12, 40}, Rect{30, 0, 20, 40}},   // disjoint
  };
  const Point offsets[] = {{0, 0}, {-7, 4}, {25, -3}, {41, 30}};
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
      for (const Point at : offsets) {
        Image plain = Image::blank(50, 40), viaRuns = Image::blank(50, 40);
        for (Image* target : {&plain, &viaRuns}) {
          for (size_t i = 0; i < target->pixels->size(); ++i)
            (*target->pixels)[i] = uint8_t(i * 37 % 251);
        }
        ImageCanvas plainCanvas(plain), runsCanvas(viaRuns);
        if (!clip.empty()) {
          plainCanvas.clipToRects(clip);
          runsCanvas.clipToRects(clip);
        }
        plainCanvas.blendImage(layer, Rect{0, 0, layer.width, layer.height},
                               Rect{at.x, at.y, layer.width, layer.height}, 255);
        runsCanvas.blendLayer(layer, runs, at);
        ASSERT_EQ(*plain.pixels, *viaRuns.pixels)
            << "round " << round << " at " << at.x << "," << at.y << " with " << clip.size()
            << " clip rectangles";
      }
    }
  }
}

}  // namespace
}  // namespace tessel
