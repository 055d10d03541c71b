// For the tests of i18n, which sits below the configuration: the language setting given
// directly. The test main registers the configuration's reader again at each test start.
#pragma once

#include <string>

#include "i18n/language.h"

inline void UseLanguageSetting(const std::wstring& setting) {
  static std::wstring given;
  given = setting;
  SetLanguageSettingReader([] { return given; });
}
