// After a deliberate change, regenerate from the project root (see golden/README.txt):
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/tessel_tests
//   --gtest_filter='MaterialGolden.*'
#include <string>

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/material_shading.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

using P = UiPerformanceProfile;
const std::string kFolder = "tests/tessel/paint/golden/materials/";
const Rect kSurface{0, 0, 96, 64};

::testing::AssertionResult matches(const Image& layer, const std::string& name) {
  Image sheet = Image::blank(kSurface.width, kSurface.height);
  ImageCanvas canvas(sheet);
  canvas.fillRect(kSurface, rgbColor(0x3A, 0x40, 0x4A));
  if (!layer.empty()) canvas.blendImage(layer, kSurface, kSurface, 255);
  return MatchesGoldenImage(sheet, kFolder + name + ".pam", 1);
}

// Each kind with a tint that suits it; stronger light for the dark glasses.
struct Kind {
  MaterialKind kind;
  const char* name;
  Color tint;
  uint8_t highlight = 80, reflection = 60;
};
const Kind kKinds[] = {
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
const Kind &kMetal = kKinds[3], &kGranite = kKinds[16], &kMarble = kKinds[17];

// Middling values, the same for every picture.
SurfaceStyle materialStyle(const Kind& k) {
  SurfaceStyle s;
  s.material = k.kind;
  s.materialTint = k.tint;
  s.materialStrength = 180;
  s.highlightOpacity = k.highlight;
  s.reflectionOpacity = k.reflection;
  s.roughness = 110;
  s.specular = 130;
  s.ambientOcclusion = 70;
  s.edgeWear = 30;
  s.textureOpacity = 90;
  s.materialScale = 24;
  return s;
}

Image overlay(const SurfaceStyle& style) {
  Image layer;
  EXPECT_TRUE(drawMaterialOverlay(layer, style, kSurface, P::BestGraphics, 0));
  return layer;
}

// Every kind with a little relief, so that each height function shows too; brushed metal with
// the brushed finish that gives it its streaks.
TEST(MaterialGolden, EachKind) {
  for (const auto& k : kKinds) {
    SurfaceStyle s = materialStyle(k);
    s.materialDepth = 64;
    if (k.kind == MaterialKind::BrushedMetal) s.finish = 2;
    EXPECT_TRUE(matches(overlay(s), std::string("kind_") + k.name));
  }
}

// The finishes that add a layer of their own, with strong texture so that they stand out.
TEST(MaterialGolden, FinishesOnMetalAndGranite) {
  const std::pair<int32_t, const char*> kFinishes[] = {
      {2, "brushed"}, {6, "cracked"}, {7, "hammered"}, {8, "etched"}, {9, "frosted"}, {10, "wet"}};
  for (const auto* k : {&kMetal, &kGranite}) {
    for (const auto& [finish, name] : kFinishes) {
      SurfaceStyle s = materialStyle(*k);
      s.finish = finish;
      s.materialAngle = 20;
      s.textureOpacity = 220;
      EXPECT_TRUE(matches(overlay(s), std::string("finish_") + k->name + "_" + name));
    }
  }
}

TEST(MaterialGolden, ReliefSpatialShadingAndNoise) {
  for (const auto* k : {&kGranite, &kMarble}) {
    for (const auto& [depth, state] : {std::pair{0, "off"}, std::pair{128, "on"}}) {
      SurfaceStyle s = materialStyle(*k);
      s.materialDepth = uint8_t(depth);
      EXPECT_TRUE(matches(overlay(s), std::string("relief_") + k->name + "_" + state));
    }
  }
  for (const auto& [shape, name] : {std::pair{ShapeKind::Capsule, "capsule"},
                                    std::pair{ShapeKind::RoundedRect, "rounded_rect"}}) {
    SurfaceStyle s = materialStyle(kGranite);
    s.shape = shape;
    s.materialDepth = 160;
    Image layer;
    ASSERT_TRUE(drawSpatialSurfaceShading(layer, s, kSurface, P::BestGraphics));
    EXPECT_TRUE(matches(layer, std::string("spatial_") + name));
  }
  SurfaceStyle s;
  s.useNoise = true;
  s.noiseOpacity = 64;
  Image layer;
  ASSERT_TRUE(drawNoise(layer, s, kSurface, P::BestGraphics));
  EXPECT_TRUE(matches(layer, "noise"));
}

}  // namespace
}  // namespace tessel
