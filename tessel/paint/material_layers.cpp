// Which painters run: the AVX2 ones where they were built and the processor has AVX2. Where the
// compiler cannot build them, the avx2 names pass to the baseline painters.
#include "tessel/paint/material_layers.h"

namespace tessel::material_layers {

#if TESSEL_MATERIAL_AVX2

bool avx2Available() {
  static const bool available = [] {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0;
  }();
  return available;
}

#else

namespace avx2 {
void paintOverlay(Image& layer, const SurfaceStyle& style, const Rect& rect, uint8_t depth,
                  bool cheap, double phase) {
  baseline::paintOverlay(layer, style, rect, depth, cheap, phase);
}
void paintSpatialShading(Image& layer, const SurfaceStyle& style, const Rect& rect) {
  baseline::paintSpatialShading(layer, style, rect);
}
void paintNoise(Image& layer, const SurfaceStyle& style, const Rect& rect) {
  baseline::paintNoise(layer, style, rect);
}
}  // namespace avx2

bool avx2Available() {
  return false;
}

#endif

}  // namespace tessel::material_layers
