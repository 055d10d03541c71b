// The locale seam and the language picker with the platform's real locale data.
#include <gtest/gtest.h>

#include "i18n/language.h"
#include "i18n/language_picker.h"
#include "i18n/locale_system.h"
#include "tests/support/language_setting.h"

TEST(LocaleSystem, TagsCompareIgnoringCaseUnknownTagsHaveNoTextsWindowsNamesAKnownTag) {
  EXPECT_TRUE(EqualsOrdinalIgnoreCase(L"sr-Latn-RS", L"SR-LATN-rs"));
  EXPECT_FALSE(EqualsOrdinalIgnoreCase(L"sr-Latn", L"sr-Latn-RS"));
  std::wstring out;
  EXPECT_FALSE(LocaleInfoText(L"auto", kLocaleDayName1, out));
  EXPECT_FALSE(SystemUiLocaleName().empty());
}

TEST(LanguagePickerItems, NamesComeFromTheLocaleData) {
  UseLanguageSetting(L"en-US");
  const std::vector<std::wstring> items = LanguagePickerItems();
  ASSERT_GT(items.size(), 8u);
  // The native name first, then the English one, then the tag.
  const std::wstring& czech = items[8];
  EXPECT_LT(czech.find(L"\u010De\u0161tina"), czech.find(L" / Czech")) << czech;
  EXPECT_NE(czech.find(L" / Czech"), std::wstring::npos) << czech;
  EXPECT_TRUE(czech.ends_with(L" (cs-CZ)")) << czech;
}
