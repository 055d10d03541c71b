#include "i18n/language_picker.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"
#include "tests/support/language_setting.h"

TEST(LanguagePicker, AutomaticFirstThenEveryEntryCountingFromOne) {
  const std::vector<std::wstring> items = LanguagePickerItems();
  ASSERT_EQ(items.size(), 89u);
  EXPECT_EQ(items[0], L"Automatic (Windows)");
  // The fake platform names en-US and cs-CZ; other tags stand for their own names.
  EXPECT_EQ(items[1], L"ar-SA (ar-SA)");
  EXPECT_EQ(items[8], L"čeština / Czech (cs-CZ)");
  EXPECT_EQ(items[11], L"English (en-US)");  // same native and English name: no " / "
  const std::pair<const wchar_t*, int> cases[] = {
      {L"ar-SA", 1}, {L"cy-GB", 88}, {L"xx", 0}, {L"de-AT", 18}};
  for (const auto& [language, index] : cases) {
    UseLanguageSetting(language);
    EXPECT_EQ(LanguagePickerIndex(), index) << language;
  }
  UseLanguageSetting(L"cs-CZ");
  EXPECT_EQ(LanguagePickerItems()[0], L"Automaticky (Windows)");
}
