#include "i18n/string_table.h"

#include <gtest/gtest.h>

#include "i18n/language.h"
#include "i18n/localized.h"
#include "tests/support/fake_platform.h"
#include "tests/support/language_setting.h"

namespace {

const int kCs = LanguageColumnIndex(L"cs");
const int kEn = LanguageColumnIndex(L"en");

TEST(StringTable, EveryCellIsFilledAndTheCzechColumnRepeatsTheKey) {
  for (size_t row = 0; row < kStringRowCount; ++row) {
    ASSERT_NE(kStringTable[row].key, nullptr);
    EXPECT_STREQ(kStringTable[row].key, kStringTable[row].cells[kCs]) << row;
    for (size_t column = 0; column < kLanguageColumnCount; ++column) {
      ASSERT_NE(kStringTable[row].cells[column], nullptr) << row << " " << column;
      EXPECT_NE(kStringTable[row].cells[column][0], L'\0') << row << " " << column;
    }
  }
  EXPECT_EQ(kUntranslatedCells[kCs], 0);
  EXPECT_EQ(kUntranslatedCells[kEn], 0);
}

TEST(StringTable, EveryColumnIsTranslated) {
  for (size_t column = 0; column < kLanguageColumnCount; ++column) {
    EXPECT_EQ(kUntranslatedCells[column], 0) << kLanguageColumns[column];
  }
}

TEST(StringTable, TranslatedColumnsDifferFromEnglish) {
  // The block reason and the Exit label are real sentences and words in every language.
  for (size_t column = 0; column < kLanguageColumnCount; ++column) {
    if (static_cast<int>(column) == kEn) continue;
    EXPECT_STRNE(kStringTable[3].cells[column], kStringTable[3].cells[kEn])
        << kLanguageColumns[column];
    EXPECT_STRNE(kStringTable[51].cells[column], kStringTable[51].cells[kEn])
        << kLanguageColumns[column];
  }
}

TEST(StringTable, RowsKeepTheirPlaces) {
  const struct {
    size_t row;
    const wchar_t* en;
  } cases[] = {
      {0, L"Automatic (Windows)"},
      {3, L"Stayhold is blocking a planned restart. Exit or disable the guard to restart."},
      {24, L" (overnight)"},
      {53, L"Stayhold"},
      {199, L"Stayhold is already running in the notification area."},
  };
  for (const auto& c : cases)
    EXPECT_STREQ(kStringTable[c.row].cells[kEn], c.en) << c.row;
}

TEST(Localized, RowCellsByLanguageAndFallBacksWithoutARow) {
  const std::wstring block_cs =
      L"Stayhold blokuje plánovaný restart. Pro restart ukončete aplikaci nebo vypněte ochranu.";
  const std::wstring block_en =
      L"Stayhold is blocking a planned restart. Exit or disable the guard to restart.";
  const struct {
    const char* what;
    const wchar_t* language;
    const wchar_t* windows;
    std::wstring cs;
    std::wstring en;
    std::wstring expected;
  } cases[] = {
      {"cs-CZ with a row gives the key", L"cs-CZ", L"en-US", block_cs, L"ignored", block_cs},
      {"en-US with a row gives the row's English cell, not the caller's", L"en-US", L"en-US",
       block_cs, L"caller text", block_en},
      {"cs-CZ without a row gives the Czech text", L"cs-CZ", L"en-US", L"Bez řádku", L"No row",
       L"Bez řádku"},
      {"de-DE without a row gives English", L"de-DE", L"en-US", L"Bez řádku", L"No row", L"No row"},
      {"auto follows Windows into Czech", L"auto", L"cs-CZ", L"Bez řádku", L"No row", L"Bez řádku"},
      {"auto with Windows outside the table gives English", L"auto", L"xx-YY", L"Bez řádku",
       L"No row", L"No row"},
  };
  for (const auto& c : cases) {
    UseLanguageSetting(c.language);
    Fake().ui_locale = c.windows;
    EXPECT_EQ(Localized(c.cs, c.en), c.expected) << c.what;
  }
}

TEST(Localized, ReadsTheColumnOfTheEffectiveLanguage) {
  const std::wstring key = kStringTable[51].key;  // "Exit"
  const struct {
    const wchar_t* language;
    const wchar_t* column;
  } cases[] = {
      {L"ja-JP", L"ja"},      {L"ar-SA", L"ar"},    {L"sr-Latn-BA", L"sr-Latn"},
      {L"sr-Cyrl-RS", L"sr"}, {L"zh-HK", L"zh-CN"}, {L"ca-ES-valencia", L"ca"},
      {L"nn-NO", L"no"},      {L"de-AT", L"de"},
  };
  for (const auto& c : cases) {
    UseLanguageSetting(c.language);
    EXPECT_EQ(Localized(key, L"Exit"), kStringTable[51].cells[LanguageColumnIndex(c.column)])
        << c.language;
  }
}

TEST(Localized, RowsWithADoubledBackslashAreNeverFound) {
  // The call sites pass a single backslash, so these rows fall back to the pair itself.
  const struct {
    size_t row;
    const wchar_t* cs;
    const wchar_t* en;
  } cases[] = {
      {9,
       L"Tvorba vlastních vzhledů je popsána v souboru skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt. "
       L"Odkaz ho umí přímo otevřít.",
       L"Custom skin authoring is documented in skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt. The link "
       L"can open it directly."},
      {64, L"Výchozí cesta je C:\\Program Files\\Stayhold. Můžete ji změnit na jinou složku.",
       L"The default path is C:\\Program Files\\Stayhold. You can change it to another folder."},
  };
  for (const auto& c : cases) {
    EXPECT_NE(std::wstring(kStringTable[c.row].key).find(L"\\\\"), std::wstring::npos) << c.row;
    EXPECT_EQ(FindStringRow(c.cs), nullptr) << c.row;
    UseLanguageSetting(L"de-DE");
    EXPECT_EQ(Localized(c.cs, c.en), c.en) << c.row;
    UseLanguageSetting(L"cs-CZ");
    EXPECT_EQ(Localized(c.cs, c.en), c.cs) << c.row;
  }
  EXPECT_NE(std::wstring(kStringTable[10].key).find(L"skins\\\\HOW_TO"), std::wstring::npos);
}

TEST(FindStringRow, FirstRowWithTheKeyWins) {
  // "Desktop shortcut" stands twice (rows 39 and 68), as does the running-check notice.
  EXPECT_EQ(FindStringRow(kStringTable[68].key), &kStringTable[39]);
  EXPECT_EQ(FindStringRow(kStringTable[152].key), &kStringTable[102]);
  EXPECT_EQ(FindStringRow(L"Profil"), &kStringTable[11]);
  EXPECT_EQ(FindStringRow(L"profil"), nullptr);  // exact comparison
}

}  // namespace
