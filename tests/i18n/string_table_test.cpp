#include "i18n/string_table.h"

#include <gtest/gtest.h>

#include "i18n/language.h"
#include "i18n/localized.h"
#include "tests/support/fake_platform.h"
#include "tests/support/language_setting.h"

namespace {

const int kCs = LanguageColumnIndex(L"cs");
const int kEn = LanguageColumnIndex(L"en");
const KeyedStringRow& kBlockReason = kStringTable[3];
const KeyedStringRow& kExit = kStringTable[51];

// Every cell is filled and translated, and the Czech column repeats the key.
TEST(StringTable, EveryCellIsFilledAndTranslated) {
  for (size_t row = 0; row < kStringRowCount; ++row) {
    ASSERT_NE(kStringTable[row].key, nullptr);
    EXPECT_STREQ(kStringTable[row].key, kStringTable[row].cells[kCs]) << row;
    for (size_t column = 0; column < kLanguageColumnCount; ++column) {
      ASSERT_NE(kStringTable[row].cells[column], nullptr) << row << " " << column;
      EXPECT_NE(kStringTable[row].cells[column][0], L'\0') << row << " " << column;
    }
  }
  for (size_t column = 0; column < kLanguageColumnCount; ++column)
    EXPECT_EQ(kUntranslatedCells[column], 0) << kLanguageColumns[column];
}

TEST(Localized, RowCellsByLanguageAndFallBacksWithoutARow) {
  const std::wstring block_cs = kBlockReason.key;
  const std::wstring block_en = kBlockReason.cells[kEn];
  const std::tuple<const char*, const wchar_t*, const wchar_t*, std::wstring, std::wstring,
                   std::wstring>
      cases[] = {
          {"cs-CZ with a row gives the key", L"cs-CZ", L"en-US", block_cs, L"ignored", block_cs},
          {"en-US with a row gives the row's English cell, not the caller's", L"en-US", L"en-US",
           block_cs, L"caller text", block_en},
          {"de-DE without a row gives English", L"de-DE", L"en-US", L"Bez", L"No", L"No"},
          {"auto follows Windows into Czech", L"auto", L"cs-CZ", L"Bez", L"No", L"Bez"}};
  for (const auto& [what, language, windows, cs, en, expected] : cases) {
    UseLanguageSetting(language);
    Fake().ui_locale = windows;
    EXPECT_EQ(Localized(cs, en), expected) << what;
  }
  const std::pair<const wchar_t*, const wchar_t*> columns[] = {
      {L"sr-Latn-BA", L"sr-Latn"}, {L"zh-HK", L"zh-CN"}, {L"nn-NO", L"no"}};
  for (const auto& [language, column] : columns) {
    UseLanguageSetting(language);
    EXPECT_EQ(Localized(kExit.key, L"Exit"), kExit.cells[LanguageColumnIndex(column)]) << language;
  }
}

TEST(FindStringRow, FirstRowWithTheKeyWinsByExactComparison) {
  // "Desktop shortcut" stands twice (rows 39 and 68).
  EXPECT_EQ(FindStringRow(kStringTable[68].key), &kStringTable[39]);
  EXPECT_EQ(FindStringRow(L"Profil"), &kStringTable[11]);
  EXPECT_EQ(FindStringRow(L"profil"), nullptr);
}

}  // namespace
