#include "tessel/style/material_kind.h"

namespace tessel {

uint8_t defaultGrainOpacity(MaterialKind kind) {
  switch (kind) {
    case MaterialKind::FrostedGlass:
      return 18;
    case MaterialKind::Metal:
      return 12;
    case MaterialKind::BrushedMetal:
      return 4;
    case MaterialKind::Rubber:
      return 18;
    case MaterialKind::Paper:
      return 20;
    case MaterialKind::CarbonFiber:
      return 32;
    case MaterialKind::ObsidianGlass:
      return 2;
    case MaterialKind::CarmineGloss:
      return 3;
    case MaterialKind::AmberGlass:
      return 5;
    case MaterialKind::LuminousGlass:
      return 2;
    case MaterialKind::LayeredGlass:
      return 6;
    case MaterialKind::Gemstone:
      return 5;
    case MaterialKind::ObsidianRelief:
      return 8;
    case MaterialKind::Granite:
      return 18;
    case MaterialKind::Marble:
      return 9;
    default:
      return 0;
  }
}

}  // namespace tessel
