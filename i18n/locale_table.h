// The 81 language columns and the 88 locale entries in their fixed order. The order matters: every
// search takes the first match, so a bare "fr" lands on fr-CA and "sr" on sr-Cyrl-BA.
#pragma once

#include <cstddef>

struct LocaleEntry {
  const wchar_t* tag;   // locale tag as Windows names it
  const wchar_t* code;  // the language column
};

inline constexpr size_t kLanguageColumnCount = 81;
inline constexpr size_t kLocaleEntryCount = 88;

extern const wchar_t* const kLanguageColumns[kLanguageColumnCount];
extern const LocaleEntry kLocaleTable[kLocaleEntryCount];
