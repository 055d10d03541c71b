#include "tessel/style/image.h"

#include <algorithm>

namespace tessel {

Image Image::blank(int32_t width, int32_t height) {
  Image image;
  if (width < 1 || height < 1) return image;
  image.width = width;
  image.height = height;
  image.pixels = std::make_shared<std::vector<uint8_t>>(size_t(width) * height * 4, 0);
  image.variants = std::make_shared<ImageVariants>();
  return image;
}

const Image* Image::findVariant(uint64_t key) const {
  if (!variants) return nullptr;
  for (const auto& [entryKey, image] : variants->entries)
    if (entryKey == key) return &image;
  return nullptr;
}

void Image::keepVariant(uint64_t key, const Image& variant) const {
  if (!variants) return;
  auto& entries = variants->entries;
  std::erase_if(entries, [key](const auto& entry) { return entry.first == key; });
  entries.emplace_back(key, variant);
  if (entries.size() > kMaxVariants)
    entries.erase(entries.begin(), entries.end() - std::ptrdiff_t(kMaxVariants));
}

std::vector<uint64_t> Image::variantKeys() const {
  std::vector<uint64_t> keys;
  if (variants)
    for (const auto& entry : variants->entries)
      keys.push_back(entry.first);
  return keys;
}

}  // namespace tessel
