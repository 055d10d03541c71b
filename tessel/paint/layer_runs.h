// A kept layer described row by row, so that blending it again costs what its content needs:
// fully transparent stretches are left out, long opaque stretches of one colour become fills,
// and everything else is blended from the pixels. Describing takes one pass over the layer.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/image.h"

namespace tessel {

struct LayerRun {
  int32_t y = 0;
  int32_t from = 0;  // first pixel of the run
  int32_t to = 0;    // one past the last
  // The run's colour as a BGRA word when it is opaque and of one colour; 0 when its pixels
  // are to be blended (an opaque word is never 0).
  uint32_t solid = 0;
  bool operator==(const LayerRun&) const = default;
};

// Runs in row order, left to right; together they hold every pixel that isn't fully
// transparent, and no pixel twice.
std::vector<LayerRun> findLayerRuns(const Image& layer);

}  // namespace tessel
