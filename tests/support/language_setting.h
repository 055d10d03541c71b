// For the tests of i18n, which sits below the configuration: the language setting given
// directly. The test main registers the configuration's reader again at each test start.
#pragma once

#include <string>

#include "i18n/language.h"

inline std::wstring& GivenLanguageSetting() {
  static std::wstring setting;
  return setting;
}

inline void UseLanguageSetting(const std::wstring& setting) {
  GivenLanguageSetting() = setting;
  SetLanguageSettingReader([] { return GivenLanguageSetting(); });
}
