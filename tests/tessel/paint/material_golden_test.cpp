// After a deliberate change, regenerate from the project root (see golden/README.txt):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/stayhold_tests
//   --gtest_filter='MaterialGolden.*'
#include <string>

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/material_shading.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

const std::string kFolder = "tests/tessel/paint/golden/materials/";
const Rect kSurface{0, 0, 96, 64};
// A mid-dark slate under every layer, so that light and dark parts both show.
const Color kGround = rgbColor(0x3A, 0x40, 0x4A);

Image onGround(const Image& layer) {
  Image sheet = Image::blank(kSurface.width, kSurface.height);
  ImageCanvas canvas(sheet);
  canvas.fillRect(kSurface, kGround);
  if (!layer.empty()) canvas.blendImage(layer, kSurface, kSurface, 255);
  return sheet;
}

// Middling values with a tint that suits the kind, the same for every picture.
SurfaceStyle materialStyle(MaterialKind kind, Color tint) {
  SurfaceStyle s;
  s.material = kind;
  s.materialTint = tint;
  s.materialStrength = 180;
  s.highlightOpacity = 80;
  s.reflectionOpacity = 60;
  s.roughness = 110;
  s.specular = 130;
  s.ambientOcclusion = 70;
  s.edgeWear = 30;
  s.textureOpacity = 90;
  s.materialScale = 24;
  return s;
}

Image overlayOnGround(const SurfaceStyle& style) {
  Image layer;
  EXPECT_TRUE(drawMaterialOverlay(layer, style, kSurface, UiPerformanceProfile::BestGraphics, 0));
  return onGround(layer);
}

struct KindName {
  MaterialKind kind;
  const char* name;
  Color tint;
  // The dark glasses darken the ground little at middling values: stronger light for them.
  uint8_t highlight = 80;
  uint8_t reflection = 60;
};

const KindName kKinds[] = {
    {MaterialKind::Glass, "glass", rgbColor(0xDC, 0xEE, 0xFF)},
    {MaterialKind::FrostedGlass, "frosted_glass", rgbColor(0xE6, 0xF0, 0xF8)},
    {MaterialKind::Gloss, "gloss", rgbColor(0xFF, 0xFF, 0xFF)},
    {MaterialKind::Metal, "metal", rgbColor(0xC8, 0xD0, 0xD8)},
    {MaterialKind::BrushedMetal, "brushed_metal", rgbColor(0xB4, 0xBC, 0xC4)},
    {MaterialKind::Plastic, "plastic", rgbColor(0xF0, 0xF0, 0xF0)},
    {MaterialKind::Rubber, "rubber", rgbColor(0x30, 0x30, 0x34)},
    {MaterialKind::Paper, "paper", rgbColor(0xF4, 0xEE, 0xE0)},
    {MaterialKind::CarbonFiber, "carbon_fiber", rgbColor(0x60, 0x64, 0x6C)},
    {MaterialKind::ObsidianGlass, "obsidian_glass", rgbColor(0x50, 0x4C, 0x5A), 230, 230},
    {MaterialKind::CarmineGloss, "carmine_gloss", rgbColor(0xC0, 0x20, 0x30), 220, 200},
    {MaterialKind::AmberGlass, "amber_glass", rgbColor(0xFF, 0xB0, 0x40)},
    {MaterialKind::LuminousGlass, "luminous_glass", rgbColor(0x80, 0xC0, 0xFF)},
    {MaterialKind::LayeredGlass, "layered_glass", rgbColor(0x60, 0xD0, 0xE0)},
    {MaterialKind::Gemstone, "gemstone", rgbColor(0x30, 0xC0, 0x90)},
    {MaterialKind::ObsidianRelief, "obsidian_relief", rgbColor(0x60, 0x50, 0x60)},
    {MaterialKind::Granite, "granite", rgbColor(0x9A, 0x96, 0x90)},
    {MaterialKind::Marble, "marble", rgbColor(0xE8, 0xE2, 0xD6)},
};

const KindName& kindNamed(MaterialKind kind) {
  for (const KindName& k : kKinds)
    if (k.kind == kind) return k;
  return kKinds[0];
}

// Every kind with a little relief, so that each height function shows too; brushed metal with
// the brushed finish that gives it its streaks.
TEST(MaterialGolden, EachKind) {
  for (const KindName& k : kKinds) {
    SurfaceStyle s = materialStyle(k.kind, k.tint);
    s.highlightOpacity = k.highlight;
    s.reflectionOpacity = k.reflection;
    s.materialDepth = 64;
    if (k.kind == MaterialKind::BrushedMetal) s.finish = 2;
    const std::string file = kFolder + "kind_" + k.name + ".pam";
    EXPECT_TRUE(MatchesGoldenImage(overlayOnGround(s), file, 1)) << file;
  }
}

struct FinishName {
  int32_t finish;
  const char* name;
};

// The finishes that add a layer of their own.
const FinishName kFinishes[] = {{2, "brushed"}, {6, "cracked"}, {7, "hammered"},
                                {8, "etched"},  {9, "frosted"}, {10, "wet"}};

// Strong texture, so that the finish stands out.
TEST(MaterialGolden, FinishesOnMetalAndGranite) {
  for (MaterialKind kind : {MaterialKind::Metal, MaterialKind::Granite}) {
    const KindName& k = kindNamed(kind);
    for (const FinishName& f : kFinishes) {
      SurfaceStyle s = materialStyle(k.kind, k.tint);
      s.finish = f.finish;
      s.materialAngle = 20;
      s.textureOpacity = 220;
      const std::string file = kFolder + "finish_" + k.name + "_" + f.name + ".pam";
      EXPECT_TRUE(MatchesGoldenImage(overlayOnGround(s), file, 1)) << file;
    }
  }
}

TEST(MaterialGolden, ReliefOnAndOffForGraniteAndMarble) {
  for (MaterialKind kind : {MaterialKind::Granite, MaterialKind::Marble}) {
    const KindName& k = kindNamed(kind);
    for (const auto& [depth, state] :
         {std::pair{uint8_t(0), "off"}, std::pair{uint8_t(128), "on"}}) {
      SurfaceStyle s = materialStyle(k.kind, k.tint);
      s.materialDepth = depth;
      const std::string file = kFolder + "relief_" + k.name + "_" + state + ".pam";
      EXPECT_TRUE(MatchesGoldenImage(overlayOnGround(s), file, 1)) << file;
    }
  }
}

TEST(MaterialGolden, SpatialShadingOnACapsuleAndARoundedRect) {
  for (const auto& [shape, name] : {std::pair{ShapeKind::Capsule, "capsule"},
                                    std::pair{ShapeKind::RoundedRect, "rounded_rect"}}) {
    SurfaceStyle s = materialStyle(MaterialKind::Granite, kindNamed(MaterialKind::Granite).tint);
    s.shape = shape;
    s.materialDepth = 160;
    Image layer;
    ASSERT_TRUE(drawSpatialSurfaceShading(layer, s, kSurface, UiPerformanceProfile::BestGraphics));
    const std::string file = kFolder + std::string("spatial_") + name + ".pam";
    EXPECT_TRUE(MatchesGoldenImage(onGround(layer), file, 1)) << file;
  }
}

TEST(MaterialGolden, Noise) {
  SurfaceStyle s;
  s.useNoise = true;
  s.noiseOpacity = 64;
  Image layer;
  ASSERT_TRUE(drawNoise(layer, s, kSurface, UiPerformanceProfile::BestGraphics));
  EXPECT_TRUE(MatchesGoldenImage(onGround(layer), kFolder + "noise.pam", 1));
}

}  // namespace
}  // namespace tessel
