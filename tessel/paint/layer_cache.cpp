#include "tessel/paint/layer_cache.h"

#include <algorithm>
#include <vector>

#include "tessel/paint/layer_runs.h"

namespace tessel {

namespace {

struct Entry {
  uint64_t key;
  int32_t width;
  int32_t height;
  Image pixels;
  // Described on the first hit, so that layers painted once cost no extra pass.
  std::vector<LayerRun> runs;
  bool described = false;
};

std::vector<Entry>& cache() {
  static std::vector<Entry> entries;
  return entries;
}

size_t bytesOf(const Entry& entry) {
  return size_t(entry.width) * entry.height * 4;
}

class KeyMixer {
 public:
  explicit KeyMixer(LayerType type)
      : value_((static_cast<uint64_t>(type) ^ 0x14650FB0739D0383ull) * 0x100000001B3ull) {}
  KeyMixer& operator<<(uint64_t field) {
    value_ = (value_ ^ field) * 0x100000001B3ull;
    return *this;
  }
  uint64_t value() const { return value_; }

 private:
  uint64_t value_;
};

uint64_t field(int32_t value) {
  return static_cast<uint64_t>(static_cast<int64_t>(value));
}

}  // namespace

uint64_t layerCacheKey(LayerType type, const SurfaceStyle& s, const Rect& rect,
                       int32_t animationStep) {
  KeyMixer key(type);
  key << field(std::max(rect.width, 0)) << field(std::max(rect.height, 0)) << field(s.uvMapping)
      << field(std::clamp(s.uvScale, 8, 8192)) << field(s.uvOffsetX) << field(s.uvOffsetY);
  if (s.uvMapping == 1) key << field(rect.x) << field(rect.y);
  key << field(static_cast<int32_t>(s.shape));
  switch (type) {
    case LayerType::Gradient:
      key << s.opacity << s.gradientStart << s.gradientMid << s.gradientEnd << field(s.gradientKind)
          << field(s.gradientDirection) << uint64_t(s.useGradientMid);
      break;
    case LayerType::Material:
      key << field(static_cast<int32_t>(s.material)) << s.materialTint << s.backlightColor
          << s.materialStrength << s.highlightOpacity << s.reflectionOpacity << s.grainOpacity
          << s.materialDepth << s.backlightOpacity << s.innerGlow << s.rimLight
          << s.materialLightElevation << s.roughness << s.specular << s.ambientOcclusion
          << s.edgeWear << s.textureOpacity << field(s.materialScale) << field(s.materialAngle)
          << field(s.materialLightAngle) << field(s.lightBlobScale) << field(s.lightBlobAngle)
          << s.noiseSeed << field(s.gradientDirection) << field(s.finish) << field(animationStep);
      break;
    case LayerType::Noise:
      key << s.noise << s.noiseOpacity << s.noiseSeed;
      break;
    case LayerType::Spatial:
      key << s.fill << s.border << s.materialTint << s.backlightColor
          << field(static_cast<int32_t>(s.material)) << s.materialStrength << s.roughness
          << s.specular << s.ambientOcclusion << s.edgeWear << s.textureOpacity << s.rimLight
          << field(s.materialLightAngle) << s.materialLightElevation << s.materialDepth;
      break;
  }
  return key.value();
}

bool drawCachedLayer(Canvas& canvas, const Rect& rect, uint64_t key,
                     const std::function<void(Image&)>& produce) {
  std::vector<Entry>& entries = cache();
  const Rect source{0, 0, rect.width, rect.height};
  for (auto it = entries.begin(); it != entries.end(); ++it) {
    if (it->key != key || it->width != rect.width || it->height != rect.height) continue;
    if (!it->described) {
      it->runs = findLayerRuns(it->pixels);
      it->described = true;
    }
    canvas.blendLayer(it->pixels, it->runs, Point{rect.x, rect.y});
    // A hit becomes the most recently used.
    std::rotate(it, it + 1, entries.end());
    return true;
  }
  if (rect.width < 1 || rect.height < 1) return false;
  if (int64_t(rect.width) * rect.height * 4 - 1 > 0x1FFFFFF) return false;
  Image layer = Image::blank(rect.width, rect.height);
  produce(layer);
  canvas.blendImage(layer, source, rect, 255);
  entries.push_back(Entry{key, rect.width, rect.height, std::move(layer), {}, false});
  size_t total = 0;
  for (const Entry& entry : entries)
    total += bytesOf(entry);
  while (!entries.empty() && (entries.size() >= 97 || total > 0x6000000)) {
    total -= bytesOf(entries.front());
    entries.erase(entries.begin());
  }
  return true;
}

std::vector<uint64_t> layerCacheKeys() {
  std::vector<uint64_t> keys;
  for (const Entry& entry : cache())
    keys.push_back(entry.key);
  return keys;
}

size_t layerCacheBytes() {
  size_t total = 0;
  for (const Entry& entry : cache())
    total += bytesOf(entry);
  return total;
}

void clearLayerCache() {
  cache().clear();
}

}  // namespace tessel
