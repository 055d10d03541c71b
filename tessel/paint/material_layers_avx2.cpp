// The material painters for processors with AVX2: twice the lanes of the baseline. Only GCC on
// x86-64 builds them (the target switch below is GCC's); elsewhere they pass to the baseline.
#include "tessel/paint/material_layers.h"

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)

#pragma GCC push_options
#pragma GCC target("avx2")
#define MATERIAL_LAYERS_NS avx2
#include "tessel/paint/material_layers.inc"
#pragma GCC pop_options

namespace tessel::material_layers {

bool avx2Available() {
  static const bool available = [] {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0;
  }();
  return available;
}

}  // namespace tessel::material_layers

#else

namespace tessel::material_layers {

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

}  // namespace tessel::material_layers

#endif
