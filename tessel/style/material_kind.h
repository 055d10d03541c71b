// The procedural materials a surface can be painted with. The numbers are stored in style
// records and mixed into layer cache keys, so they never change.
#pragma once

#include <cstdint>

namespace tessel {

enum class MaterialKind : int32_t {
  None = 0,
  Glass = 1,
  FrostedGlass = 2,
  Gloss = 3,
  Metal = 4,
  BrushedMetal = 5,
  Plastic = 6,
  Rubber = 7,
  Paper = 8,
  CarbonFiber = 9,
  ObsidianGlass = 10,
  CarmineGloss = 11,
  AmberGlass = 12,
  LuminousGlass = 13,
  LayeredGlass = 14,
  Gemstone = 15,
  ObsidianRelief = 16,
  Granite = 17,
  Marble = 18,
};

// The grain a kind implies when a surface asks for none of its own.
uint8_t defaultGrainOpacity(MaterialKind kind);

}  // namespace tessel
