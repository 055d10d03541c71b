// Which language the interface speaks: the setting `language` ("auto" or a table tag), falling back
// to Windows' display language, then by exact locale, language family, and finally English.
// Nothing is cached, so a changed setting takes effect at the next lookup.
#pragma once

#include <string>

#include "i18n/locale_table.h"

// Where the setting is read: the application registers a reader of its configuration before the
// first text. Without one (or with null) the setting reads "auto".
using LanguageSettingReader = std::wstring (*)();
void SetLanguageSettingReader(LanguageSettingReader reader);
// The setting as the registered reader gives it now, not normalized.
std::wstring LanguageSetting();

// Trimmed, lower-case, '_' turned into '-'.
std::wstring CanonicalizeTag(const std::wstring& text);
// The canonical tag up to its first '-'; "nb" and "nn" both become "no".
std::wstring PrimarySubtag(const std::wstring& text);

// Each returns the first entry of the locale table that matches, or null.
const LocaleEntry* FindLocaleByTag(const std::wstring& text);
const LocaleEntry* FindLocaleByLanguageCode(const std::wstring& text);
const LocaleEntry* FindLocaleByPrimarySubtag(const std::wstring& text);

// "auto" or one of the table's tags in its table spelling.
std::wstring NormalizeLanguageSetting(const std::wstring& text);

std::wstring EffectiveLanguageTag();
int CurrentLanguageIndex();
int LanguageColumnIndex(const std::wstring& code);  // -1 when empty or unknown
int LocaleTableIndex(const std::wstring& text);     // -1 when none
