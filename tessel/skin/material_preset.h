// The words of the material vocabulary: named presets that fill about twenty surface values at
// once, the names of the material kinds, and the finishes that nudge a material toward a surface
// treatment; and how a preset or the skin-wide material lands on a surface. Every word is
// compared after normalizeKey, so case, blanks, "_" and "-" don't count.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessel/style/color.h"
#include "tessel/style/material_kind.h"
#include "tessel/style/surface_style.h"

namespace tessel {

struct MaterialProfile;

// Finish numbers as stored in SurfaceStyle::finish; the shader reads the same numbers.
struct Finish {
  static constexpr int32_t Default = 0;
  static constexpr int32_t Polished = 1;
  static constexpr int32_t Brushed = 2;
  static constexpr int32_t Satin = 3;
  static constexpr int32_t Matte = 4;
  static constexpr int32_t Rough = 5;
  static constexpr int32_t Cracked = 6;
  static constexpr int32_t Hammered = 7;
  static constexpr int32_t Etched = 8;
  static constexpr int32_t Frosted = 9;
  static constexpr int32_t Wet = 10;
};

struct MaterialPreset {
  std::wstring name;  // already normalized
  MaterialKind kind = MaterialKind::None;
  Color tint = 0;
  Color backlight = 0;  // the tint warmed toward #FFB45A by 0.18
  uint8_t strength = 0;
  uint8_t highlightOpacity = 0;
  uint8_t reflectionOpacity = 0;
  uint8_t grainOpacity = 0;  // the default grain of the kind
  uint8_t depth = 0;
  uint8_t roughness = 0;
  uint8_t specular = 0;
  uint8_t ambientOcclusion = 0;
  uint8_t edgeWear = 0;
  uint8_t textureOpacity = 0;
  uint8_t lightElevation = 0;
  int32_t scale = 0;
  int32_t angle = 0;
  int32_t lightAngle = 0;
  uint32_t noiseSeed = 0;  // the first four letters of the name, big-endian ASCII
  int32_t finish = Finish::Default;
};

// The fixed table in lookup order, built once on first use and read-only afterwards. An alias
// ("zula") repeats its original's row and noise seed under its own name.
const std::vector<MaterialPreset>& materialPresets();

// The first preset whose name equals the normalized word; nullptr when none does.
const MaterialPreset* findMaterialPreset(const std::wstring& word);

// A kind word ("frosted", "blackglass", "granite", ...); false leaves kind untouched.
bool parseMaterialKind(const std::wstring& word, MaterialKind& kind);

// A finish word ("polished", "hairline", "wet", ...) to its number; false leaves finish untouched.
bool parseFinish(const std::wstring& word, int32_t& finish);

// Stores the finish number, then moves the material values toward it: each cap only lowers a
// value above it or raises one below it, so a skin's own stronger value survives. A brushed
// finish turns Metal into BrushedMetal. Unknown numbers are stored and move nothing.
void applyFinish(SurfaceStyle& surface, int32_t finish);

// Copies every value of the row onto the surface, then applies the row's finish. Strength is
// left alone when the row's kind is None.
void applyMaterialPreset(SurfaceStyle& surface, const MaterialPreset& preset);

// Lays the skin-wide material over one surface: the kind of a slot, the profile's values and a
// strength moved by `delta` for the role and state (none for the kind None); gradients follow
// the fill. Nothing when the profile is not enabled.
void applyMaterial(SurfaceStyle& surface, const MaterialProfile& profile, MaterialKind kind,
                   int32_t delta);

}  // namespace tessel
