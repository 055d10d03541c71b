#include "guard/guard_text.h"

#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "guard/guard_status.h"
#include "i18n/language.h"
#include "i18n/string_table.h"
#include "tests/support/fake_platform.h"

TEST(FormatMinutes, PadsAndClamps) {
  const std::pair<int, const wchar_t*> cases[] = {
      {5, L"00:05"}, {1210, L"20:10"}, {1440, L"23:59"}, {-1, L"00:00"}};
  for (const auto& [minutes, text] : cases)
    EXPECT_EQ(FormatMinutes(minutes), text) << minutes;
}

TEST(DayName, ClampsDaysAndFollowsTheLanguage) {
  EXPECT_EQ(DayName(-4), L"Monday");
  EXPECT_EQ(DayName(12), L"Sunday");
  // Windows in a language outside the table: the effective tag is "auto" and names fail.
  Fake().ui_locale = L"xx-YY";
  EXPECT_EQ(DayName(2), L"auto");
  AppConfig().language = L"de-AT";
  EXPECT_EQ(DayName(2), L"de-DE");
  AppConfig().language = L"cs";
  EXPECT_EQ(DayName(3), L"čtvrtek");
}

TEST(FormatWindowLabel, MarksOvernightWindows) {
  const std::pair<RestartWindow, const wchar_t*> cases[] = {
      {{true, 4, 780, 1020}, L"Friday 13:00-17:00"},
      {{true, 6, 0, 0}, L"Sunday 00:00-00:00 (overnight)"}};
  for (const auto& [window, label] : cases)
    EXPECT_EQ(FormatWindowLabel(window), label);
}

// The plain states' lines are table texts; the window's label is what is composed.
TEST(FormatGuardStatus, TheWindowLabelJoinsTheLine) {
  const std::tuple<GuardStatus, const wchar_t*, const wchar_t*> cases[] = {
      {{true, false, true, L"P", L"Friday 13:00-17:00"},
       L"Status: a scheduled restart window is active (Friday 13:00-17:00)",
       L"Stayhold: scheduled allow - Friday 13:00-17:00"},
      {{true, false, true, L"P", L""},
       L"Status: a scheduled restart window is active",
       L"Stayhold: scheduled allow"}};
  for (const auto& [status, line, tooltip] : cases) {
    EXPECT_EQ(FormatGuardStatus(status), line);
    EXPECT_EQ(FormatTrayTooltip(status), tooltip);
  }
}

TEST(GuardText, CzechInCzechAndTheTableElsewhere) {
  AppConfig().language = L"cs-CZ";
  EXPECT_EQ(ProfileDisplayName(BehaviorProfile{}, 2), L"Profil 3");
  EXPECT_EQ(FormatWindowLabel({true, 6, 1380, 60}), L"neděle 23:00-01:00 (přes noc)");
  const GuardStatus blocking{true, true, false, L"P", L""};
  EXPECT_EQ(FormatTrayTooltip(GuardStatus{true, false, true, L"P", L"pátek 13:00-17:00"}),
            L"Stayhold: plánované povolení - pátek 13:00-17:00");
  AppConfig().language = L"de-DE";
  EXPECT_EQ(FormatTrayTooltip(blocking), kStringTable[27].cells[LanguageColumnIndex(L"de")]);
}
