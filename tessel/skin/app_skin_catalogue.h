// The skins this process offers, assembled once from three places, weakest first: the skin
// files the setup carries (written to its cache), the installed `skins` folder, and the `skins`
// folder beside the running executable. A later place wins by id and keeps the earlier place
// in the picker. The list is fixed for the rest of the process; a changed file counts at the
// next start.
#pragma once

#include <string>
#include <vector>

#include "guard/config.h"
#include "tessel/skin/skin_catalogue.h"

namespace tessel {

// The merge of the three folders' skins in their order; when that is empty, the skins beside
// the executable (then empty too).
std::vector<SkinDefinition> assembleSkinCatalogue(const std::wstring& setupCacheFolder,
                                                  const std::wstring& installedFolder,
                                                  const std::vector<SkinDefinition>& besideExe);

const std::vector<SkinDefinition>& appSkinCatalogue();
const SkinDefinition* findSkinOrDefault(const std::wstring& id);
// The id at a picker index; out of range, the id "win11-auto" resolves to.
std::wstring skinIdAtIndex(int index);
std::vector<std::wstring> skinNames();
int selectedSkinIndex(const StayholdConfig& config);

// What a stored skin id becomes: the id of the skin it resolves to, or "win11-auto".
std::wstring repairedSkinId(const std::vector<SkinDefinition>& catalogue, const std::wstring& id);

// The picker rules over a given list, for the functions above and for tests.
std::wstring skinIdAtIndex(const std::vector<SkinDefinition>& catalogue, int index);
int selectedSkinIndex(const std::vector<SkinDefinition>& catalogue, const std::wstring& skinId);

}  // namespace tessel
