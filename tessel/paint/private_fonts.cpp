#include "tessel/paint/private_fonts.h"

#include <algorithm>

#include "base/wide_text.h"

namespace tessel {

bool isPrivateFontFileName(const std::wstring& name) {
  const size_t dot = name.rfind(L'.');
  if (dot == std::wstring::npos || dot == 0) return false;
  const std::wstring extension = LowerCase(name.substr(dot));
  return extension == L".ttf" || extension == L".otf" || extension == L".ttc" ||
         extension == L".otc";
}

std::vector<std::wstring> privateFontFiles(const std::vector<FolderEntry>& listing) {
  std::vector<std::pair<std::wstring, std::wstring>> chosen;  // lower-cased, as listed
  for (const FolderEntry& entry : listing) {
    if (entry.isRegularFile && isPrivateFontFileName(entry.name))
      chosen.emplace_back(LowerCase(entry.name), entry.name);
  }
  std::sort(chosen.begin(), chosen.end());
  std::vector<std::wstring> names;
  names.reserve(chosen.size());
  for (auto& pair : chosen)
    names.push_back(std::move(pair.second));
  return names;
}

}  // namespace tessel
