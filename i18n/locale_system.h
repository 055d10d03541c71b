// What language selection needs of the platform: the user's display language as a locale name,
// locale texts (day and language names), and case-insensitive ordinal comparison.
#pragma once

#include <cstdint>
#include <string>

inline constexpr uint32_t kLocaleDayName1 = 42;              // LOCALE_SDAYNAME1, Monday
inline constexpr uint32_t kLocaleNativeDisplayName = 0x73;   // LOCALE_SNATIVEDISPLAYNAME
inline constexpr uint32_t kLocaleEnglishDisplayName = 0x72;  // LOCALE_SENGLISHDISPLAYNAME

// The locale name of the user's default UI language; empty when Windows gives none.
std::wstring SystemUiLocaleName();

// GetLocaleInfoEx of `tag`; false when the call fails.
bool LocaleInfoText(const std::wstring& tag, uint32_t lctype, std::wstring& out);

// CompareStringOrdinal with case ignored.
bool EqualsOrdinalIgnoreCase(const std::wstring& a, const std::wstring& b);
