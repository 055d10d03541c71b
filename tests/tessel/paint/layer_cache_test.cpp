#include "tessel/paint/layer_cache.h"

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"

namespace tessel {
namespace {

class LayerCache : public ::testing::Test {
 protected:
  void SetUp() override { clearLayerCache(); }
  void TearDown() override { clearLayerCache(); }

  // Draws a layer that fills itself with one opaque colour; counts how often it was made.
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
  EXPECT_TRUE(draw(1));
  EXPECT_EQ(produced, 1);
  EXPECT_EQ(target_.pixel(1, 1)[1], 255);
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
  EXPECT_EQ(keys[keys.size() - 2], 1u);
  EXPECT_EQ(keys.back(), 97u);
  const int before = produced;
  draw(2);
  EXPECT_EQ(produced, before + 1);
}

TEST_F(LayerCache, LargeLayersAreNotKept) {
  // 2896 x 2896 x 4 - 1 is below 32 MiB; 3000 x 3000 is not.
  EXPECT_FALSE(draw(5, Rect{0, 0, 3000, 3000}));
  EXPECT_EQ(produced, 0);
  EXPECT_TRUE(draw(6, Rect{0, 0, 2896, 2896}));
  EXPECT_EQ(layerCacheBytes(), size_t(2896) * 2896 * 4);
  // Four of those exceed 96 MiB: the oldest go.
  draw(7, Rect{0, 0, 2896, 2896});
  draw(8, Rect{0, 0, 2896, 2896});
  draw(9, Rect{0, 0, 2896, 2896});
  EXPECT_LE(layerCacheBytes(), size_t(0x6000000));
  EXPECT_EQ(layerCacheKeys().front(), 7u);
}

TEST(LayerCacheKey, FieldsOfEachTypeCount) {
  SurfaceStyle a;
  SurfaceStyle b = a;
  const Rect rect{10, 20, 30, 40};
  EXPECT_EQ(layerCacheKey(LayerType::Gradient, a, rect),
            layerCacheKey(LayerType::Gradient, b, rect));
  EXPECT_NE(layerCacheKey(LayerType::Gradient, a, rect), layerCacheKey(LayerType::Noise, a, rect));
  b.gradientEnd = 5;
  EXPECT_NE(layerCacheKey(LayerType::Gradient, a, rect),
            layerCacheKey(LayerType::Gradient, b, rect));
  EXPECT_EQ(layerCacheKey(LayerType::Noise, a, rect), layerCacheKey(LayerType::Noise, b, rect));
  // Position counts only under global mapping.
  const Rect moved{50, 60, 30, 40};
  EXPECT_EQ(layerCacheKey(LayerType::Noise, a, rect), layerCacheKey(LayerType::Noise, a, moved));
  a.uvMapping = 1;
  EXPECT_NE(layerCacheKey(LayerType::Noise, a, rect), layerCacheKey(LayerType::Noise, a, moved));
  // uvScale is clamped before it is mixed in.
  SurfaceStyle small = a, smaller = a;
  small.uvScale = 8;
  smaller.uvScale = 0;
  EXPECT_EQ(layerCacheKey(LayerType::Noise, small, rect),
            layerCacheKey(LayerType::Noise, smaller, rect));
  // Negative sizes count as zero.
  EXPECT_EQ(layerCacheKey(LayerType::Noise, a, Rect{0, 0, -5, 3}),
            layerCacheKey(LayerType::Noise, a, Rect{0, 0, 0, 3}));
  // The animation step is part of a material key only.
  EXPECT_NE(layerCacheKey(LayerType::Material, a, rect, 1),
            layerCacheKey(LayerType::Material, a, rect, 2));
}

}  // namespace
}  // namespace tessel
