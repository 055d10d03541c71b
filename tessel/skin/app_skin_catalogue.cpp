#include "tessel/skin/app_skin_catalogue.h"

#include "guard/paths.h"
#include "base/wide_text.h"
#include "setup/setup_skins.h"

namespace tessel {

namespace {

constexpr wchar_t kDefaultSkinId[] = L"win11-auto";

// The skins beside the executable, read on the first request.
const std::vector<SkinDefinition>& toolkitSkinCatalogue() {
  static const std::vector<SkinDefinition> skins = loadSkinFolder(SkinsDirectory());
  return skins;
}

}  // namespace

std::vector<SkinDefinition> assembleSkinCatalogue(const std::wstring& setupCacheFolder,
                                                  const std::wstring& installedFolder,
                                                  const std::vector<SkinDefinition>& besideExe) {
  std::vector<SkinDefinition> catalogue;
  mergeSkins(catalogue, loadSkinFolder(setupCacheFolder));
  mergeSkins(catalogue, loadSkinFolder(installedFolder));
  mergeSkins(catalogue, besideExe);
  return catalogue.empty() ? besideExe : catalogue;
}

const std::vector<SkinDefinition>& appSkinCatalogue() {
  static const std::vector<SkinDefinition> catalogue = [] {
    const std::vector<SkinDefinition>& besideExe = toolkitSkinCatalogue();
    // The guard's build carries no skin files, so nothing is written and the cache stays out.
    const std::wstring cache = WriteSetupSkins().empty() ? std::wstring() : SetupSkinCacheFolder();
    return assembleSkinCatalogue(cache, InstalledSkinsDirectory(), besideExe);
  }();
  return catalogue;
}

const SkinDefinition* findSkinOrDefault(const std::wstring& id) {
  return findSkinOrDefault(appSkinCatalogue(), id);
}

std::wstring skinIdAtIndex(const std::vector<SkinDefinition>& catalogue, int index) {
  if (index >= 0 && static_cast<size_t>(index) < catalogue.size()) return catalogue[index].id;
  const SkinDefinition* fallback = findSkinOrDefault(catalogue, kDefaultSkinId);
  return fallback != nullptr ? fallback->id : kDefaultSkinId;
}

int selectedSkinIndex(const std::vector<SkinDefinition>& catalogue, const std::wstring& skinId) {
  const SkinDefinition* resolved = findSkinOrDefault(catalogue, skinId);
  const std::wstring id = resolved != nullptr ? resolved->id : kDefaultSkinId;
  for (size_t i = 0; i < catalogue.size(); ++i)
    if (EqualsIgnoringCase(catalogue[i].id, id)) return static_cast<int>(i);
  return 0;
}

std::wstring skinIdAtIndex(int index) {
  return skinIdAtIndex(appSkinCatalogue(), index);
}

std::vector<std::wstring> skinNames() {
  std::vector<std::wstring> names;
  for (const SkinDefinition& skin : appSkinCatalogue())
    names.push_back(skin.name);
  return names;
}

int selectedSkinIndex(const StayholdConfig& config) {
  return selectedSkinIndex(appSkinCatalogue(), config.skin_id);
}

std::wstring repairedSkinId(const std::vector<SkinDefinition>& catalogue, const std::wstring& id) {
  const SkinDefinition* skin = findSkinOrDefault(catalogue, id);
  return skin != nullptr ? skin->id : kDefaultSkinId;
}

}  // namespace tessel
