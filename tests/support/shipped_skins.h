// The skins the program ships, read from the source tree once per test process.
#pragma once

#include <string>
#include <vector>

#include "tessel/skin/skin_catalogue.h"
#include "tests/support/source_files.h"

inline const std::vector<tessel::SkinDefinition>& ShippedSkins() {
  static const std::vector<tessel::SkinDefinition> skins =
      tessel::loadSkinFolder(SourceFile("skins").wstring());
  return skins;
}

// The shipped skin with `id`, or the catalogue's default; null when nothing was read.
inline const tessel::SkinDefinition* ShippedSkin(const std::wstring& id) {
  return tessel::findSkinOrDefault(ShippedSkins(), id);
}
