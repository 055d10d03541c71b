#include "tessel/paint/material_shading.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tessel/paint/material_layers.h"
#include "tessel/paint/material_noise.h"
#include "tessel/paint/sample_space.h"
#include "tessel/paint/shape_geometry.h"
#include "tests/tessel/paint/material_reference.h"

namespace tessel {
namespace {

using Profile = UiPerformanceProfile;

uint8_t alphaAt(const Image& image, int32_t x, int32_t y) {
  return image.pixel(x, y)[3];
}

int maxDifference(const Image& a, const Image& b) {
  if (a.width != b.width || a.height != b.height) return 256;
  int worst = 0;
  for (size_t i = 0; i < a.pixels->size(); ++i)
    worst = std::max(worst, std::abs(int((*a.pixels)[i]) - int((*b.pixels)[i])));
  return worst;
}

bool samePixels(const Image& a, const Image& b) {
  return maxDifference(a, b) == 0;
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

int countVisible(const Image& image) {
  int n = 0;
  for (int32_t y = 0; y < image.height; ++y)
    for (int32_t x = 0; x < image.width; ++x)
      n += alphaAt(image, x, y) > 0;
  return n;
}

int maxAlpha(const Image& image) {
  int m = 0;
  for (int32_t y = 0; y < image.height; ++y)
    for (int32_t x = 0; x < image.width; ++x)
      m = std::max<int>(m, alphaAt(image, x, y));
  return m;
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

Image spatial(const SurfaceStyle& style, const Rect& rect,
              Profile profile = Profile::BestGraphics) {
  Image layer;
  drawSpatialSurfaceShading(layer, style, rect, profile);
  return layer;
}

// --- Strength and saturation -------------------------------------------------------------------

// Gloss with a white tint paints white, and on a 1 x 51 surface row 11 sits at ty = 0.22, where
// its band peaks: with highlightOpacity 100 and no reflection the accumulated alpha is 100.
struct StrengthCase {
  uint8_t strength;
  uint8_t expectedAlpha;
};

const StrengthCase kStrengthCases[] = {
    {180, 100},          // neutral
    {90, 50},            // halves
    {255, 142},          // 100 * 255 / 180 = 141.7, rounded
    {18, 10},   {1, 1},  // 0.56 rounds up
};

TEST(MaterialOverlay, StrengthScalesTheAccumulatedAlpha) {
  for (const StrengthCase& c : kStrengthCases) {
    SurfaceStyle s = material(MaterialKind::Gloss, c.strength);
    s.highlightOpacity = 100;
    s.reflectionOpacity = 0;
    const Image layer = overlay(s, {0, 0, 1, 51});
    ASSERT_FALSE(layer.empty());
    const uint8_t* p = layer.pixel(0, 11);
    EXPECT_EQ(p[3], c.expectedAlpha) << "strength " << int(c.strength);
    // White, premultiplied: every channel equals the alpha.
    EXPECT_EQ(p[0], c.expectedAlpha);
    EXPECT_EQ(p[2], c.expectedAlpha);
  }
}

TEST(MaterialOverlay, AlphaSaturatesAt255) {
  SurfaceStyle s = material(MaterialKind::Glass, 255);
  s.highlightOpacity = 255;
  s.reflectionOpacity = 255;
  const Image layer = overlay(s, {0, 0, 30, 20});
  // The top row carries the full highlight and more: clamped, not wrapped.
  for (int32_t x = 0; x < 30; ++x)
    EXPECT_EQ(alphaAt(layer, x, 0), 255) << x;
}

// --- Gates ---------------------------------------------------------------------------------------

enum class Layer { Overlay, Noise, Spatial };

struct GateCase {
  const char* what;
  Layer layer;
  MaterialKind kind;
  int32_t width, height;
  Profile profile;
  bool drawn;
};

const GateCase kGateCases[] = {
    {"overlay at 180,000 pixels when balanced", Layer::Overlay, MaterialKind::Gloss, 600, 300,
     Profile::Balanced, true},
    {"overlay at 180,300 pixels when balanced", Layer::Overlay, MaterialKind::Gloss, 601, 300,
     Profile::Balanced, false},
    {"overlay of any size at best graphics", Layer::Overlay, MaterialKind::Gloss, 601, 300,
     Profile::BestGraphics, true},
    {"overlay under maximum performance", Layer::Overlay, MaterialKind::Gloss, 10, 10,
     Profile::MaximumPerformance, false},
    {"glass under maximum performance", Layer::Overlay, MaterialKind::Glass, 10, 10,
     Profile::MaximumPerformance, false},
    {"luminous glass up to 360,000 when balanced", Layer::Overlay, MaterialKind::LuminousGlass, 720,
     500, Profile::Balanced, true},
    {"luminous glass beyond 360,000 when balanced", Layer::Overlay, MaterialKind::LuminousGlass,
     721, 500, Profile::Balanced, false},
    {"luminous glass under maximum performance", Layer::Overlay, MaterialKind::LuminousGlass, 10,
     10, Profile::MaximumPerformance, true},
    {"no material", Layer::Overlay, MaterialKind::None, 10, 10, Profile::BestGraphics, false},
    {"an empty rectangle", Layer::Overlay, MaterialKind::Gloss, 0, 10, Profile::BestGraphics,
     false},
    {"noise at 90,000 pixels when balanced", Layer::Noise, MaterialKind::None, 300, 300,
     Profile::Balanced, true},
    {"noise at 90,300 pixels when balanced", Layer::Noise, MaterialKind::None, 301, 300,
     Profile::Balanced, false},
    {"noise of any size at best graphics", Layer::Noise, MaterialKind::None, 301, 300,
     Profile::BestGraphics, true},
    {"noise under maximum performance", Layer::Noise, MaterialKind::None, 10, 10,
     Profile::MaximumPerformance, false},
    {"spatial layer 6 high", Layer::Spatial, MaterialKind::Gloss, 40, 6, Profile::BestGraphics,
     false},
    {"spatial layer 6 wide", Layer::Spatial, MaterialKind::Gloss, 6, 40, Profile::BestGraphics,
     false},
    {"spatial layer 7 wide", Layer::Spatial, MaterialKind::Gloss, 7, 40, Profile::BestGraphics,
     true},
    {"spatial layer 7 by 7", Layer::Spatial, MaterialKind::Gloss, 7, 7, Profile::BestGraphics,
     true},
    {"spatial layer without material", Layer::Spatial, MaterialKind::None, 40, 40,
     Profile::BestGraphics, false},
    {"spatial layer at 220,000 pixels when balanced", Layer::Spatial, MaterialKind::Gloss, 1000,
     220, Profile::Balanced, true},
    {"spatial layer at 220,220 pixels when balanced", Layer::Spatial, MaterialKind::Gloss, 1001,
     220, Profile::Balanced, false},
    {"spatial layer under maximum performance", Layer::Spatial, MaterialKind::Gloss, 40, 40,
     Profile::MaximumPerformance, false},
};

TEST(MaterialLayers, GatesFollowTheProfileAndTheArea) {
  for (const GateCase& c : kGateCases) {
    SurfaceStyle s = material(c.kind);
    s.materialDepth = 120;
    s.useNoise = true;
    s.noiseOpacity = 60;
    Image layer;
    const Rect rect{0, 0, c.width, c.height};
    bool drawn = false;
    switch (c.layer) {
      case Layer::Overlay:
        drawn = drawMaterialOverlay(layer, s, rect, c.profile, 0);
        break;
      case Layer::Noise:
        drawn = drawNoise(layer, s, rect, c.profile);
        break;
      case Layer::Spatial:
        drawn = drawSpatialSurfaceShading(layer, s, rect, c.profile);
        break;
    }
    EXPECT_EQ(drawn, c.drawn) << c.what;
    // A layer that doesn't run leaves the image alone; one that runs paints something.
    if (c.drawn) {
      EXPECT_GT(countVisible(layer), 0) << c.what;
    } else {
      EXPECT_TRUE(layer.empty()) << c.what;
    }
  }
}

TEST(MaterialLayers, SwitchedOffSettingsPaintNothing) {
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
}

TEST(MaterialLayers, ALayerOfAnotherSizeIsRefused) {
  Image layer = Image::blank(10, 10);
  const SurfaceStyle s = material(MaterialKind::Gloss);
  EXPECT_FALSE(drawMaterialOverlay(layer, s, {0, 0, 12, 10}, Profile::BestGraphics, 0));
  EXPECT_EQ(countVisible(layer), 0);
  Image fresh;
  EXPECT_TRUE(drawMaterialOverlay(fresh, s, {5, 5, 12, 10}, Profile::BestGraphics, 0));
  EXPECT_EQ(fresh.width, 12);
  EXPECT_EQ(fresh.height, 10);
}

// The relief light follows the glow gate: LuminousGlass over 220,000 pixels still has its
// overlay when balanced, but flat.
TEST(MaterialOverlay, ReliefNeedsTheGlowGate) {
  SurfaceStyle flat = material(MaterialKind::LuminousGlass);
  SurfaceStyle deep = flat;
  deep.materialDepth = 200;
  const Rect large{0, 0, 700, 400};
  EXPECT_TRUE(
      samePixels(overlay(deep, large, Profile::Balanced), overlay(flat, large, Profile::Balanced)));
  const Rect small{0, 0, 70, 40};
  EXPECT_FALSE(
      samePixels(overlay(deep, small, Profile::Balanced), overlay(flat, small, Profile::Balanced)));
}

// --- LuminousGlass: cheap form and motion --------------------------------------------------------

TEST(MaterialOverlay, LuminousGlassKeepsACheapStillFormUnderMaximumPerformance) {
  SurfaceStyle s = material(MaterialKind::LuminousGlass);
  s.materialDepth = 150;
  const Rect rect{0, 0, 64, 40};
  const Image cheap = overlay(s, rect, Profile::MaximumPerformance, 0);
  ASSERT_FALSE(cheap.empty());
  EXPECT_GT(countVisible(cheap), 0);
  // No motion, no blob, no relief.
  EXPECT_TRUE(samePixels(cheap, overlay(s, rect, Profile::MaximumPerformance, 0.5)));
  SurfaceStyle otherBlob = s;
  otherBlob.lightBlobScale = 40;
  otherBlob.lightBlobAngle = 70;
  otherBlob.materialDepth = 0;
  EXPECT_TRUE(samePixels(cheap, overlay(otherBlob, rect, Profile::MaximumPerformance, 0)));
  // And it is not the full form.
  EXPECT_FALSE(samePixels(cheap, overlay(s, rect, Profile::BestGraphics, 0)));
  EXPECT_TRUE(agrees(cheap, reference::materialOverlay(s, rect, 0, true, 0)));
}

TEST(MaterialOverlay, LuminousGlassMovesWithThePhase) {
  const SurfaceStyle s = material(MaterialKind::LuminousGlass);
  const Rect rect{0, 0, 64, 40};
  const Image still = overlay(s, rect, Profile::BestGraphics, 0);
  const Image moved = overlay(s, rect, Profile::BestGraphics, 0.25);
  EXPECT_FALSE(samePixels(still, moved));
  EXPECT_TRUE(agrees(moved, reference::materialOverlay(s, rect, 0, false, 0.25)));
}

struct PhaseCase {
  const char* what;
  MaterialKind kind;
  Profile profile;
  int32_t speed;
  uint64_t tick;
  double expected;
};

const PhaseCase kPhaseCases[] = {
    {"speed 1: a period of 60 s, first step", MaterialKind::LuminousGlass, Profile::BestGraphics, 1,
     937, 0.0},
    {"speed 1: second step at 938 ms", MaterialKind::LuminousGlass, Profile::BestGraphics, 1, 938,
     1 / 64.0},
    {"speed 30: a period of 2 s", MaterialKind::LuminousGlass, Profile::BestGraphics, 30, 1999,
     63 / 64.0},
    {"speed 30: wraps after 2 s", MaterialKind::LuminousGlass, Profile::BestGraphics, 30, 2000,
     0.0},
    {"speed 100: at least 1.6 s", MaterialKind::LuminousGlass, Profile::BestGraphics, 100, 25,
     1 / 64.0},
    {"speed 100: wraps after 1.6 s", MaterialKind::LuminousGlass, Profile::BestGraphics, 100,
     1600 + 800, 32 / 64.0},
    {"speed above 255 counts as 255", MaterialKind::LuminousGlass, Profile::BestGraphics, 1000,
     1599, 63 / 64.0},
    {"speed 0 is still", MaterialKind::LuminousGlass, Profile::BestGraphics, 0, 5000, 0.0},
    {"negative speed is still", MaterialKind::LuminousGlass, Profile::BestGraphics, -5, 5000, 0.0},
    {"balanced is still", MaterialKind::LuminousGlass, Profile::Balanced, 30, 1000, 0.0},
    {"other kinds are still", MaterialKind::Glass, Profile::BestGraphics, 30, 1000, 0.0},
};

TEST(MaterialOverlay, AnimationPhaseHas64StepsPerPeriod) {
  for (const PhaseCase& c : kPhaseCases) {
    SurfaceStyle s = material(c.kind);
    s.animationSpeed = c.speed;
    EXPECT_EQ(animationPhase(s, c.profile, c.tick), c.expected) << c.what;
  }
  SurfaceStyle s = material(MaterialKind::LuminousGlass);
  for (int32_t speed : {1, 7, 37, 38, 200, 255}) {
    s.animationSpeed = speed;
    for (uint64_t tick = 0; tick < 130000; tick += 97) {
      const double steps = animationPhase(s, Profile::BestGraphics, tick) * 64;
      ASSERT_EQ(steps, double(int(steps))) << speed << " " << tick;
      ASSERT_GE(steps, 0);
      ASSERT_LT(steps, 64);
    }
  }
}

// --- Grain and hashing -----------------------------------------------------------------------

struct GrainCase {
  MaterialKind kind;
  uint8_t implied;
};

// Kinds whose look reads G: a grain of 0 paints as the implied one, and the grain matters.
const GrainCase kGrainCases[] = {
    {MaterialKind::Paper, 20},        {MaterialKind::FrostedGlass, 18},
    {MaterialKind::Metal, 12},        {MaterialKind::Rubber, 18},
    {MaterialKind::CarbonFiber, 32},  {MaterialKind::AmberGlass, 5},
    {MaterialKind::LuminousGlass, 2},
};

TEST(MaterialOverlay, GrainZeroTakesTheKindsDefault) {
  for (const GrainCase& c : kGrainCases) {
    SurfaceStyle implicit = material(c.kind);
    SurfaceStyle explicitGrain = implicit;
    explicitGrain.grainOpacity = c.implied;
    SurfaceStyle other = implicit;
    other.grainOpacity = uint8_t(c.implied + 40);
    const Rect rect{0, 0, 48, 32};
    EXPECT_TRUE(samePixels(overlay(implicit, rect), overlay(explicitGrain, rect))) << int(c.kind);
    EXPECT_FALSE(samePixels(overlay(implicit, rect), overlay(other, rect))) << int(c.kind);
  }
  EXPECT_EQ(defaultGrainOpacity(MaterialKind::Glass), 0);
  EXPECT_EQ(defaultGrainOpacity(MaterialKind::Paper), 20);
}

// Paper's grain under global mapping at a negative world position: the hash takes the two's
// complement of (-3, -2), whose low byte (worked out by hand) is 0xF1.
TEST(MaterialOverlay, NegativeWorldCoordinatesHashAsUnsigned) {
  SurfaceStyle s = material(MaterialKind::Paper);
  s.uvMapping = 1;
  const Image layer = overlay(s, {-3, -2, 4, 4});
  // g = 241 >= 127: the highlight, alpha |127 - 241| * 20 / 127 = 17.95.
  EXPECT_EQ(alphaAt(layer, 0, 0), 18);
  EXPECT_EQ(hashCell(s.noiseSeed ^ kOverlayGrainTag, uint32_t(-3), uint32_t(-2)) & 0xFF, 0xF1u);
}

TEST(MaterialNoiseLayer, GrainIsTheLowByteOfTheHashTimesTheOpacity) {
  SurfaceStyle s;
  s.useNoise = true;
  s.noiseOpacity = 200;
  s.noise = rgbColor(255, 255, 255);
  s.uvMapping = 1;
  Image layer;
  ASSERT_TRUE(drawNoise(layer, s, {-3, -2, 4, 4}, Profile::BestGraphics));
  // hashCell(0x9E3779B9, -3, -2) = 0x3CE36D6E: 0x6E = 110, 110 * 200 / 255 = 86.3 -> 86.
  const uint8_t* p = layer.pixel(0, 0);
  EXPECT_EQ(p[3], 86);
  EXPECT_EQ(p[0], 86);
  // Everywhere: trunc(low byte * opacity / 255), in the noise colour.
  s.noise = rgbColor(200, 100, 50);
  s.uvMapping = 0;
  Image local;
  ASSERT_TRUE(drawNoise(local, s, {500, 500, 16, 9}, Profile::BestGraphics));
  for (int32_t y = 0; y < 9; ++y) {
    for (int32_t x = 0; x < 16; ++x) {
      const uint32_t a = (hashCell(s.noiseSeed, uint32_t(x), uint32_t(y)) & 0xFF) * 200 / 255;
      const uint8_t* q = local.pixel(x, y);
      ASSERT_EQ(q[3], a) << x << "," << y;
      if (a == 0) continue;
      EXPECT_EQ(q[2], 200 * a / 255);
      EXPECT_EQ(q[1], 100 * a / 255);
      EXPECT_EQ(q[0], 50 * a / 255);
    }
  }
}

// --- Sample space ----------------------------------------------------------------------------

struct ScaleCase {
  int32_t uvScale;
  int32_t slab;
};

const ScaleCase kScaleCases[] = {{0, 8}, {7, 8}, {8, 8}, {300, 300}, {100000, 8192}, {8193, 8192}};

TEST(SampleSpace, GlobalScaleIsClampedTo8Through8192) {
  for (const ScaleCase& c : kScaleCases) {
    SurfaceStyle s;
    s.uvMapping = 1;
    s.uvScale = c.uvScale;
    const SampleSpace space = sampleSpace(s, {0, 0, 10, 10});
    EXPECT_EQ(space.x.slab, c.slab) << c.uvScale;
    EXPECT_EQ(space.x.extent, c.slab + 1.0) << c.uvScale;
  }
  // And the layers see the clamped value.
  SurfaceStyle a = material(MaterialKind::Marble), b = a, c = a;
  a.uvMapping = b.uvMapping = c.uvMapping = 1;
  a.uvScale = 0;
  b.uvScale = 8;
  c.uvScale = 16;
  const Rect rect{3, 5, 30, 20};
  EXPECT_TRUE(samePixels(overlay(a, rect), overlay(b, rect)));
  EXPECT_FALSE(samePixels(overlay(a, rect), overlay(c, rect)));
}

TEST(SampleSpace, GlobalCoordinatesMirrorIntoTheSlab) {
  SurfaceStyle s;
  s.uvMapping = 1;
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
}

// A texture that depends on the sample coordinates alone mirrors at the fold of the slab.
TEST(MaterialOverlay, GlobalMappingMirrorsAtTheSlabsEdge) {
  SurfaceStyle s = material(MaterialKind::Marble);
  s.uvMapping = 1;
  s.uvScale = 40;
  const Image rising = overlay(s, {0, 0, 41, 12});
  const Image falling = overlay(s, {40, 0, 41, 12});
  for (int32_t y = 0; y < 12; ++y)
    for (int32_t x = 0; x <= 40; ++x)
      ASSERT_EQ(std::vector<uint8_t>(rising.pixel(x, y), rising.pixel(x, y) + 4),
                std::vector<uint8_t>(falling.pixel(40 - x, y), falling.pixel(40 - x, y) + 4))
          << x << "," << y;
}

// Under global mapping neighbouring surfaces continue one texture: two halves paint what the
// whole would. (The relief of kinds whose height reads the pixel's place in its rectangle, the
// stripes and Granite's grain, starts afresh in each.)
struct SeamCase {
  MaterialKind kind;
  uint8_t depth;
};

const SeamCase kSeamCases[] = {{MaterialKind::Granite, 0},
                               {MaterialKind::ObsidianRelief, 0},
                               {MaterialKind::CarbonFiber, 90},
                               {MaterialKind::Gemstone, 90}};

TEST(MaterialOverlay, GlobalMappingRunsAcrossNeighbours) {
  for (const SeamCase& c : kSeamCases) {
    SurfaceStyle s = material(c.kind);
    s.uvMapping = 1;
    s.uvScale = 512;
    s.materialDepth = c.depth;
    s.finish = 6;
    const Image whole = overlay(s, {20, 10, 60, 30});
    const Image left = overlay(s, {20, 10, 25, 30});
    const Image right = overlay(s, {45, 10, 35, 30});
    for (int32_t y = 0; y < 30; ++y) {
      for (int32_t x = 0; x < 60; ++x) {
        const uint8_t* part = x < 25 ? left.pixel(x, y) : right.pixel(x - 25, y);
        ASSERT_EQ(std::vector<uint8_t>(part, part + 4),
                  std::vector<uint8_t>(whole.pixel(x, y), whole.pixel(x, y) + 4))
            << int(c.kind) << " at " << x << "," << y;
      }
    }
  }
}

// --- Writing pixels --------------------------------------------------------------------------

TEST(MaterialLayers, OnlyPixelsInsideTheOutlineAreWritten) {
  SurfaceStyle s = material(MaterialKind::Granite, 255);
  s.shape = ShapeKind::Capsule;
  s.materialDepth = 200;
  s.useNoise = true;
  s.noiseOpacity = 255;
  const Rect rect{0, 0, 60, 24};
  Image noise;
  ASSERT_TRUE(drawNoise(noise, s, rect, Profile::BestGraphics));
  for (const Image& layer : {overlay(s, rect), spatial(s, rect), noise}) {
    ASSERT_FALSE(layer.empty());
    int insideVisible = 0;
    for (int32_t y = 0; y < rect.height; ++y) {
      for (int32_t x = 0; x < rect.width; ++x) {
        if (isInsideShape(ShapeKind::Capsule, rect.width, rect.height, x, y))
          insideVisible += alphaAt(layer, x, y) > 0;
        else
          ASSERT_EQ(alphaAt(layer, x, y), 0) << x << "," << y;
      }
    }
    EXPECT_GT(insideVisible, 0);
  }
}

// A mask rules the outline instead of the shape: coverage at or above alphaThreshold.
TEST(MaterialLayers, AMaskRulesTheOutline) {
  Image mask = Image::blank(8, 8);
  for (int32_t y = 0; y < 8; ++y)
    for (int32_t x = 0; x < 8; ++x)
      mask.pixel(x, y)[3] = uint8_t((x + y) % 3 == 0 ? 0 : 200);
  SurfaceStyle s = material(MaterialKind::Marble, 200);
  s.geometryMode = GeometryMode::MaskAlphaLayout;
  s.mask = mask;
  s.alphaThreshold = 100;
  s.materialDepth = 100;
  const Rect rect{0, 0, 32, 24};
  const Image layer = overlay(s, rect);
  for (int32_t y = 0; y < rect.height; ++y) {
    for (int32_t x = 0; x < rect.width; ++x) {
      if ((x / 4 + y * 8 / 24) % 3 == 0) {
        ASSERT_EQ(alphaAt(layer, x, y), 0) << x << "," << y;
      }
    }
  }
  EXPECT_TRUE(agrees(layer, reference::materialOverlay(s, rect, 100, false, 0)));
  const Image shading = spatial(s, rect);
  ASSERT_FALSE(shading.empty());
  EXPECT_TRUE(agrees(shading, reference::spatialShading(s, rect)));
}

// A pixel whose alpha rounds to 0 is left as it was; the painter writes no zeros.
TEST(MaterialLayers, PixelsWithoutAlphaAreLeftAlone) {
  SurfaceStyle s = material(MaterialKind::Paper);
  const Rect rect{0, 0, 96, 64};
  Image layer = Image::blank(rect.width, rect.height);
  std::fill(layer.pixels->begin(), layer.pixels->end(), uint8_t(0x5A));
  ASSERT_TRUE(drawMaterialOverlay(layer, s, rect, Profile::BestGraphics, 0));
  int untouched = 0, written = 0;
  for (int32_t y = 0; y < rect.height; ++y) {
    for (int32_t x = 0; x < rect.width; ++x) {
      // Paper's alpha is |127 - g| * 20 / 127, below 0.5 for g from 124 to 130.
      const int g = int(hashCell(s.noiseSeed ^ kOverlayGrainTag, uint32_t(x), uint32_t(y)) & 0xFF);
      const uint8_t* p = layer.pixel(x, y);
      if (std::abs(127 - g) <= 3) {
        ++untouched;
        EXPECT_EQ(p[0], 0x5A);
        EXPECT_EQ(p[3], 0x5A);
      } else {
        ++written;
        EXPECT_EQ(p[3], int(std::abs(127 - g) * 20.0 / 127 + 0.5)) << x << "," << y;
      }
    }
  }
  EXPECT_GT(untouched, 0);
  EXPECT_GT(written, 0);
}

// --- Spatial shading -------------------------------------------------------------------------

TEST(SpatialShading, AlphaIsCappedAt190) {
  SurfaceStyle s = material(MaterialKind::Granite, 255);
  s.materialDepth = 255;
  s.ambientOcclusion = 255;
  s.edgeWear = 255;
  s.specular = 255;
  const Image layer = spatial(s, {0, 0, 80, 40});
  EXPECT_EQ(maxAlpha(layer), 190);
  EXPECT_TRUE(agrees(layer, reference::spatialShading(s, {0, 0, 80, 40})));
}

TEST(SpatialShading, AWeakStrengthCountsAs64) {
  SurfaceStyle weak = material(MaterialKind::Metal, 20);
  weak.materialDepth = 255;
  SurfaceStyle floor = weak;
  floor.materialStrength = 64;
  SurfaceStyle strong = weak;
  strong.materialStrength = 200;
  const Rect rect{0, 0, 50, 30};
  // 20 / 255 of the weight would fall below 0.16 and skip the layer.
  const Image layer = spatial(weak, rect);
  ASSERT_FALSE(layer.empty());
  EXPECT_TRUE(samePixels(layer, spatial(floor, rect)));
  EXPECT_FALSE(samePixels(layer, spatial(strong, rect)));
}

TEST(SpatialShading, TooLittleIntensitySkipsTheLayer) {
  SurfaceStyle s = material(MaterialKind::Metal, 64);
  s.materialDepth = 1;
  s.ambientOcclusion = 0;
  s.edgeWear = 0;
  s.specular = 0;
  Image layer;
  EXPECT_FALSE(drawSpatialSurfaceShading(layer, s, {0, 0, 40, 40}, Profile::BestGraphics));
  EXPECT_TRUE(layer.empty());
}

// --- Agreement with the plain transcription ----------------------------------------------------

struct Painters {
  const char* name;
  void (*overlay)(Image&, const SurfaceStyle&, const Rect&, uint8_t, bool, double);
  void (*spatial)(Image&, const SurfaceStyle&, const Rect&);
  void (*noise)(Image&, const SurfaceStyle&, const Rect&);
};

std::vector<Painters> availablePainters() {
  std::vector<Painters> list = {{"baseline", material_layers::baseline::paintOverlay,
                                 material_layers::baseline::paintSpatialShading,
                                 material_layers::baseline::paintNoise}};
  if (material_layers::avx2Available())
    list.push_back({"avx2", material_layers::avx2::paintOverlay,
                    material_layers::avx2::paintSpatialShading, material_layers::avx2::paintNoise});
  return list;
}

// Every kind, with and without relief, every finish that adds a layer, both mappings (the global
// one crossing a fold of the slab, where the relief's neighbours are taken one by one) and a
// few shapes: the row-wise painters stay within one step of the per-pixel formulas.
TEST(MaterialOverlay, AgreesWithThePerPixelFormulas) {
  const int32_t finishes[] = {0, 2, 6, 7, 8, 9, 10};
  for (const Painters& painters : availablePainters()) {
    for (int32_t kind = 1; kind <= 18; ++kind) {
      for (int variant = 0; variant < 8; ++variant) {
        SurfaceStyle s = material(MaterialKind(kind), uint8_t(150 + variant * 13));
        s.materialDepth = variant % 2 ? uint8_t(40 + variant * 25) : 0;
        s.finish = finishes[(kind + variant) % 7];
        s.gradientDirection = (kind + variant) % 8;
        s.shape = ShapeKind((kind * 3 + variant) % 9);
        s.materialAngle = variant * 37 - 60;
        s.materialScale = 6 + variant * 5;
        s.materialTint = rgbColor(200 + variant * 7, 150 + kind * 5, 120);
        s.uvMapping = variant >= 4 ? 1 : 0;
        s.uvScale = 30;
        s.uvOffsetX = -7;
        const Rect rect{variant >= 4 ? -50 + variant : 3, variant == 6 ? 25 : 2, 44, 30};
        const double phase = variant == 3 ? 0.375 : 0;
        Image layer = Image::blank(rect.width, rect.height);
        painters.overlay(layer, s, rect, s.materialDepth, false, phase);
        const Image expected = reference::materialOverlay(s, rect, s.materialDepth, false, phase);
        ASSERT_TRUE(agrees(layer, expected))
            << painters.name << " kind " << kind << " variant " << variant;
        EXPECT_GT(countVisible(expected), 0) << kind << " " << variant;
      }
    }
  }
}

TEST(SpatialShading, AgreesWithThePerPixelFormulas) {
  for (const Painters& painters : availablePainters()) {
    for (int32_t kind = 1; kind <= 18; ++kind) {
      for (int variant = 0; variant < 4; ++variant) {
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

TEST(MaterialNoiseLayer, AgreesWithThePerPixelFormula) {
  for (const Painters& painters : availablePainters()) {
    SurfaceStyle s;
    s.useNoise = true;
    s.noiseOpacity = 140;
    s.shape = ShapeKind::Octagon;
    s.uvMapping = 1;
    const Rect rect{-20, 7, 37, 23};
    Image layer = Image::blank(rect.width, rect.height);
    painters.noise(layer, s, rect);
    EXPECT_TRUE(samePixels(layer, reference::noiseLayer(s, rect))) << painters.name;
  }
}

}  // namespace
}  // namespace tessel
