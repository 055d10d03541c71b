// Where a pixel of a surface samples its procedural layers. Under local mapping every surface
// is its own canvas; under global mapping the coordinates come from the window (plus offsets)
// and are mirrored into a slab of uvScale pixels, so a texture runs on across neighbouring
// controls without seams. Each axis depends only on its own pixel coordinate.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// The uvScale of global mapping, limited to 8..8192.
int32_t clampedUvScale(int32_t uvScale);

// One axis of the sample space.
struct SampleAxis {
  bool global = false;
  int64_t origin = 0;   // world coordinate of pixel 0
  int64_t slab = 1;     // S under global mapping
  double extent = 1.0;  // max(size, 1) locally, S + 1 globally

  // The world coordinate of pixel i, and its sample coordinate (the world one mirrored into
  // 0..S under global mapping).
  int64_t world(int64_t i) const { return origin + i; }
  int64_t sample(int64_t i) const;
  // The normalized coordinate of a sample value: sample / (extent - 1), or 0 when the extent
  // is 1.
  double normalized(double sampleValue) const {
    return extent > 1.0 ? sampleValue / (extent - 1.0) : 0.0;
  }
  double t(int64_t i) const { return normalized(double(sample(i))); }
  // How far t moves for one pixel: 1 / (extent - 1), or 0 when the extent is 1.
  double step() const { return extent > 1.0 ? 1.0 / (extent - 1.0) : 0.0; }
};

struct SampleSpace {
  SampleAxis x;
  SampleAxis y;
};

// The sample space of a surface drawn at `rect` (its position matters only under global
// mapping). A uvMapping other than 1 is local.
SampleSpace sampleSpace(const SurfaceStyle& style, const Rect& rect);

}  // namespace tessel
