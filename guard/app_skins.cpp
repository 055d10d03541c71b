#include "guard/app_skins.h"

#include "guard/paths.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/skin_picker.h"

namespace {

std::wstring& SetupSkinCache() {
  static std::wstring folder;
  return folder;
}

}  // namespace

void UseSetupSkinCache(const std::wstring& folder) {
  SetupSkinCache() = folder;
}

std::vector<std::wstring> AppSkinFolders(const std::wstring& setup_cache) {
  return {setup_cache, InstalledSkinsDirectory(), SkinsDirectory()};
}

const std::vector<tessel::SkinDefinition>& AppSkinCatalogue() {
  static const std::vector<tessel::SkinDefinition> catalogue =
      tessel::assembleSkinCatalogue(AppSkinFolders(SetupSkinCache()));
  return catalogue;
}

const tessel::SkinDefinition* FindAppSkinOrDefault(const std::wstring& id) {
  return tessel::findSkinOrDefault(AppSkinCatalogue(), id);
}

std::wstring AppSkinIdAtIndex(int index) {
  return tessel::skinIdAtIndex(AppSkinCatalogue(), index);
}

std::vector<std::wstring> AppSkinNames() {
  std::vector<std::wstring> names;
  for (const tessel::SkinDefinition& skin : AppSkinCatalogue())
    names.push_back(skin.name);
  return names;
}

int SelectedAppSkinIndex(const StayholdConfig& config) {
  return tessel::selectedSkinIndex(AppSkinCatalogue(), config.skin_id);
}
