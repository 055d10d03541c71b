#include "guard/guard_text.h"

#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "guard/guard_status.h"
#include "i18n/language.h"
#include "i18n/string_table.h"
#include "tests/support/fake_platform.h"

namespace {

TEST(FormatMinutes, PadsAndClamps) {
  const struct {
    int minutes;
    const wchar_t* text;
  } cases[] = {
      {0, L"00:00"},    {5, L"00:05"},    {60, L"01:00"},    {780, L"13:00"},
      {1439, L"23:59"}, {1440, L"23:59"}, {99999, L"23:59"}, {-1, L"00:00"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FormatMinutes(c.minutes), c.text) << c.minutes;
}

TEST(ProfileDisplayName, TrimsOrFallsBackToNumberedName) {
  const struct {
    const wchar_t* name;
    int index;
    const wchar_t* shown;
  } cases[] = {
      {L"Work week", 0, L"Work week"}, {L"  Night \t", 4, L"Night"}, {L"", 0, L"Profile 1"},
      {L"   ", 1, L"Profile 2"},       {L"\t\n", 7, L"Profile 8"},   {L"", -5, L"Profile 1"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ProfileDisplayName(BehaviorProfile{c.name, {}}, c.index), c.shown) << c.index;
  }
}

TEST(ProfileDisplayName, UnnamedProfileSpeaksCzechInCzech) {
  AppConfig().language = L"cs-CZ";
  EXPECT_EQ(ProfileDisplayName(BehaviorProfile{}, 2), L"Profil 3");
}

TEST(DayName, ClampsDaysAndFollowsTheLanguage) {
  EXPECT_EQ(DayName(0), L"Monday");
  EXPECT_EQ(DayName(6), L"Sunday");
  EXPECT_EQ(DayName(-4), L"Monday");
  EXPECT_EQ(DayName(12), L"Sunday");
  AppConfig().language = L"cs";
  EXPECT_EQ(DayName(3), L"čtvrtek");
}

TEST(DayName, LocaleWithoutNamesGivesTheTag) {
  // Windows in a language outside the table: the effective tag is "auto" and names fail.
  Fake().ui_locale = L"xx-YY";
  EXPECT_EQ(DayName(2), L"auto");
  AppConfig().language = L"de-AT";
  EXPECT_EQ(DayName(2), L"de-DE");
}

TEST(FormatWindowLabel, MarksOvernightWindows) {
  const struct {
    RestartWindow window;
    const wchar_t* label;
  } cases[] = {
      {{true, 4, 780, 1020}, L"Friday 13:00-17:00"},
      {{true, 4, 1320, 120}, L"Friday 22:00-02:00 (overnight)"},
      {{true, 6, 0, 0}, L"Sunday 00:00-00:00 (overnight)"},
      {{false, 0, 1439, 1438}, L"Monday 23:59-23:58 (overnight)"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FormatWindowLabel(c.window), c.label);
}

TEST(FormatWindowLabel, OvernightSuffixIsLocalized) {
  AppConfig().language = L"cs-CZ";
  EXPECT_EQ(FormatWindowLabel({true, 6, 1380, 60}), L"neděle 23:00-01:00 (přes noc)");
}

GuardStatus Off() {
  return GuardStatus{false, false, false, L"P", L""};
}
GuardStatus Blocking() {
  return GuardStatus{true, true, false, L"P", L""};
}
GuardStatus InWindow(const wchar_t* label) {
  return GuardStatus{true, false, true, L"P", label};
}

TEST(FormatGuardStatus, OneLinePerState) {
  const struct {
    GuardStatus status;
    const wchar_t* line;
    const wchar_t* tooltip;
  } cases[] = {
      {Off(), L"Status: protection is turned off in the tray menu", L"Stayhold: guard is off"},
      {Blocking(), L"Status: blocking planned restarts", L"Stayhold: blocking planned restarts"},
      {InWindow(L"Friday 13:00-17:00"),
       L"Status: a scheduled restart window is active (Friday 13:00-17:00)",
       L"Stayhold: scheduled allow - Friday 13:00-17:00"},
      {InWindow(L""), L"Status: a scheduled restart window is active",
       L"Stayhold: scheduled allow"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatGuardStatus(c.status), c.line);
    EXPECT_EQ(FormatTrayTooltip(c.status), c.tooltip);
  }
}

TEST(FormatGuardStatus, CzechTextsInCzech) {
  AppConfig().language = L"cs-CZ";
  EXPECT_EQ(FormatGuardStatus(Blocking()), L"Stav: blokuje plánované restarty");
  EXPECT_EQ(FormatTrayTooltip(Off()), L"Stayhold: ochrana je vypnutá");
  EXPECT_EQ(FormatTrayTooltip(InWindow(L"pátek 13:00-17:00")),
            L"Stayhold: plánované povolení - pátek 13:00-17:00");
}

TEST(FormatGuardStatus, OtherLanguagesReadTheirColumn) {
  AppConfig().language = L"de-DE";
  EXPECT_EQ(FormatTrayTooltip(Blocking()), kStringTable[27].cells[LanguageColumnIndex(L"de")]);
  AppConfig().language = L"en-GB";
  EXPECT_EQ(FormatTrayTooltip(Blocking()), L"Stayhold: blocking planned restarts");
}

}  // namespace
