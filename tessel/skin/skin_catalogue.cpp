#include "tessel/skin/skin_catalogue.h"

#include <algorithm>
#include <system_error>

#include "base/wide_text.h"
#include "tessel/skin/json_value.h"

namespace tessel {

namespace {

void addOrReplace(std::vector<SkinDefinition>& list, SkinDefinition skin) {
  for (SkinDefinition& entry : list) {
    if (EqualsIgnoringCase(entry.id, skin.id)) {
      entry = std::move(skin);
      return;
    }
  }
  list.push_back(std::move(skin));
}

const SkinDefinition* findById(const std::vector<SkinDefinition>& catalogue,
                               const std::wstring& id) {
  for (const SkinDefinition& skin : catalogue)
    if (EqualsIgnoringCase(skin.id, id)) return &skin;
  return nullptr;
}

}  // namespace

std::vector<SkinDefinition> parseSkinFile(const std::filesystem::path& path) {
  const std::wstring text = readJsonFileText(path);
  JsonValue root;
  if (text.empty() || !parseJsonText(text, root)) return {};
  std::vector<SkinDefinition> skins = parseSkinDocuments(root);
  const std::wstring folder = path.parent_path().wstring();
  for (SkinDefinition& skin : skins)
    skin.sourceDirectory = folder;
  return skins;
}

std::vector<SkinDefinition> loadSkinFolder(const std::wstring& folder) {
  std::vector<SkinDefinition> list;
  if (folder.empty()) return list;
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) return list;
  std::vector<std::pair<std::wstring, std::filesystem::path>> files;
  for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    std::error_code statusError;
    if (!it->is_regular_file(statusError)) continue;
    const std::filesystem::path& path = it->path();
    if (LowerCase(path.extension().wstring()) != L".json") continue;
    files.emplace_back(LowerCase(path.filename().wstring()), path);
  }
  // Ordinal order of the lower-cased names: "00-..." before "01-...", "90-my-skin" late.
  std::sort(files.begin(), files.end(),
            [](const auto& a, const auto& b) { return Utf16KeyLess()(a.first, b.first); });
  for (const auto& [name, path] : files) {
    for (SkinDefinition& skin : parseSkinFile(path))
      addOrReplace(list, std::move(skin));
  }
  return list;
}

void mergeSkins(std::vector<SkinDefinition>& target, const std::vector<SkinDefinition>& source) {
  for (const SkinDefinition& skin : source)
    addOrReplace(target, skin);
}

std::vector<SkinDefinition> assembleSkinCatalogue(const std::vector<std::wstring>& folders) {
  std::vector<SkinDefinition> catalogue;
  for (const std::wstring& folder : folders)
    mergeSkins(catalogue, loadSkinFolder(folder));
  return catalogue;
}

const SkinDefinition* findSkinOrDefault(const std::vector<SkinDefinition>& catalogue,
                                        const std::wstring& id) {
  const std::wstring trimmed = TrimWhiteSpace(id);
  if (!trimmed.empty()) {
    if (const SkinDefinition* skin = findById(catalogue, trimmed)) return skin;
  }
  if (const SkinDefinition* skin = findById(catalogue, L"win11-auto")) return skin;
  return catalogue.empty() ? nullptr : &catalogue.front();
}

Theme fallbackTheme() {
  Theme theme;
  theme.frame = rgbColor(0x31, 0x42, 0x53);
  theme.shell = rgbColor(0x05, 0x06, 0x08);
  theme.panel = rgbColor(0x10, 0x14, 0x1A);
  theme.header = rgbColor(0x13, 0x20, 0x33);
  theme.control = rgbColor(0x11, 0x19, 0x23);
  theme.controlHot = rgbColor(0x1A, 0x2A, 0x3B);
  theme.controlPressed = rgbColor(0xFF, 0x9F, 0x1C);
  theme.border = rgbColor(0x31, 0x42, 0x53);
  theme.accent = rgbColor(0xFF, 0x9F, 0x1C);
  theme.accentHot = rgbColor(0xFF, 0xC1, 0x5A);
  theme.text = rgbColor(0xE7, 0xEE, 0xF6);
  theme.textHot = rgbColor(0xFF, 0xF1, 0xD2);
  theme.mutedText = rgbColor(0x9E, 0xAD, 0xBA);
  theme.disabledText = rgbColor(0x65, 0x71, 0x7D);
  theme.disabledFill = rgbColor(0x08, 0x0A, 0x0E);
  theme.uiFont = TextStyle{L"Bahnschrift", 10, 600, theme.text, theme.disabledText, false, false};
  theme.monoFont =
      TextStyle{L"Cascadia Mono", 10, 400, theme.text, theme.disabledText, false, false};
  return theme;
}

}  // namespace tessel
