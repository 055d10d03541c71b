#include "i18n/language.h"

#include <gtest/gtest.h>

#include "i18n/language_picker.h"
#include "i18n/localized.h"
#include "tests/support/fake_platform.h"
#include "tests/support/language_setting.h"

namespace {

TEST(CanonicalizeTag, TrimsLowersAndTurnsUnderscores) {
  EXPECT_EQ(CanonicalizeTag(L"  sr_Latn_RS \t"), L"sr-latn-rs");
  EXPECT_EQ(CanonicalizeTag(L"EN-us"), L"en-us");
  EXPECT_EQ(CanonicalizeTag(L""), L"");
}

TEST(PrimarySubtag, NorwegianVariantsShareOneFamily) {
  const struct {
    const wchar_t* in;
    const wchar_t* out;
  } cases[] = {{L"nb-NO", L"no"},        {L"nn_NO", L"no"}, {L"NB", L"no"}, {L"zh-HK", L"zh"},
               {L"chr-CHER-US", L"chr"}, {L"", L""},        {L"-x", L""}};
  for (const auto& c : cases)
    EXPECT_EQ(PrimarySubtag(c.in), c.out) << c.in;
}

TEST(NormalizeLanguageSetting, FirstMatchInTableOrder) {
  const struct {
    const wchar_t* in;
    const wchar_t* out;
  } cases[] = {
      {L"", L"auto"},
      {L"auto", L"auto"},
      {L" AUTO ", L"auto"},
      {L"xx", L"auto"},
      {L"cs-CZ", L"cs-CZ"},
      {L"cs_cz", L"cs-CZ"},
      {L"cs", L"cs-CZ"},
      {L"de-AT", L"de-DE"},
      {L"fr", L"fr-CA"},
      {L"fr-FR", L"fr-FR"},
      {L"es", L"es-MX"},
      {L"pt", L"pt-BR"},
      {L"en", L"en-US"},
      {L"en-GB", L"en-GB"},
      {L"no", L"nb-NO"},
      {L"nn-NO", L"nn-NO"},
      {L"sr", L"sr-Cyrl-BA"},
      {L"sr-Latn", L"sr-Latn-RS"},
      {L"sr-Latn-BA", L"sr-Latn-RS"},
      {L"sr-Cyrl-RS", L"sr-Cyrl-RS"},
      {L"zh-HK", L"zh-CN"},
      {L"zh-tw", L"zh-TW"},
      {L"ca-ES-valencia", L"ca-ES-valencia"},
      {L"qu", L"quz-PE"},
      {L"quz", L"quz-PE"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(NormalizeLanguageSetting(c.in), c.out) << c.in;
}

TEST(CurrentLanguageIndex, SettingThenWindowsThenEnglish) {
  const struct {
    const char* what;
    const wchar_t* setting;
    const wchar_t* windows;
    const wchar_t* column;
  } cases[] = {
      {"explicit Czech", L"cs-CZ", L"en-US", L"cs"},
      {"auto follows Windows", L"auto", L"de-CH", L"de"},
      {"sr-Latn-RS reads sr-Latn", L"sr-Latn-RS", L"en-US", L"sr-Latn"},
      {"sr-Cyrl-RS reads sr", L"sr-Cyrl-RS", L"en-US", L"sr"},
      {"valencian reads Catalan", L"ca-ES-valencia", L"en-US", L"ca"},
      {"Norwegian nynorsk reads no", L"nn-NO", L"en-US", L"no"},
      {"unknown setting follows Windows", L"xx", L"ja-JP", L"ja"},
      {"Windows outside the table reads English", L"auto", L"xx-YY", L"en"},
      {"no Windows language reads English", L"auto", L"", L"en"},
  };
  for (const auto& c : cases) {
    UseLanguageSetting(c.setting);
    Fake().ui_locale = c.windows;
    EXPECT_EQ(CurrentLanguageIndex(), LanguageColumnIndex(c.column)) << c.what;
  }
}

TEST(EffectiveLanguageTag, AutoUsesWindowsOrEnUs) {
  UseLanguageSetting(L"auto");
  Fake().ui_locale = L"";
  EXPECT_EQ(EffectiveLanguageTag(), L"en-US");
  Fake().ui_locale = L"pt-PT";
  EXPECT_EQ(EffectiveLanguageTag(), L"pt-PT");
  Fake().ui_locale = L"xx-YY";
  EXPECT_EQ(EffectiveLanguageTag(), L"auto");
  UseLanguageSetting(L"es");
  EXPECT_EQ(EffectiveLanguageTag(), L"es-MX");
}

std::wstring reader_setting;
std::wstring ReadSetting() {
  return reader_setting;
}

TEST(LanguageSetting, ReadAtEveryLookupAndAutoWithoutAReader) {
  Fake().ui_locale = L"ja-JP";
  SetLanguageSettingReader(nullptr);
  EXPECT_EQ(LanguageSetting(), L"auto");
  EXPECT_EQ(EffectiveLanguageTag(), L"ja-JP");
  EXPECT_EQ(LanguagePickerIndex(), 0);

  SetLanguageSettingReader(&ReadSetting);
  reader_setting = L"de";
  EXPECT_EQ(EffectiveLanguageTag(), L"de-DE");
  reader_setting = L"cs";  // nothing is cached
  EXPECT_EQ(Localized(L"Ahoj", L"Hello"), L"Ahoj");
  EXPECT_EQ(LanguagePickerIndex(), 8);
}

TEST(LanguageColumnIndex, PositionsInColumnOrder) {
  EXPECT_EQ(LanguageColumnIndex(L"ar"), 0);
  EXPECT_EQ(LanguageColumnIndex(L"cs"), 7);
  EXPECT_EQ(LanguageColumnIndex(L"EN"), 10);
  EXPECT_EQ(LanguageColumnIndex(L"sr-latn"), 30);
  EXPECT_EQ(LanguageColumnIndex(L"cy"), 80);
  EXPECT_EQ(LanguageColumnIndex(L""), -1);
  EXPECT_EQ(LanguageColumnIndex(L"xx"), -1);
}

TEST(LocaleTableIndex, TagThenCodeThenFamily) {
  EXPECT_EQ(LocaleTableIndex(L"ar-SA"), 0);
  EXPECT_EQ(LocaleTableIndex(L"en-GB"), 11);
  EXPECT_EQ(LocaleTableIndex(L"en"), 10);
  EXPECT_EQ(LocaleTableIndex(L"cy-GB"), 87);
  EXPECT_EQ(LocaleTableIndex(L"ca-ES-valencia"), 86);
  EXPECT_EQ(LocaleTableIndex(L"de-AT"), 17);
  EXPECT_EQ(LocaleTableIndex(L"xx"), -1);
}

TEST(Localized, CzechInCzechEnglishElsewhere) {
  const struct {
    const wchar_t* setting;
    const wchar_t* windows;
    const wchar_t* expected;
  } cases[] = {
      {L"cs-CZ", L"en-US", L"Ahoj"}, {L"auto", L"cs-CZ", L"Ahoj"}, {L"de-DE", L"cs-CZ", L"Hello"},
      {L"auto", L"en-GB", L"Hello"}, {L"xx", L"xx-YY", L"Hello"},
  };
  for (const auto& c : cases) {
    UseLanguageSetting(c.setting);
    Fake().ui_locale = c.windows;
    EXPECT_EQ(Localized(L"Ahoj", L"Hello"), c.expected) << c.setting << " " << c.windows;
  }
}

}  // namespace
