#include "tessel/paint/layer_runs.h"

#include <cstring>

namespace tessel {

namespace {

// Shorter stretches aren't worth a run of their own: they are blended with their neighbours.
constexpr int32_t kShortest = 8;

uint32_t word(const uint8_t* row, int32_t x) {
  uint32_t value;
  std::memcpy(&value, row + size_t(x) * 4, 4);
  return value;
}

bool opaque(uint32_t value) {
  return (value >> 24) == 255;
}

// The end of the stretch of pixels equal to the one at `x`.
int32_t sameUntil(const uint8_t* row, int32_t x, int32_t width) {
  const uint32_t value = word(row, x);
  int32_t end = x + 1;
  while (end < width && word(row, end) == value)
    ++end;
  return end;
}

}  // namespace

std::vector<LayerRun> findLayerRuns(const Image& layer) {
  std::vector<LayerRun> runs;
  if (layer.empty()) return runs;
  for (int32_t y = 0; y < layer.height; ++y) {
    const uint8_t* row = layer.pixel(0, y);
    int32_t mixedFrom = -1;  // start of the pending run of pixels to blend
    const auto closeMixed = [&](int32_t to) {
      if (mixedFrom >= 0 && mixedFrom < to) runs.push_back(LayerRun{y, mixedFrom, to, 0});
      mixedFrom = -1;
    };
    int32_t x = 0;
    while (x < layer.width) {
      const uint32_t value = word(row, x);
      if (value == 0 || opaque(value)) {
        const int32_t end = sameUntil(row, x, layer.width);
        if (end - x >= kShortest) {
          // A long stretch of one colour, or of nothing, ends the pending run.
          closeMixed(x);
          if (value != 0) runs.push_back(LayerRun{y, x, end, value});
          x = end;
          continue;
        }
        if (value == 0 && mixedFrom < 0) {
          x = end;  // short transparent stretches before anything else stay out
          continue;
        }
        if (mixedFrom < 0) mixedFrom = x;
        x = end;
        continue;
      }
      if (mixedFrom < 0) mixedFrom = x;
      ++x;
    }
    // Transparent pixels at the end of a pending run needn't be blended.
    int32_t last = layer.width;
    while (mixedFrom >= 0 && last > mixedFrom && word(row, last - 1) == 0)
      --last;
    closeMixed(last);
  }
  return runs;
}

}  // namespace tessel
