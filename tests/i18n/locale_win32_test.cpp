// Day names and the language fall-backs with the platform's real locale data.
#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "guard/guard_text.h"
#include "i18n/language.h"
#include "i18n/language_picker.h"
#include "i18n/locale_system.h"

namespace {

TEST(DayName, ComesFromTheLocale) {
  const struct {
    const wchar_t* language;
    int day;
    const wchar_t* name;
  } cases[] = {
      {L"en-US", 0, L"Monday"},     {L"en-US", 6, L"Sunday"},   {L"cs-CZ", 0, L"pond\u011Bl\u00ED"},
      {L"cs-CZ", 4, L"p\u00E1tek"}, {L"de-DE", 2, L"Mittwoch"},
  };
  for (const auto& c : cases) {
    AppConfig().language = c.language;
    EXPECT_EQ(DayName(c.day), c.name) << c.language << " " << c.day;
  }
}

TEST(LocaleInfoText, UnknownTagFails) {
  std::wstring out;
  EXPECT_FALSE(LocaleInfoText(L"auto", kLocaleDayName1, out));
}

TEST(EqualsOrdinalIgnoreCase, IgnoresCaseOnly) {
  EXPECT_TRUE(EqualsOrdinalIgnoreCase(L"sr-Latn-RS", L"SR-LATN-rs"));
  EXPECT_FALSE(EqualsOrdinalIgnoreCase(L"sr-Latn", L"sr-Latn-RS"));
  EXPECT_TRUE(EqualsOrdinalIgnoreCase(L"", L""));
}

TEST(SystemUiLocaleName, IsATagTheTableUnderstands) {
  const std::wstring name = SystemUiLocaleName();
  ASSERT_FALSE(name.empty());
  EXPECT_NE(NormalizeLanguageSetting(name), L"");
}

}  // namespace

namespace {

TEST(LanguagePickerItems, NamesComeFromTheLocaleData) {
  AppConfig().language = L"en-US";
  const std::vector<std::wstring> items = LanguagePickerItems();
  ASSERT_EQ(items.size(), 89u);
  EXPECT_EQ(items[0], L"Automatic (Windows)");
  const std::wstring czech = items[8];
  EXPECT_EQ(czech.rfind(L" (cs-CZ)"), czech.size() - 8) << czech;
  EXPECT_NE(czech.find(L"\u010De\u0161tina"), std::wstring::npos) << czech;  // native name first
  EXPECT_NE(czech.find(L" / Czech"), std::wstring::npos) << czech;
  EXPECT_LT(czech.find(L"\u010De\u0161tina"), czech.find(L" / Czech")) << czech;
}

}  // namespace
