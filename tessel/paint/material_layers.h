// The row-wise painters behind the material layers, each built twice from its layer's file: for
// the x86-64 baseline, and for AVX2 where the compiler can target it, the processor running the
// program picking one. Both paint the same pixels. Internal to material_shading.cpp (and its
// tests): the gates and the preparation of the layer are the caller's.
#pragma once

// Everything the layers' files use, included here so that each build of them sees these headers
// compiled for the baseline, outside its target switch.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/paint/alpha_bands.h"
#include "tessel/style/color.h"
#include "tessel/style/image.h"
#include "tessel/paint/lane_math.h"
#include "tessel/style/material_kind.h"
#include "tessel/paint/material_noise.h"
#include "tessel/paint/sample_space.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/style/surface_style.h"

// Whether the AVX2 painters are built: the target switch around them is GCC's, on x86-64.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)
#define TESSEL_MATERIAL_AVX2 1
#else
#define TESSEL_MATERIAL_AVX2 0
#endif

namespace tessel::material_layers {

// Each paints into `layer`, zeroed and of `rect`'s size. The overlay takes the effective depth
// and whether LuminousGlass is in its cheap form; the spatial shading expects an intensity of at
// least 0.16.
#define TESSEL_MATERIAL_PAINTERS                                                              \
  void paintOverlay(Image& layer, const SurfaceStyle& style, const Rect& rect, uint8_t depth, \
                    bool cheap, double phase);                                                \
  void paintSpatialShading(Image& layer, const SurfaceStyle& style, const Rect& rect);        \
  void paintNoise(Image& layer, const SurfaceStyle& style, const Rect& rect);

namespace baseline {
TESSEL_MATERIAL_PAINTERS
}
namespace avx2 {
TESSEL_MATERIAL_PAINTERS
}
#undef TESSEL_MATERIAL_PAINTERS

// Whether the AVX2 painters were built and this processor runs them; where they were not built,
// the avx2 names pass to the baseline.
bool avx2Available();

// How strongly the spatial shading shows: max(strength, 64) / 255 times the weight of depth,
// occlusion, wear and specular.
inline double spatialIntensity(const SurfaceStyle& style) {
  const double d = style.materialDepth / 255.0;
  const double spec = style.specular / 255.0, ao = style.ambientOcclusion / 255.0,
               wear = style.edgeWear / 255.0;
  const double weight = std::clamp(d * 0.96 + ao * 0.54 + wear * 0.5 + spec * 0.28, 0.0, 1.75);
  return std::max<int32_t>(style.materialStrength, 64) / 255.0 * weight;
}

}  // namespace tessel::material_layers
