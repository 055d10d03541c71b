#include "tessel/paint/layer_cache.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

class LayerCache : public ::testing::Test {
 protected:
  void SetUp() override { clearLayerCache(); }
  void TearDown() override { clearLayerCache(); }

  // Draws a layer that fills itself with opaque green; counts how often it was made.
  bool draw(uint64_t key, Rect rect = Rect{0, 0, 4, 4}) {
    return drawCachedLayer(canvas_, rect, key, [&](Image& layer) {
      ++produced;
      for (int32_t y = 0; y < layer.height; ++y)
        for (int32_t x = 0; x < layer.width; ++x)
          layer.pixel(x, y)[3] = layer.pixel(x, y)[1] = 255;
    });
  }

  int produced = 0;
  Image target_ = Image::blank(8, 8);
  ImageCanvas canvas_{target_};
};

TEST_F(LayerCache, MissProducesHitReusesAndBlends) {
  EXPECT_TRUE(draw(1));
  std::fill(target_.pixels->begin(), target_.pixels->end(), uint8_t(0));
  EXPECT_TRUE(draw(1, Rect{2, 1, 4, 4}));  // the hit is blended at its place
  EXPECT_EQ(produced, 1);
  EXPECT_EQ(target_.pixel(2, 1)[1], 255);
  EXPECT_EQ(target_.alphaAt(1, 1), 0);
  EXPECT_TRUE(draw(1, Rect{0, 0, 5, 4}));  // another size is another entry
  EXPECT_EQ(produced, 2);
}

TEST_F(LayerCache, NinetySeventhEntryEvictsTheOldestAndAHitProtects) {
  for (uint64_t key = 1; key <= 96; ++key)
    draw(key);
  EXPECT_EQ(layerCacheKeys().size(), 96u);
  draw(1);  // a hit moves key 1 to the end
  draw(97);
  const std::vector<uint64_t> keys = layerCacheKeys();
  ASSERT_EQ(keys.size(), 96u);
  EXPECT_EQ(keys.front(), 3u);  // key 2 was the oldest and went
  EXPECT_EQ(keys[94], 1u);
  const int before = produced;
  draw(2);
  EXPECT_EQ(produced, before + 1);
}

TEST_F(LayerCache, LargeLayersAreNotKept) {
  // 2896 x 2896 x 4 - 1 is below 32 MiB; 2897 x 2896 is not.
  EXPECT_FALSE(draw(5, Rect{0, 0, 2897, 2896}));
  EXPECT_EQ(produced, 0);
  EXPECT_TRUE(draw(6, Rect{0, 0, 2896, 2896}));
  EXPECT_EQ(layerCacheBytes(), size_t(2896) * 2896 * 4);
  // Four of those exceed 96 MiB, three do not: the oldest goes.
  for (uint64_t key : {7, 8, 9})
    draw(key, Rect{0, 0, 2896, 2896});
  EXPECT_EQ(layerCacheKeys(), (std::vector<uint64_t>{7, 8, 9}));
}

TEST(LayerCacheKey, FieldsOfEachTypeCount) {
  SurfaceStyle a, b = a;
  const Rect rect{10, 20, 30, 40}, moved{50, 60, 30, 40};
  const auto key = [](LayerType type, const SurfaceStyle& s, const Rect& r, int32_t step = 0) {
    return layerCacheKey(type, s, r, step);
  };
  EXPECT_NE(key(LayerType::Gradient, a, rect), key(LayerType::Noise, a, rect));
  b.gradientEnd = 5;
  EXPECT_NE(key(LayerType::Gradient, a, rect), key(LayerType::Gradient, b, rect));
  EXPECT_EQ(key(LayerType::Noise, a, rect), key(LayerType::Noise, b, rect));
  // Position counts only under global mapping.
  EXPECT_EQ(key(LayerType::Noise, a, rect), key(LayerType::Noise, a, moved));
  a.uvMapping = 1;
  EXPECT_NE(key(LayerType::Noise, a, rect), key(LayerType::Noise, a, moved));
  // uvScale is clamped before it is mixed in; negative sizes count as zero.
  b = a;
  a.uvScale = 8;
  b.uvScale = 0;
  EXPECT_EQ(key(LayerType::Noise, a, rect), key(LayerType::Noise, b, rect));
  EXPECT_EQ(key(LayerType::Noise, a, {0, 0, -5, 3}), key(LayerType::Noise, a, {0, 0, 0, 3}));
  // The animation step is part of a material key only.
  EXPECT_NE(key(LayerType::Material, a, rect, 1), key(LayerType::Material, a, rect, 2));
  EXPECT_EQ(key(LayerType::Spatial, a, rect, 1), key(LayerType::Spatial, a, rect, 2));
}

}  // namespace
}  // namespace tessel
