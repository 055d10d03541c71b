// The rules of a skin picker over a given catalogue: which line a stored skin id selects, which
// id a line stands for, and what a stored id is repaired to. An id resolves as findSkinOrDefault
// resolves it; with no skin at all, everything falls back to "win11-auto" and line 0.
#pragma once

#include <string>
#include <vector>

#include "tessel/skin/skin_definition.h"

namespace tessel {

// The id at a picker index; out of range, the id "win11-auto" resolves to.
std::wstring skinIdAtIndex(const std::vector<SkinDefinition>& catalogue, int index);

// The index of the skin the id resolves to; 0 when none.
int selectedSkinIndex(const std::vector<SkinDefinition>& catalogue, const std::wstring& skinId);

// What a stored skin id becomes: the id of the skin it resolves to, or "win11-auto".
std::wstring repairedSkinId(const std::vector<SkinDefinition>& catalogue, const std::wstring& id);

}  // namespace tessel
