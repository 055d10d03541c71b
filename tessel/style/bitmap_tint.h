// How a bitmap is recoloured before it is drawn: a mode, the mask channel it reads and the
// colours it maps to. Plain data; the skin reader fills it and the bitmap painter applies it.
#pragma once

#include <array>
#include <cstdint>

#include "tessel/style/color.h"

namespace tessel {

enum class TintMode : int32_t {
  None = 0,
  Mono = 1,
  Luma = 2,
  Alpha = 3,
  Tint = 4,
  Multiply = 5,
  Palette = 6
};
enum class MaskChannel : int32_t { Alpha = 0, Red = 1, Green = 2, Blue = 3, Luma = 4 };

struct BitmapTint {
  TintMode mode = TintMode::None;
  MaskChannel maskChannel = MaskChannel::Alpha;
  Color color = 0xFFFFFF;
  Color secondaryColor = 0x000000;
  std::array<Color, 32> palette{};
  uint8_t paletteCount = 0;
  uint8_t amount = 255;
  uint8_t coverageThreshold = 0;
  bool preserveLuminance = false;
  bool invertMask = false;

  bool active() const { return mode != TintMode::None && amount > 0; }
  bool operator==(const BitmapTint&) const = default;
};

}  // namespace tessel
