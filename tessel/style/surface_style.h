// Everything a painted surface is made of: outline, colours, gradient, shadow and glow, the
// procedural material and its finish, bitmap, tint and the geometry that rules hit-testing
// and layout. A new record holds the plain defaults; style builders then colour it.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"
#include "tessel/style/bitmap_tint.h"
#include "tessel/style/color.h"
#include "tessel/style/image.h"
#include "tessel/style/material_kind.h"
#include "tessel/style/shape_kind.h"

namespace tessel {

struct NineSlice {
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;
  bool operator==(const NineSlice&) const = default;
};

struct SurfaceStyle {
  ShapeKind shape = ShapeKind::Rectangle;
  Color fill = 0xFFFFFF;
  Color border = 0x000000;
  Color shadow = rgbColor(0x00, 0x00, 0x00);
  Color glow = rgbColor(0x50, 0xD2, 0xBE);
  Color outline = rgbColor(0xFF, 0xE6, 0xAA);
  Color noise = rgbColor(0xFF, 0xFF, 0xFF);
  Color gradientStart = 0xFFFFFF;
  Color gradientMid = 0xFFFFFF;
  Color gradientEnd = 0xFFFFFF;
  Color materialTint = rgbColor(0xFF, 0xFF, 0xFF);
  Color backlightColor = rgbColor(0xFF, 0x78, 0x2A);
  Image image;
  BitmapTint tint;
  GeometryMode geometryMode = GeometryMode::FallbackShape;
  Image mask;
  Insets paintInsets;
  Insets hitInsets;
  Insets textInsets;
  Insets childLayoutInsets;
  Insets headerInsets;
  Insets actionRowInsets;
  Insets scrollTrackInsets;
  int32_t bandHeight = 14;
  NineSlice nineSlice;
  uint8_t opacity = 255;
  uint8_t alphaThreshold = 16;
  uint8_t shadowOpacity = 120;
  uint8_t glowOpacity = 76;
  uint8_t noiseOpacity = 0;
  uint8_t materialStrength = 0;
  uint8_t highlightOpacity = 70;
  uint8_t reflectionOpacity = 38;
  uint8_t grainOpacity = 0;
  uint8_t materialDepth = 0;
  uint8_t backlightOpacity = 72;
  uint8_t innerGlow = 86;
  uint8_t rimLight = 88;
  uint8_t materialLightElevation = 62;
  uint8_t roughness = 96;
  uint8_t specular = 96;
  uint8_t ambientOcclusion = 58;
  uint8_t edgeWear = 26;
  uint8_t textureOpacity = 48;
  int32_t shadowOffsetX = 0;
  int32_t shadowOffsetY = 0;
  int32_t glowRadius = 0;
  int32_t outlineWidth = 0;
  int32_t materialScale = 18;
  int32_t materialAngle = 0;
  int32_t materialLightAngle = -45;
  int32_t lightBlobScale = 480;
  int32_t lightBlobAngle = -22;
  int32_t animationSpeed = 0;
  int32_t finish = 0;
  int32_t uvMapping = 0;  // 0 local to the surface, 1 global (window coordinates)
  int32_t uvScale = 256;
  int32_t uvOffsetX = 0;
  int32_t uvOffsetY = 0;
  uint32_t noiseSeed = 0x9E3779B9u;
  int32_t gradientDirection = 0;
  int32_t gradientKind = 0;
  MaterialKind material = MaterialKind::None;
  bool drawFill = true;
  bool drawBorder = true;
  bool showShadow = false;
  bool showGlow = false;
  bool showOutline = false;
  bool useGradient = false;
  bool useGradientMid = false;
  bool useNineSlice = false;
  bool useNoise = false;
  bool useSkinAlphaHitTest = false;
};

}  // namespace tessel
