#include "i18n/language.h"

#include <gtest/gtest.h>

#include "i18n/language_picker.h"
#include "i18n/localized.h"
#include "tests/support/fake_platform.h"
#include "tests/support/language_setting.h"

TEST(CanonicalizeTag, TrimsLowersAndTurnsUnderscoresAndTheNorwegiansShareAFamily) {
  EXPECT_EQ(CanonicalizeTag(L"  sr_Latn_RS \t"), L"sr-latn-rs");
  EXPECT_EQ(CanonicalizeTag(L""), L"");
  const std::pair<const wchar_t*, const wchar_t*> primary[] = {
      {L"nn_NO", L"no"}, {L"NB", L"no"}, {L"chr-CHER-US", L"chr"}, {L"-x", L""}};
  for (const auto& [in, out] : primary)
    EXPECT_EQ(PrimarySubtag(in), out) << in;
}

// By tag, then by language code, then by family, each taking the first entry in table order.
TEST(NormalizeLanguageSetting, FirstMatchInTableOrder) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L" AUTO ", L"auto"},        {L"xx", L"auto"},
      {L"cs_cz", L"cs-CZ"},        {L"de-AT", L"de-DE"},
      {L"sr-Latn", L"sr-Latn-RS"}, {L"ca-ES-valencia", L"ca-ES-valencia"}};
  for (const auto& [in, out] : cases)
    EXPECT_EQ(NormalizeLanguageSetting(in), out) << in;
}

// The column and the tag: the setting, else Windows' language, else English.
TEST(CurrentLanguage, SettingThenWindowsThenEnglish) {
  const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
      {L"cs-CZ", L"en-US", L"cs", L"cs-CZ"},
      {L"auto", L"de-CH", L"de", L"de-DE"},  // Windows' tag by family, too
      {L"auto", L"xx-YY", L"en", L"auto"},
      {L"auto", L"", L"en", L"en-US"}};
  for (const auto& [setting, windows, column, tag] : cases) {
    UseLanguageSetting(setting);
    Fake().ui_locale = windows;
    EXPECT_EQ(CurrentLanguageIndex(), LanguageColumnIndex(column)) << setting << " " << windows;
    EXPECT_EQ(EffectiveLanguageTag(), tag) << setting << " " << windows;
  }
}

static std::wstring reader_setting;

TEST(LanguageSetting, ReadAtEveryLookupAndAutoWithoutAReader) {
  Fake().ui_locale = L"ja-JP";
  SetLanguageSettingReader(nullptr);
  EXPECT_EQ(LanguageSetting(), L"auto");
  EXPECT_EQ(EffectiveLanguageTag(), L"ja-JP");
  EXPECT_EQ(LanguagePickerIndex(), 0);
  SetLanguageSettingReader([] { return reader_setting; });
  reader_setting = L"de";
  EXPECT_EQ(EffectiveLanguageTag(), L"de-DE");
  reader_setting = L"cs";  // nothing is cached
  EXPECT_EQ(Localized(L"Ahoj", L"Hello"), L"Ahoj");
  EXPECT_EQ(LanguagePickerIndex(), 8);
}

TEST(TableIndices, FirstMatchIgnoringCaseAndMinusOneForNothing) {
  EXPECT_EQ(LanguageColumnIndex(L"CS"), LanguageColumnIndex(L"cs"));
  EXPECT_GE(LanguageColumnIndex(L"cs"), 0);
  EXPECT_EQ(LanguageColumnIndex(L""), -1);
  EXPECT_EQ(LanguageColumnIndex(L"xx"), -1);
  EXPECT_STREQ(kLocaleTable[LocaleTableIndex(L"CS-cz")].tag, L"cs-CZ");  // by tag
  EXPECT_STREQ(kLocaleTable[LocaleTableIndex(L"en")].tag, L"en-US");     // by code
  EXPECT_STREQ(kLocaleTable[LocaleTableIndex(L"de-AT")].tag, L"de-DE");  // by family
  EXPECT_EQ(LocaleTableIndex(L"xx"), -1);
}
