// Ready layers of surfaces, kept between paints: a gradient, material, noise or spatial layer
// depends only on style and size (and, under global mapping, position), so it is computed once
// and blended on every later paint. One process-wide list, oldest first; at most 96 entries and
// 96 MiB, and no layer above 32 MiB is kept.
#pragma once

#include <cstdint>
#include <functional>

#include "tessel/style/geometry.h"
#include "tessel/paint/canvas.h"
#include "tessel/style/image.h"
#include "tessel/style/surface_style.h"

namespace tessel {

enum class LayerType : uint64_t { Gradient = 1, Material = 2, Noise = 3, Spatial = 4 };

// The key of a layer: the common fields, then the fields of its type, mixed in order.
uint64_t layerCacheKey(LayerType type, const SurfaceStyle& style, const Rect& rect,
                       int32_t animationStep = 0);

// Blends the cached layer of `key` at `rect`, producing it first on a miss. False when the
// layer is too large to keep: the caller then paints from a buffer of its own.
bool drawCachedLayer(Canvas& canvas, const Rect& rect, uint64_t key,
                     const std::function<void(Image&)>& produce);

// For tests and diagnostics: the keys in the cache from the oldest, and the bytes held.
std::vector<uint64_t> layerCacheKeys();
size_t layerCacheBytes();
void clearLayerCache();

}  // namespace tessel
