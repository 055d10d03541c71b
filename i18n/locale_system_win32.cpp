#include <windows.h>

#include "i18n/locale_system.h"

std::wstring SystemUiLocaleName() {
  wchar_t buffer[LOCALE_NAME_MAX_LENGTH] = {};
  const int length =
      LCIDToLocaleName(GetUserDefaultUILanguage(), buffer, LOCALE_NAME_MAX_LENGTH, 0);
  return length > 0 ? std::wstring(buffer) : std::wstring();
}

bool LocaleInfoText(const std::wstring& tag, uint32_t lctype, std::wstring& out) {
  wchar_t buffer[128] = {};
  if (GetLocaleInfoEx(tag.c_str(), static_cast<LCTYPE>(lctype), buffer, 128) == 0) return false;
  out = buffer;
  return true;
}

bool EqualsOrdinalIgnoreCase(const std::wstring& a, const std::wstring& b) {
  return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(),
                              static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}
