#include "i18n/language.h"

#include <cwctype>

#include "base/wide_text.h"
#include "i18n/locale_system.h"

namespace {

LanguageSettingReader& RegisteredReader() {
  static LanguageSettingReader reader = nullptr;
  return reader;
}

}  // namespace

void SetLanguageSettingReader(LanguageSettingReader reader) {
  RegisteredReader() = reader;
}

std::wstring LanguageSetting() {
  const LanguageSettingReader reader = RegisteredReader();
  return reader ? reader() : std::wstring(L"auto");
}

std::wstring CanonicalizeTag(const std::wstring& text) {
  std::wstring tag = TrimWhiteSpace(text);
  for (wchar_t& c : tag) {
    c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    if (c == L'_') c = L'-';
  }
  return tag;
}

std::wstring PrimarySubtag(const std::wstring& text) {
  std::wstring tag = CanonicalizeTag(text);
  const size_t dash = tag.find(L'-');
  if (dash != std::wstring::npos) tag.resize(dash);
  if (tag == L"nb" || tag == L"nn") return L"no";
  return tag;
}

const LocaleEntry* FindLocaleByTag(const std::wstring& text) {
  const std::wstring canonical = CanonicalizeTag(text);
  for (const LocaleEntry& entry : kLocaleTable) {
    if (EqualsOrdinalIgnoreCase(entry.tag, canonical)) return &entry;
  }
  return nullptr;
}

const LocaleEntry* FindLocaleByLanguageCode(const std::wstring& text) {
  const std::wstring canonical = CanonicalizeTag(text);
  for (const LocaleEntry& entry : kLocaleTable) {
    if (EqualsOrdinalIgnoreCase(entry.code, canonical)) return &entry;
  }
  return nullptr;
}

const LocaleEntry* FindLocaleByPrimarySubtag(const std::wstring& text) {
  const std::wstring primary = PrimarySubtag(text);
  for (const LocaleEntry& entry : kLocaleTable) {
    if (PrimarySubtag(entry.tag) == primary) return &entry;
  }
  return nullptr;
}

std::wstring NormalizeLanguageSetting(const std::wstring& text) {
  const std::wstring canonical = CanonicalizeTag(text);
  if (canonical.empty() || canonical == L"auto") return L"auto";
  const LocaleEntry* entry = FindLocaleByTag(canonical);
  if (!entry) entry = FindLocaleByLanguageCode(canonical);
  if (!entry) entry = FindLocaleByPrimarySubtag(canonical);
  return entry ? std::wstring(entry->tag) : std::wstring(L"auto");
}

std::wstring EffectiveLanguageTag() {
  const std::wstring setting = NormalizeLanguageSetting(LanguageSetting());
  if (setting != L"auto") return setting;
  const std::wstring system = SystemUiLocaleName();
  if (system.empty()) return L"en-US";
  return NormalizeLanguageSetting(system);
}

int LanguageColumnIndex(const std::wstring& code) {
  if (code.empty()) return -1;
  for (size_t i = 0; i < kLanguageColumnCount; ++i) {
    if (EqualsOrdinalIgnoreCase(kLanguageColumns[i], code)) return static_cast<int>(i);
  }
  return -1;
}

int CurrentLanguageIndex() {
  const std::wstring tag = EffectiveLanguageTag();
  for (auto find : {&FindLocaleByTag, &FindLocaleByLanguageCode, &FindLocaleByPrimarySubtag}) {
    const LocaleEntry* entry = find(tag);
    if (entry && entry->code[0] != L'\0') {
      const int column = LanguageColumnIndex(entry->code);
      if (column >= 0) return column;
    }
  }
  return LanguageColumnIndex(L"en");
}

int LocaleTableIndex(const std::wstring& text) {
  for (auto find : {&FindLocaleByTag, &FindLocaleByLanguageCode, &FindLocaleByPrimarySubtag}) {
    if (const LocaleEntry* entry = find(text)) return static_cast<int>(entry - kLocaleTable);
  }
  return -1;
}
