#include "guard/guard_status.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

// Windows counts days of the week from Sunday = 0; the configuration from Monday = 0.
enum WinDay : uint16_t { Sun = 0, Mon, Tue, Wed, Thu, Fri, Sat };
enum Day : int32_t { Monday = 0, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday };

LocalTime At(WinDay day, uint16_t hour, uint16_t minute, uint16_t second = 0) {
  return LocalTime{2026, 1, day, 1, hour, minute, second};
}

RestartWindow Window(int32_t day, int from_hour, int to_hour, bool on = true) {
  return RestartWindow{on, day, from_hour * 60, to_hour * 60};
}

StayholdConfig WithWindows(std::vector<RestartWindow> windows) {
  StayholdConfig config;
  config.profiles.push_back(BehaviorProfile{L"Work", std::move(windows)});
  return config;
}

TEST(RestartWindowMatches, FollowsDayStartEndAndOvernightRules) {
  const std::tuple<const char*, RestartWindow, LocalTime, bool> cases[] = {
      {"start minute is inside", Window(Thursday, 13, 17), At(Thu, 13, 0), true},
      {"last second before the end is inside", Window(Thursday, 13, 17), At(Thu, 16, 59, 59), true},
      {"end minute is outside", Window(Thursday, 13, 17), At(Thu, 17, 0), false},
      {"disabled window never matches", Window(Thursday, 13, 17, false), At(Thu, 14, 0), false},
      {"overnight tail on the next day", Window(Friday, 22, 2), At(Sat, 1, 59), true},
      {"overnight tail ends at its end minute", Window(Friday, 22, 2), At(Sat, 2, 0), false},
      {"overnight tail of Sunday falls on Monday", Window(Sunday, 23, 1), At(Mon, 0, 30), true},
      {"equal ends: open next day before the start", Window(Friday, 13, 13), At(Sat, 12, 59), true},
      {"equal ends: closed after 24 hours", Window(Friday, 13, 13), At(Sat, 13, 0), false},
      {"overnight to 00:00 ends at midnight", Window(Tuesday, 20, 0), At(Wed, 0, 0), false}};
  for (const auto& [what, window, now, match] : cases)
    EXPECT_EQ(RestartWindowMatches(window, now), match) << what;
}

// guard_scenario.sh runs the guard inside and outside windows of the active profile; here the
// chip and label follow the state, and the production entry reads the clock.
TEST(EvaluateGuardStatus, ChipAndLabelFollowTheClock) {
  StayholdConfig config = WithWindows({Window(Thursday, 13, 17)});
  Fake().now = At(Thu, 14, 0);
  GuardStatus status = EvaluateGuardStatus(config);
  EXPECT_TRUE(status.in_restart_window && !status.blocking && !status.window_label.empty());
  EXPECT_STREQ(GuardStatusChipVariant(status), L"stayhold-idle");
  Fake().now = At(Thu, 17, 0);
  status = EvaluateGuardStatus(config);
  EXPECT_TRUE(status.blocking && !status.in_restart_window && status.window_label.empty());
  EXPECT_STREQ(GuardStatusChipVariant(status), L"stayhold-active");
  config.guard_enabled = false;
  status = EvaluateGuardStatus(config);
  EXPECT_FALSE(status.blocking || status.in_restart_window);
}

TEST(EvaluateGuardStatus, FirstStoredMatchGivesTheLabelAlsoThroughYesterday) {
  StayholdConfig config = WithWindows({Window(Wednesday, 8, 9), Window(Wednesday, 10, 12, false),
                                       Window(Wednesday, 11, 18), Window(Wednesday, 9, 20)});
  EXPECT_EQ(EvaluateGuardStatusAt(config, At(Wed, 11, 30)).window_label, L"Wednesday 11:00-18:00");
  config = WithWindows({Window(Sunday, 23, 1)});
  EXPECT_EQ(EvaluateGuardStatusAt(config, At(Mon, 0, 30)).window_label,
            L"Sunday 23:00-01:00 (overnight)");
}

TEST(EvaluateGuardStatus, ActiveIndexIsClampedButUnnamedProfilesShowTheStoredNumber) {
  StayholdConfig config;
  config.profiles = {BehaviorProfile{L" First\t", {Window(Wednesday, 0, 0)}},
                     BehaviorProfile{L"  ", {}}, BehaviorProfile{L"", {}}};
  const std::tuple<int32_t, const wchar_t*, bool> cases[] = {{0, L"First", false},
                                                             {7, L"Profile 8", true},
                                                             {-3, L"First", false},
                                                             {2, L"Profile 3", true}};
  for (const auto& [stored_index, name, blocking] : cases) {
    config.active_profile_index = stored_index;
    const GuardStatus status = EvaluateGuardStatusAt(config, At(Wed, 12, 0));
    EXPECT_EQ(status.active_profile_name, name) << stored_index;
    EXPECT_EQ(status.blocking, blocking) << stored_index;
  }
}

}  // namespace
