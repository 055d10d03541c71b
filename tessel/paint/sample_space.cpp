#include "tessel/paint/sample_space.h"

#include <algorithm>

namespace tessel {

int32_t clampedUvScale(int32_t uvScale) {
  return std::clamp(uvScale, 8, 8192);
}

int64_t SampleAxis::sample(int64_t i) const {
  const int64_t w = world(i);
  if (!global) return w;
  const int64_t period = 2 * slab;
  int64_t m = w % period;
  if (m < 0) m += period;
  return m > slab ? period - m : m;
}

namespace {

SampleAxis localAxis(int32_t size) {
  SampleAxis axis;
  axis.extent = double(std::max(size, 1));
  return axis;
}

SampleAxis globalAxis(int32_t position, int32_t offset, int32_t scale) {
  SampleAxis axis;
  axis.global = true;
  axis.origin = int64_t(position) + offset;
  axis.slab = scale;
  axis.extent = double(scale) + 1.0;
  return axis;
}

}  // namespace

SampleSpace sampleSpace(const SurfaceStyle& style, const Rect& rect) {
  if (style.uvMapping != 1) return {localAxis(rect.width), localAxis(rect.height)};
  const int32_t scale = clampedUvScale(style.uvScale);
  return {globalAxis(rect.x, style.uvOffsetX, scale), globalAxis(rect.y, style.uvOffsetY, scale)};
}

}  // namespace tessel
