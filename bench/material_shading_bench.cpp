// The material layers computed cold (a fresh layer, no cache) on a 900 x 100 surface, the width
// of a wide control: every kind's overlay, Granite and Marble with relief, the spatial shading
// and noise. ns_per_px is the time per pixel. "baseline" forces the x86-64 baseline painters
// where the dispatcher would pick AVX2.
#include <string>

#include <benchmark/benchmark.h>

#include "tessel/paint/material_layers.h"
#include "tessel/paint/material_shading.h"

namespace tessel {
namespace {

const Rect kSurface{0, 0, 900, 100};
constexpr double kPixels = 900.0 * 100.0;

enum class Path { Dispatched, Baseline };

void perPixel(benchmark::State& state) {
  // Pixels per second, inverted: seconds per pixel, which the report shows in ns.
  state.counters["ns_per_px"] = benchmark::Counter(
      kPixels, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

SurfaceStyle materialStyle(MaterialKind kind, uint8_t depth, int32_t angle) {
  SurfaceStyle s;
  s.material = kind;
  s.materialStrength = 180;
  s.materialDepth = depth;
  s.materialAngle = angle;
  return s;
}

void overlay(benchmark::State& state, SurfaceStyle style, Path path) {
  for (auto _ : state) {
    Image layer = Image::blank(kSurface.width, kSurface.height);
    if (path == Path::Baseline)
      material_layers::baseline::paintOverlay(layer, style, kSurface, style.materialDepth, false,
                                              0);
    else
      drawMaterialOverlay(layer, style, kSurface, UiPerformanceProfile::BestGraphics, 0);
    benchmark::DoNotOptimize(layer.pixels->data());
  }
  perPixel(state);
}

void spatial(benchmark::State& state, SurfaceStyle style, Path path) {
  for (auto _ : state) {
    Image layer = Image::blank(kSurface.width, kSurface.height);
    if (path == Path::Baseline)
      material_layers::baseline::paintSpatialShading(layer, style, kSurface);
    else
      drawSpatialSurfaceShading(layer, style, kSurface, UiPerformanceProfile::BestGraphics);
    benchmark::DoNotOptimize(layer.pixels->data());
  }
  perPixel(state);
}

void noise(benchmark::State& state, SurfaceStyle style) {
  for (auto _ : state) {
    Image layer;
    drawNoise(layer, style, kSurface, UiPerformanceProfile::BestGraphics);
    benchmark::DoNotOptimize(layer.pixels->data());
  }
  perPixel(state);
}

const char* const kKindNames[] = {
    "none",           "glass",           "frosted_glass", "gloss",          "metal",
    "brushed_metal",  "plastic",         "rubber",        "paper",          "carbon_fiber",
    "obsidian_glass", "carmine_gloss",   "amber_glass",   "luminous_glass", "layered_glass",
    "gemstone",       "obsidian_relief", "granite",       "marble"};

const bool kRegistered = [] {
  for (int32_t k = 1; k <= 18; ++k) {
    benchmark::RegisterBenchmark((std::string("overlay/") + kKindNames[k]).c_str(), overlay,
                                 materialStyle(MaterialKind(k), 0, 0), Path::Dispatched);
  }
  for (MaterialKind kind : {MaterialKind::Granite, MaterialKind::Marble}) {
    const std::string name = kKindNames[int32_t(kind)];
    // The heaviest overlays: relief takes the height function at every pixel's neighbours.
    benchmark::RegisterBenchmark(("overlay/" + name + "/relief").c_str(), overlay,
                                 materialStyle(kind, 64, 0), Path::Dispatched);
    // An angle other than 0 turns the relief's stripes off the pixel grid.
    benchmark::RegisterBenchmark(("overlay/" + name + "/relief/angle30").c_str(), overlay,
                                 materialStyle(kind, 64, 30), Path::Dispatched);
    benchmark::RegisterBenchmark(("overlay/" + name + "/baseline").c_str(), overlay,
                                 materialStyle(kind, 0, 0), Path::Baseline);
    benchmark::RegisterBenchmark(("overlay/" + name + "/relief/baseline").c_str(), overlay,
                                 materialStyle(kind, 64, 0), Path::Baseline);
  }
  SurfaceStyle slab = materialStyle(MaterialKind::Granite, 64, 0);
  benchmark::RegisterBenchmark("spatial/granite/rectangle", spatial, slab, Path::Dispatched);
  benchmark::RegisterBenchmark("spatial/granite/rectangle/baseline", spatial, slab, Path::Baseline);
  slab.shape = ShapeKind::RoundedRect;
  benchmark::RegisterBenchmark("spatial/granite/rounded_rect", spatial, slab, Path::Dispatched);
  SurfaceStyle grain;
  grain.useNoise = true;
  grain.noiseOpacity = 40;
  benchmark::RegisterBenchmark("noise", noise, grain);
  return true;
}();

}  // namespace
}  // namespace tessel
