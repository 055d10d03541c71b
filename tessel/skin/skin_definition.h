// One skin as a document describes it: identity, palette, surface mode, the skin-wide material,
// the shapes per role and the style overrides. Reading follows the document rules: `id` and
// `name` are required, a member of the wrong kind counts as absent, and nothing reports errors.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tessel/style/material_kind.h"
#include "tessel/style/shape_kind.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"
#include "tessel/style/surface_mode.h"
#include "tessel/skin/theme.h"

namespace tessel {

struct MaterialProfile {
  bool enabled = false;
  MaterialKind surface = MaterialKind::None;
  MaterialKind control = MaterialKind::None;
  MaterialKind accent = MaterialKind::None;
  Color tint = rgbColor(0xF6, 0xEE, 0xCF);
  Color backlight = rgbColor(0xFF, 0x78, 0x2A);
  int32_t strength = 0;
  int32_t highlightOpacity = 70;
  int32_t reflectionOpacity = 38;
  int32_t grainOpacity = 0;
  int32_t depth = 0;
  int32_t backlightOpacity = 0;
  int32_t innerGlow = 86;
  int32_t rimLight = 88;
  int32_t lightElevation = 62;
  int32_t roughness = 96;
  int32_t specular = 96;
  int32_t ambientOcclusion = 58;
  int32_t edgeWear = 26;
  int32_t textureOpacity = 48;
  int32_t scale = 18;
  int32_t angle = 0;
  int32_t lightAngle = -45;
  int32_t lightBlobScale = 480;
  int32_t lightBlobAngle = -22;
  int32_t animationSpeed = 0;
  int32_t finish = 0;
  int32_t uvMapping = 0;
  int32_t uvScale = 256;
  int32_t uvOffsetX = 0;
  int32_t uvOffsetY = 0;
  int32_t gradientKind = 0;
  int32_t gradientDirection = 0;
  uint32_t noiseSeed = 0x9E3779B9u;
};

// One optional shape per role, keyed by role ("panel", "button.primary", "table.header", ...),
// and the scroll bar metrics a skin may set there (-1: unset, the control keeps its own).
struct ShapeSet {
  std::map<std::wstring, ShapeKind> shapes;
  int32_t scrollButtonExtent = -1;
  int32_t scrollMinThumbExtent = -1;
  int32_t scrollTrackPadding = -1;
  int32_t scrollTrackThickness = -1;
  int32_t scrollThumbThickness = -1;
  int32_t scrollShowButtons = -1;

  const ShapeKind* find(const std::wstring& role) const {
    const auto found = shapes.find(role);
    return found == shapes.end() ? nullptr : &found->second;
  }
};

struct StyleOverride {
  std::wstring type;  // control type key, normalized
  std::wstring id;    // style id, normalized; "default" for an empty key
  PropertyTable properties;
};

struct SkinDefinition {
  std::wstring id;
  std::wstring name;
  std::wstring description;
  std::wstring category = L"custom";
  std::wstring harmony = L"custom";
  std::wstring sourceDirectory;
  std::vector<std::wstring> tags;
  std::vector<StyleOverride> overrides;
  Theme theme;
  SurfaceMode surfaceMode = SurfaceMode::Sculpted3d;
  MaterialProfile materials;
  ShapeSet shapes;
};

bool parseSkinDefinition(const JsonValue& value, SkinDefinition& skin);
// An array of skins, an object with a `skins` array, an object with one `skin`, or one skin.
std::vector<SkinDefinition> parseSkinDocuments(const JsonValue& root);

// Reads `materials` over a profile whose tint starts as the theme's `textHot`.
void parseMaterialProfile(const JsonValue& value, const Theme& theme, MaterialProfile& profile);
void parseShapeSet(const JsonValue& value, ShapeSet& shapes);

}  // namespace tessel
