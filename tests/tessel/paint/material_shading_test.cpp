#include "tessel/paint/material_shading.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <gtest/gtest.h>

#include "tessel/paint/material_layers.h"
#include "tessel/paint/material_noise.h"
#include "tessel/paint/sample_space.h"
#include "tests/tessel/paint/material_reference.h"

namespace tessel {
namespace {

using Profile = UiPerformanceProfile;

bool samePixels(const Image& a, const Image& b) {
  return a.width == b.width && a.height == b.height && *a.pixels == *b.pixels;
}

// The painters follow the formulas in their order of operations, so they agree exactly but for
// a rare one-step rounding difference where pow, exp or sin differ in the last bits.
::testing::AssertionResult agrees(const Image& painted, const Image& expected) {
  if (painted.width != expected.width || painted.height != expected.height)
    return ::testing::AssertionFailure() << "sizes differ";
  int worst = 0;
  size_t differing = 0;
  const size_t total = painted.pixels->size();
  for (size_t i = 0; i < total; ++i) {
    const int d = std::abs(int((*painted.pixels)[i]) - int((*expected.pixels)[i]));
    worst = std::max(worst, d);
    differing += d > 0;
  }
  if (worst <= 1 && differing * 1000 <= total) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "worst difference " << worst << ", " << differing << " of " << total << " bytes differ";
}

// The number of pixels with some alpha, and the largest alpha.
std::pair<int, int> visible(const Image& image) {
  std::pair<int, int> seen{0, 0};
  for (int32_t y = 0; y < image.height; ++y) {
    for (int32_t x = 0; x < image.width; ++x) {
      seen.first += image.alphaAt(x, y) > 0;
      seen.second = std::max<int>(seen.second, image.alphaAt(x, y));
    }
  }
  return seen;
}

SurfaceStyle material(MaterialKind kind, uint8_t strength = 180) {
  SurfaceStyle s;
  s.material = kind;
  s.materialStrength = strength;
  return s;
}

Image overlay(const SurfaceStyle& style, const Rect& rect, Profile profile = Profile::BestGraphics,
              double phase = 0) {
  Image layer;
  drawMaterialOverlay(layer, style, rect, profile, phase);
  return layer;
}

Image spatial(const SurfaceStyle& style, const Rect& rect) {
  Image layer;
  drawSpatialSurfaceShading(layer, style, rect, Profile::BestGraphics);
  return layer;
}

// The overlay's alpha is clamped at 255, not wrapped (Glass's top row carries the full highlight
// and more); the spatial shading's is capped at 190.
TEST(MaterialLayers, AlphaSaturates) {
  SurfaceStyle s = material(MaterialKind::Glass, 255);
  s.highlightOpacity = s.reflectionOpacity = 255;
  const Image layer = overlay(s, {0, 0, 30, 20});
  for (int32_t x = 0; x < 30; ++x)
    EXPECT_EQ(layer.alphaAt(x, 0), 255) << x;
  s = material(MaterialKind::Granite, 255);
  s.materialDepth = s.ambientOcclusion = s.edgeWear = s.specular = 255;
  EXPECT_EQ(visible(spatial(s, {0, 0, 80, 40})).second, 190);
}

enum class Layer { Overlay, Noise, Spatial };

TEST(MaterialLayers, GatesFollowTheProfileAndTheArea) {
  const Profile kBest = Profile::BestGraphics, kBalanced = Profile::Balanced,
                kFastest = Profile::MaximumPerformance;
  const MaterialKind kGloss = MaterialKind::Gloss, kLuminous = MaterialKind::LuminousGlass,
                     kNone = MaterialKind::None;
  const struct {
    const char* what;
    Layer layer;
    MaterialKind kind;
    int32_t width, height;
    Profile profile;
    bool drawn;
  } kCases[] = {
      {"overlay: 180,000 balanced", Layer::Overlay, kGloss, 600, 300, kBalanced, true},
      {"overlay: 180,300 balanced", Layer::Overlay, kGloss, 601, 300, kBalanced, false},
      {"overlay: any size at best", Layer::Overlay, kGloss, 601, 300, kBest, true},
      {"overlay: maximum performance", Layer::Overlay, kGloss, 10, 10, kFastest, false},
      {"luminous: 360,000 balanced", Layer::Overlay, kLuminous, 720, 500, kBalanced, true},
      {"luminous: 360,500 balanced", Layer::Overlay, kLuminous, 721, 500, kBalanced, false},
      {"luminous: maximum performance", Layer::Overlay, kLuminous, 10, 10, kFastest, true},
      {"overlay: no material", Layer::Overlay, kNone, 10, 10, kBest, false},
      {"overlay: an empty rectangle", Layer::Overlay, kGloss, 0, 10, kBest, false},
      {"noise: 90,000 balanced", Layer::Noise, kNone, 300, 300, kBalanced, true},
      {"noise: 90,300 balanced", Layer::Noise, kNone, 301, 300, kBalanced, false},
      {"noise: maximum performance", Layer::Noise, kNone, 10, 10, kFastest, false},
      {"spatial: 6 high", Layer::Spatial, kGloss, 40, 6, kBest, false},
      {"spatial: 6 wide", Layer::Spatial, kGloss, 6, 40, kBest, false},
      {"spatial: 7 by 7", Layer::Spatial, kGloss, 7, 7, kBest, true},
      {"spatial: no material", Layer::Spatial, kNone, 40, 40, kBest, false},
      {"spatial: 220,000 balanced", Layer::Spatial, kGloss, 1000, 220, kBalanced, true},
      {"spatial: 220,220 balanced", Layer::Spatial, kGloss, 1001, 220, kBalanced, false},
      {"spatial: maximum performance", Layer::Spatial, kGloss, 40, 40, kFastest, false},
  };
  for (const auto& c : kCases) {
    SurfaceStyle s = material(c.kind);
    s.materialDepth = 120;
    s.useNoise = true;
    s.noiseOpacity = 60;
    Image layer;
    const Rect rect{0, 0, c.width, c.height};
    const bool drawn = c.layer == Layer::Overlay ? drawMaterialOverlay(layer, s, rect, c.profile, 0)
                       : c.layer == Layer::Noise
                           ? drawNoise(layer, s, rect, c.profile)
                           : drawSpatialSurfaceShading(layer, s, rect, c.profile);
    EXPECT_EQ(drawn, c.drawn) << c.what;
    // A layer that doesn't run leaves the image alone; one that runs paints something.
    EXPECT_EQ(visible(layer).first > 0, c.drawn) << c.what;
    EXPECT_EQ(layer.empty(), !c.drawn) << c.what;
  }
}

TEST(MaterialLayers, SwitchedOffSettingsOrAnotherSizePaintNothing) {
  Image layer;
  SurfaceStyle s = material(MaterialKind::Granite, 0);
  EXPECT_FALSE(drawMaterialOverlay(layer, s, {0, 0, 20, 20}, Profile::BestGraphics, 0));
  s = material(MaterialKind::Granite);
  s.materialDepth = 0;
  EXPECT_FALSE(drawSpatialSurfaceShading(layer, s, {0, 0, 20, 20}, Profile::BestGraphics));
  s.useNoise = false;
  s.noiseOpacity = 100;
  EXPECT_FALSE(drawNoise(layer, s, {0, 0, 20, 20}, Profile::BestGraphics));
  s.useNoise = true;
  s.noiseOpacity = 0;
  EXPECT_FALSE(drawNoise(layer, s, {0, 0, 20, 20}, Profile::BestGraphics));
  EXPECT_TRUE(layer.empty());
  // An intensity below 0.16 skips the spatial layer.
  s = material(MaterialKind::Metal, 64);
  s.materialDepth = 1;
  s.ambientOcclusion = s.edgeWear = s.specular = 0;
  EXPECT_FALSE(drawSpatialSurfaceShading(layer, s, {0, 0, 40, 40}, Profile::BestGraphics));
  EXPECT_TRUE(layer.empty());
  // A layer of another size is refused; a fresh one takes the rectangle's size.
  layer = Image::blank(10, 10);
  EXPECT_FALSE(drawMaterialOverlay(layer, s, {0, 0, 12, 10}, Profile::BestGraphics, 0));
  EXPECT_EQ(visible(layer).first, 0);
  Image fresh;
  EXPECT_TRUE(drawMaterialOverlay(fresh, s, {5, 5, 12, 10}, Profile::BestGraphics, 0));
  EXPECT_EQ(fresh.width, 12);
  EXPECT_EQ(fresh.height, 10);
}

// The relief light follows the glow gate: LuminousGlass over 220,000 pixels still has its
// overlay when balanced, but flat.
TEST(MaterialOverlay, ReliefNeedsTheGlowGate) {
  SurfaceStyle flat = material(MaterialKind::LuminousGlass), deep = flat;
  deep.materialDepth = 200;
  for (const auto& [rect, same] :
       {std::pair{Rect{0, 0, 700, 400}, true}, std::pair{Rect{0, 0, 70, 40}, false}})
    EXPECT_EQ(
        samePixels(overlay(deep, rect, Profile::Balanced), overlay(flat, rect, Profile::Balanced)),
        same);
}

TEST(MaterialOverlay, LuminousGlassMovesButKeepsACheapStillFormUnderMaximumPerformance) {
  SurfaceStyle s = material(MaterialKind::LuminousGlass);
  const Rect rect{0, 0, 64, 40};
  EXPECT_FALSE(samePixels(overlay(s, rect), overlay(s, rect, Profile::BestGraphics, 0.25)));
  s.materialDepth = 150;
  const Image cheap = overlay(s, rect, Profile::MaximumPerformance, 0);
  EXPECT_GT(visible(cheap).first, 0);
  EXPECT_TRUE(agrees(cheap, reference::materialOverlay(s, rect)));
  // No motion, no blob, no relief; and it is not the full form.
  EXPECT_TRUE(samePixels(cheap, overlay(s, rect, Profile::MaximumPerformance, 0.5)));
  SurfaceStyle otherBlob = s;
  otherBlob.lightBlobScale = 40;
  otherBlob.lightBlobAngle = 70;
  otherBlob.materialDepth = 0;
  EXPECT_TRUE(samePixels(cheap, overlay(otherBlob, rect, Profile::MaximumPerformance, 0)));
  EXPECT_FALSE(samePixels(cheap, overlay(s, rect)));
}

TEST(MaterialOverlay, AnimationPhaseHas64StepsPerPeriod) {
  const Profile kBest = Profile::BestGraphics;
  const struct {
    const char* what;
    MaterialKind kind;
    Profile profile;
    int32_t speed;
    uint64_t tick;
    double expected;
  } kCases[] = {
      {"speed 1: a period of 60 s, first step", MaterialKind::LuminousGlass, kBest, 1, 937, 0.0},
      {"speed 1: second step at 938 ms", MaterialKind::LuminousGlass, kBest, 1, 938, 1 / 64.0},
      {"speed 30: wraps after 2 s", MaterialKind::LuminousGlass, kBest, 30, 2000, 0.0},
      {"speed 100: wraps after 1.6 s", MaterialKind::LuminousGlass, kBest, 100, 2400, 32 / 64.0},
      {"speed above 255 counts as 255", MaterialKind::LuminousGlass, kBest, 1000, 1599, 63 / 64.0},
      {"negative speed is still", MaterialKind::LuminousGlass, kBest, -5, 5000, 0.0},
      {"balanced is still", MaterialKind::LuminousGlass, Profile::Balanced, 30, 1000, 0.0},
      {"other kinds are still", MaterialKind::Glass, kBest, 30, 1000, 0.0},
  };
  for (const auto& c : kCases) {
    SurfaceStyle s = material(c.kind);
    s.animationSpeed = c.speed;
    EXPECT_EQ(animationPhase(s, c.profile, c.tick), c.expected) << c.what;
  }
}

TEST(SampleSpace, GlobalScaleIsClampedTo8Through8192AndCoordinatesMirrorIntoTheSlab) {
  SurfaceStyle s;
  s.uvMapping = 1;
  for (const auto& [scale, slab] : {std::pair{7, 8}, {8, 8}, {300, 300}, {8193, 8192}}) {
    s.uvScale = scale;
    const SampleSpace space = sampleSpace(s, {0, 0, 10, 10});
    EXPECT_EQ(space.x.slab, slab) << scale;
    EXPECT_EQ(space.x.extent, slab + 1.0) << scale;
  }
  s.uvScale = 8;
  s.uvOffsetX = 2;
  const SampleSpace space = sampleSpace(s, {-12, 30, 40, 10});
  // World x runs from -10; mirrored with a period of 16.
  const int64_t expected[] = {6, 7, 8, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 7};
  for (int32_t i = 0; i < 20; ++i) {
    EXPECT_EQ(space.x.world(i), -10 + i);
    EXPECT_EQ(space.x.sample(i), expected[i]) << i;
  }
  EXPECT_DOUBLE_EQ(space.x.t(2), 1.0);
  EXPECT_DOUBLE_EQ(space.y.t(0), 0.25);  // world 30 mirrors to 2
  // Local mapping: the pixel itself, over the size.
  s.uvMapping = 0;
  const SampleSpace local = sampleSpace(s, {-12, 30, 41, 1});
  EXPECT_EQ(local.x.world(5), 5);
  EXPECT_DOUBLE_EQ(local.x.t(10), 0.25);
  EXPECT_DOUBLE_EQ(local.y.t(0), 0.0);  // an extent of 1
  // And the layers see the clamped scale.
  SurfaceStyle a = material(MaterialKind::Marble), b = a;
  a.uvMapping = b.uvMapping = 1;
  a.uvScale = 0;
  b.uvScale = 8;
  EXPECT_TRUE(samePixels(overlay(a, {3, 5, 30, 20}), overlay(b, {3, 5, 30, 20})));
}

// Under global mapping neighbouring surfaces continue one texture: two halves paint what the
// whole would, for kinds the reference doesn't know.
TEST(MaterialOverlay, GlobalMappingRunsAcrossNeighbours) {
  const auto pixel = [](const Image& image, int32_t x, int32_t y) {
    return std::vector<uint8_t>(image.pixel(x, y), image.pixel(x, y) + 4);
  };
  const std::pair<MaterialKind, uint8_t> kSeams[] = {{MaterialKind::Granite, 0},
                                                     {MaterialKind::ObsidianRelief, 0},
                                                     {MaterialKind::CarbonFiber, 90},
                                                     {MaterialKind::Gemstone, 90}};
  for (const auto& [kind, depth] : kSeams) {
    SurfaceStyle s = material(kind);
    s.uvMapping = 1;
    s.uvScale = 512;
    s.materialDepth = depth;
    s.finish = 6;
    const Image whole = overlay(s, {20, 10, 60, 30}), left = overlay(s, {20, 10, 25, 30}),
                right = overlay(s, {45, 10, 35, 30});
    for (int32_t y = 0; y < 30; ++y)
      for (int32_t x = 0; x < 60; ++x)
        ASSERT_EQ(x < 25 ? pixel(left, x, y) : pixel(right, x - 25, y), pixel(whole, x, y))
            << int(kind) << " at " << x << "," << y;
  }
}

// Pixels whose alpha rounds to 0 are left as they were: the painters write no zeros. (That they
// write only inside the outline, the reference comparisons show.)
TEST(MaterialOverlay, WritesNoZeros) {
  const SurfaceStyle s = material(MaterialKind::Paper);  // alpha |127 - g| * 20 / 127 ~ 0 at 127
  const Rect paper{0, 0, 96, 64};
  Image expected = overlay(s, paper), layer = Image::blank(paper.width, paper.height);
  std::fill(layer.pixels->begin(), layer.pixels->end(), uint8_t(0x5A));
  ASSERT_TRUE(drawMaterialOverlay(layer, s, paper, Profile::BestGraphics, 0));
  const int untouched = paper.width * paper.height - visible(expected).first;
  for (size_t i = 0; i < expected.pixels->size(); i += 4)
    if ((*expected.pixels)[i + 3] == 0) std::fill_n(expected.pixels->begin() + i, 4, 0x5A);
  EXPECT_TRUE(samePixels(layer, expected));
  EXPECT_GT(untouched, 0);
  EXPECT_LT(untouched, paper.width * paper.height);
}

// A mask rules the outline instead of the shape: coverage at or above alphaThreshold.
TEST(MaterialLayers, AMaskRulesTheOutline) {
  SurfaceStyle s = material(MaterialKind::Glass, 200);
  s.mask = Image::blank(8, 8);
  for (int32_t y = 0; y < 8; ++y)
    for (int32_t x = 0; x < 8; ++x)
      s.mask.pixel(x, y)[3] = uint8_t((x + y) % 3 == 0 ? 0 : 200);
  s.geometryMode = GeometryMode::MaskAlphaLayout;
  s.alphaThreshold = 100;
  const Rect rect{0, 0, 32, 24};
  const Image layer = overlay(s, rect);
  for (int32_t y = 0; y < rect.height; ++y)
    for (int32_t x = 0; x < rect.width; ++x)
      ASSERT_TRUE((x / 4 + y * 8 / 24) % 3 != 0 || layer.alphaAt(x, y) == 0) << x << "," << y;
  EXPECT_TRUE(agrees(layer, reference::materialOverlay(s, rect)));
  s.materialDepth = 100;
  const Image shading = spatial(s, rect);
  ASSERT_FALSE(shading.empty());
  EXPECT_TRUE(agrees(shading, reference::spatialShading(s, rect)));
}

// --- Agreement with the plain transcription ----------------------------------------------------

struct Painters {
  const char* name;
  void (*overlay)(Image&, const SurfaceStyle&, const Rect&, uint8_t, bool, double);
  void (*spatial)(Image&, const SurfaceStyle&, const Rect&);
  void (*noise)(Image&, const SurfaceStyle&, const Rect&);
};

std::vector<Painters> availablePainters() {
  namespace m = material_layers;
  std::vector<Painters> list = {{"baseline", m::baseline::paintOverlay,
                                 m::baseline::paintSpatialShading, m::baseline::paintNoise}};
  if (m::avx2Available())
    list.push_back(
        {"avx2", m::avx2::paintOverlay, m::avx2::paintSpatialShading, m::avx2::paintNoise});
  return list;
}

// The kinds the reference knows, both mappings (the global one crossing a fold of the slab) and a
// few shapes: the row-wise painters stay within one step of the formulas.
TEST(MaterialOverlay, AgreesWithThePerPixelFormulas) {
  for (const Painters& painters : availablePainters()) {
    for (const MaterialKind k : reference::kReferenceKinds) {
      const int32_t kind = int32_t(k);
      for (int variant = 0; variant < 8; ++variant) {
        SurfaceStyle s = material(k, uint8_t(150 + variant * 13));
        s.gradientDirection = (kind + variant) % 8;
        s.shape = ShapeKind((kind * 3 + variant) % 9);
        s.materialAngle = variant * 37 - 60;
        s.materialScale = 6 + variant * 5;
        s.materialTint = rgbColor(200 + variant * 7, 150 + kind * 5, 120);
        s.uvMapping = variant >= 4 ? 1 : 0;
        s.uvScale = 30;
        s.uvOffsetX = -7;
        const Rect rect{variant >= 4 ? -50 + variant : 3, variant == 6 ? 25 : 2, 44, 30};
        Image layer = Image::blank(rect.width, rect.height);
        painters.overlay(layer, s, rect, 0, k == MaterialKind::LuminousGlass, 0);
        const Image expected = reference::materialOverlay(s, rect);
        ASSERT_TRUE(agrees(layer, expected))
            << painters.name << " kind " << kind << " variant " << variant;
        EXPECT_GT(visible(expected).first, 0) << kind << " " << variant;
      }
    }
  }
}

TEST(SpatialShading, AgreesWithThePerPixelFormulas) {
  for (const Painters& painters : availablePainters()) {
    for (int32_t kind = 1; kind <= 18; ++kind) {
      for (int variant = 0; variant < 4; ++variant) {
        // Strengths from 40, below the 64 a weak one counts as.
        SurfaceStyle s = material(MaterialKind(kind), uint8_t(40 + variant * 70));
        s.materialDepth = uint8_t(110 + variant * 45);
        s.ambientOcclusion = uint8_t(100 + variant * 40);
        s.edgeWear = uint8_t(20 + variant * 50);
        s.specular = uint8_t(60 + variant * 60);
        s.shape = ShapeKind((kind + variant * 2) % 9);
        s.materialLightAngle = -45 + variant * 100;
        s.fill = rgbColor(40, 60, 90);
        // Wide, tall and square: the tube runs across the height, the width, or not at all.
        const Rect rect = variant == 1   ? Rect{0, 0, 90, 20}
                          : variant == 2 ? Rect{0, 0, 16, 70}
                                         : Rect{0, 0, 40, 36};
        ASSERT_GE(material_layers::spatialIntensity(s), 0.16);
        Image layer = Image::blank(rect.width, rect.height);
        painters.spatial(layer, s, rect);
        ASSERT_TRUE(agrees(layer, reference::spatialShading(s, rect)))
            << painters.name << " kind " << kind << " variant " << variant;
      }
    }
  }
}

// The noise is trunc(low byte of the hash * opacity / 255) in the noise colour: at world
// (-3, -2) hashCell(0x9E3779B9, -3, -2) = 0x3CE36D6E, 0x6E = 110, 110 * 200 / 255 = 86.3 -> 86.
TEST(MaterialNoiseLayer, AgreesWithTheByteWorkedOutByHandAndThePerPixelFormula) {
  SurfaceStyle s;
  s.useNoise = true;
  s.noiseOpacity = 200;
  s.uvMapping = 1;
  Image layer;
  ASSERT_TRUE(drawNoise(layer, s, {-3, -2, 4, 4}, Profile::BestGraphics));
  EXPECT_EQ(std::vector<uint8_t>(layer.pixel(0, 0), layer.pixel(0, 0) + 4),
            std::vector<uint8_t>(4, 86));
  s.noiseOpacity = 140;
  s.noise = rgbColor(200, 100, 50);
  s.shape = ShapeKind::Octagon;
  const Rect rect{-20, 7, 37, 23};
  for (const Painters& painters : availablePainters()) {
    Image painted = Image::blank(rect.width, rect.height);
    painters.noise(painted, s, rect);
    EXPECT_TRUE(samePixels(painted, reference::noiseLayer(s, rect))) << painters.name;
  }
}

}  // namespace
}  // namespace tessel
