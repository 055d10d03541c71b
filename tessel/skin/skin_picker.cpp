#include "tessel/skin/skin_picker.h"

#include "base/wide_text.h"
#include "tessel/skin/skin_catalogue.h"

namespace tessel {

namespace {

constexpr wchar_t kDefaultSkinId[] = L"win11-auto";

}  // namespace

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

std::wstring repairedSkinId(const std::vector<SkinDefinition>& catalogue, const std::wstring& id) {
  const SkinDefinition* skin = findSkinOrDefault(catalogue, id);
  return skin != nullptr ? skin->id : kDefaultSkinId;
}

}  // namespace tessel
