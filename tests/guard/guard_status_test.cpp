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
      {"overnight head does not start early", Window(Friday, 22, 2), At(Fri, 21, 59), false},
      {"overnight tail of Sunday falls on Monday", Window(Sunday, 23, 1), At(Mon, 0, 30), true},
      {"Saturday's tail on Sunday", Window(Saturday, 23, 1), At(Sun, 0, 10), true},
      {"equal ends: open next day before the start", Window(Friday, 13, 13), At(Sat, 12, 59), true},
      {"equal ends: closed after 24 hours", Window(Friday, 13, 13), At(Sat, 13, 0), false},
      {"midnight to midnight: all of Sunday", Window(Sunday, 0, 0), At(Sun, 23, 59, 59), true},
      {"overnight to 00:00 ends at midnight", Window(Tuesday, 20, 0), At(Wed, 0, 0), false}};
  for (const auto& [what, window, now, match] : cases)
    EXPECT_EQ(RestartWindowMatches(window, now), match) << what;
}

// Off, blocking or in a window, whatever the hour; without windows it blocks.
TEST(EvaluateGuardStatus, OffBlockingOrInAWindow) {
  for (bool with_window : {true, false}) {
    StayholdConfig config = WithWindows({});
    if (with_window) config.profiles[0].windows.push_back(Window(Thursday, 13, 17));
    for (bool enabled : {true, false}) {
      config.guard_enabled = enabled;
      for (int hour = 0; hour < 24; ++hour) {
        for (WinDay day : {Sun, Thu}) {
          const GuardStatus s = EvaluateGuardStatusAt(config, At(day, hour, 0));
          const bool open = with_window && day == Thu && hour >= 13 && hour < 17;
          EXPECT_EQ(s.blocking, enabled && !open) << "day " << day << " hour " << hour;
          EXPECT_EQ(s.in_restart_window, enabled && open) << "day " << day << " hour " << hour;
          EXPECT_EQ(s.window_label.empty(), !s.in_restart_window);
          EXPECT_STREQ(GuardStatusChipVariant(s),
                       s.blocking ? L"stayhold-active" : L"stayhold-idle");
        }
      }
    }
  }
  // The production entry reads the clock.
  const StayholdConfig config = WithWindows({Window(Thursday, 13, 17)});
  Fake().now = At(Thu, 14, 0);
  EXPECT_FALSE(EvaluateGuardStatus(config).blocking);
  Fake().now = At(Thu, 17, 0);
  EXPECT_TRUE(EvaluateGuardStatus(config).blocking);
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
  config.profiles = {BehaviorProfile{L"First", {Window(Wednesday, 0, 0)}},
                     BehaviorProfile{L"  ", {}}, BehaviorProfile{L"", {}}};
  const std::tuple<int32_t, const wchar_t*, bool> cases[] = {{0, L"First", false},
                                                             {1, L"Profile 2", true},
                                                             {7, L"Profile 8", true},
                                                             {-3, L"First", false}};
  for (const auto& [stored_index, name, blocking] : cases) {
    config.active_profile_index = stored_index;
    const GuardStatus status = EvaluateGuardStatusAt(config, At(Wed, 12, 0));
    EXPECT_EQ(status.active_profile_name, name) << stored_index;
    EXPECT_EQ(status.blocking, blocking) << stored_index;
  }
}

}  // namespace
