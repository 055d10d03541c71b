#include "tessel/skin/material_preset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tessel/skin/property_table.h"
#include "tessel/skin/skin_definition.h"

namespace tessel {
namespace {

// The nine values a finish may move.
constexpr uint8_t SurfaceStyle::*kMovable[] = {
    &SurfaceStyle::roughness,        &SurfaceStyle::specular,
    &SurfaceStyle::highlightOpacity, &SurfaceStyle::reflectionOpacity,
    &SurfaceStyle::textureOpacity,   &SurfaceStyle::grainOpacity,
    &SurfaceStyle::materialDepth,    &SurfaceStyle::ambientOcclusion,
    &SurfaceStyle::edgeWear};

// The nine values, then the others a material gives a surface.
std::vector<int64_t> Values(const SurfaceStyle& s, size_t count = 19) {
  std::vector<int64_t> values;
  for (uint8_t SurfaceStyle::*field : kMovable)
    values.push_back(s.*field);
  values.insert(values.end(), {int64_t(s.material), s.materialTint, s.backlightColor,
                               s.materialStrength, s.materialLightElevation, s.materialScale,
                               s.materialAngle, s.materialLightAngle, s.noiseSeed, s.finish});
  return std::vector<int64_t>(values.begin(), values.begin() + count);
}

SurfaceStyle Applied(const MaterialPreset& preset, SurfaceStyle surface = SurfaceStyle()) {
  applyMaterialPreset(surface, preset);
  return surface;
}

// Names are normalized and unique and find their own row; the seed spells the first four letters
// of the name, and an alias repeats its original's row. What a preset carries doesn't depend on
// the surface it lands on, and nothing else on the surface moves.
TEST(MaterialPresetTable, Invariants) {
  const std::pair<std::wstring, std::wstring> kAliases[] = {
      {L"zula", L"granite"}, {L"mramor", L"marble"}, {L"aluminum", L"aluminium"}};
  SurfaceStyle odd;
  odd.materialStrength = odd.materialLightElevation = odd.innerGlow = odd.specular = 1;
  odd.materialTint = odd.fill = rgbColor(1, 1, 1);
  odd.materialScale = odd.materialAngle = odd.finish = odd.noiseSeed = 4;
  ASSERT_GT(materialPresets().size(), 50u);
  for (const MaterialPreset& preset : materialPresets()) {
    SCOPED_TRACE(::testing::PrintToString(preset.name));
    EXPECT_EQ(normalizeKey(preset.name), preset.name);
    EXPECT_EQ(findMaterialPreset(preset.name), &preset);  // so no name is taken twice
    EXPECT_TRUE(preset.kind != MaterialKind::None && preset.strength > 0 &&
                preset.grainOpacity == defaultGrainOpacity(preset.kind));
    std::wstring origin = preset.name, prefix;
    for (const auto& [alias, original] : kAliases)
      if (alias == preset.name) origin = original;
    for (int shift : {24, 16, 8, 0})
      prefix += static_cast<wchar_t>((preset.noiseSeed >> shift) & 0xFF);
    EXPECT_EQ(prefix, origin.substr(0, 4));
    ASSERT_NE(findMaterialPreset(origin), nullptr);
    EXPECT_EQ(Values(Applied(preset)), Values(Applied(*findMaterialPreset(origin))));
    const SurfaceStyle surface = Applied(preset, odd);
    EXPECT_EQ(Values(surface), Values(Applied(preset)));
    EXPECT_TRUE(surface.materialTint == preset.tint && surface.fill == odd.fill &&
                surface.innerGlow == 1);
  }
  EXPECT_EQ(findMaterialPreset(L"Stainless-Steel")->name, L"stainlesssteel");
  EXPECT_EQ(findMaterialPreset(L"aaa-glass"), nullptr);  // the dead word "aaaglass"
}

// A finish only clamps each movable value, once and for all; default and unknown numbers move
// nothing; only brushing turns metal, and only metal, into brushed metal.
TEST(ApplyFinish, EachFinishOnlyClampsItsValues) {
  for (int32_t finish = Finish::Default - 1; finish <= Finish::Wet + 1; ++finish) {
    SCOPED_TRACE("finish " + std::to_string(finish));
    SurfaceStyle low, high;
    for (uint8_t SurfaceStyle::*field : kMovable)
      high.*field = 255, low.*field = 0;
    const SurfaceStyle zero = low;
    applyFinish(low, finish);
    applyFinish(high, finish);
    EXPECT_EQ(low.finish, finish);
    const bool known = finish > Finish::Default && finish <= Finish::Wet;
    EXPECT_TRUE(known || Values(low, 9) == Values(zero, 9));
    for (uint8_t SurfaceStyle::*field : kMovable) {
      for (int start = 0; start <= 255; ++start) {
        SurfaceStyle surface;
        surface.*field = static_cast<uint8_t>(start);
        applyFinish(surface, finish);
        ASSERT_EQ(surface.*field, std::clamp(start, int(low.*field), int(high.*field))) << start;
        SurfaceStyle again = surface;
        applyFinish(again, finish);
        ASSERT_EQ(Values(again), Values(surface));
      }
    }
    for (MaterialKind kind : {MaterialKind::Metal, MaterialKind::Granite}) {
      SurfaceStyle surface;
      surface.material = kind;
      applyFinish(surface, finish);
      EXPECT_EQ(surface.material, finish == Finish::Brushed && kind == MaterialKind::Metal
                                      ? MaterialKind::BrushedMetal
                                      : kind);
    }
  }
  // From a new surface: roughness 96, specular 96, highlight 70, reflection 38, texture 48,
  // grain 0, depth 0, occlusion 58, edge wear 26.
  for (const auto& [finish, expected] :
       {std::pair{Finish::Cracked, std::vector<int64_t>{142, 96, 70, 38, 108, 0, 70, 104, 42}},
        std::pair{Finish::Brushed, std::vector<int64_t>{104, 118, 70, 38, 72, 8, 0, 58, 26}}}) {
    SurfaceStyle surface;
    applyFinish(surface, finish);
    EXPECT_EQ(Values(surface, 9), expected) << finish;
  }
}

// The profile clamps to bytes and moves only the strength by the delta; a disabled one changes
// nothing.
TEST(ApplyMaterial, TheProfileClampsAndADisabledOneChangesNothing) {
  MaterialProfile profile;
  profile.enabled = true;
  profile.strength = 250;
  profile.specular = 900;
  profile.roughness = -4;
  SurfaceStyle clamped, untouched;
  applyMaterial(clamped, profile, MaterialKind::Glass, 20);
  EXPECT_EQ(Values(clamped, 2), (std::vector<int64_t>{0, 255}));
  EXPECT_EQ(clamped.materialStrength, 255);
  profile.enabled = false;
  applyMaterial(untouched, profile, MaterialKind::Glass, 0);
  EXPECT_EQ(Values(untouched), Values(SurfaceStyle()));
}

}  // namespace
}  // namespace tessel
