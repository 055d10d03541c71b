// The nine vector outlines of a surface and the ways a bitmap may take over the outline.
// The numbers are stored in style records and cache keys, so they never change.
#pragma once

#include <cstdint>

namespace tessel {

enum class ShapeKind : int32_t {
  Rectangle = 0,
  RoundedRect = 1,
  Capsule = 2,
  Diamond = 3,
  Bevel = 4,
  Octagon = 5,
  Hexagon = 6,
  SlantRight = 7,
  SlantLeft = 8,
};

// A shape as read from a skin: the kind, and whether the skin named one at all.
struct ShapeStyle {
  ShapeKind kind = ShapeKind::Rectangle;
  bool present = false;
};

enum class GeometryMode : int32_t {
  FallbackShape = 0,
  SkinAlphaHitTest = 1,
  SkinAlphaLayout = 2,
  MaskAlphaLayout = 3,
};

}  // namespace tessel
