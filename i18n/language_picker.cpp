#include "i18n/language_picker.h"

#include "i18n/language.h"
#include "i18n/locale_system.h"
#include "i18n/localized.h"

namespace {

std::wstring PickerLine(const std::wstring& tag) {
  std::wstring native;
  if (!LocaleInfoText(tag, kLocaleNativeDisplayName, native) || native.empty()) native = tag;
  std::wstring english;
  if (!LocaleInfoText(tag, kLocaleEnglishDisplayName, english)) english.clear();
  std::wstring line = native;
  if (!english.empty() && english != native) line += L" / " + english;
  return line + L" (" + tag + L")";
}

}  // namespace

std::vector<std::wstring> LanguagePickerItems() {
  std::vector<std::wstring> items;
  items.reserve(kLocaleEntryCount + 1);
  items.push_back(Localized(L"Automaticky (Windows)", L"Automatic (Windows)"));
  for (const LocaleEntry& entry : kLocaleTable)
    items.push_back(PickerLine(entry.tag));
  return items;
}

int LanguagePickerIndex() {
  const std::wstring language = LanguageSetting();
  if (language == L"auto") return 0;
  const int index = LocaleTableIndex(language);
  return index < 0 ? 0 : index + 1;
}
