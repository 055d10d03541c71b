#include "guard/guard_status.h"

#include <gtest/gtest.h>

#include "guard/guard_text.h"
#include "tests/support/fake_platform.h"

namespace {

// Windows counts days of the week from Sunday = 0.
enum WinDay : uint16_t { Sun = 0, Mon, Tue, Wed, Thu, Fri, Sat };
enum Day : int32_t { Monday = 0, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday };

LocalTime At(WinDay day, int hour, int minute, int second = 0) {
  LocalTime time;
  time.day_of_week = day;
  time.hour = static_cast<uint16_t>(hour);
  time.minute = static_cast<uint16_t>(minute);
  time.second = static_cast<uint16_t>(second);
  return time;
}

RestartWindow Window(int32_t day, int from_h, int from_m, int to_h, int to_m, bool on = true) {
  return RestartWindow{on, day, from_h * 60 + from_m, to_h * 60 + to_m};
}

StayholdConfig WithWindows(std::vector<RestartWindow> windows) {
  StayholdConfig config;
  config.profiles.push_back(BehaviorProfile{L"Work", std::move(windows)});
  return config;
}

struct MatchCase {
  const char* what;
  RestartWindow window;
  LocalTime now;
  bool match;
};

const MatchCase kMatchCases[] = {
    {"inside a plain window", Window(Thursday, 13, 0, 17, 0), At(Thu, 14, 0), true},
    {"start minute is inside", Window(Thursday, 13, 0, 17, 0), At(Thu, 13, 0), true},
    {"last second before the end is inside", Window(Thursday, 13, 0, 17, 0), At(Thu, 16, 59, 59),
     true},
    {"end minute is outside", Window(Thursday, 13, 0, 17, 0), At(Thu, 17, 0), false},
    {"right time, wrong day", Window(Thursday, 13, 0, 17, 0), At(Fri, 14, 0), false},
    {"disabled window never matches", Window(Thursday, 13, 0, 17, 0, false), At(Thu, 14, 0), false},
    {"overnight head on its own day", Window(Friday, 22, 0, 2, 0), At(Fri, 23, 0), true},
    {"overnight tail on the next day", Window(Friday, 22, 0, 2, 0), At(Sat, 1, 59), true},
    {"overnight tail ends at its end minute", Window(Friday, 22, 0, 2, 0), At(Sat, 2, 0), false},
    {"overnight head does not start early", Window(Friday, 22, 0, 2, 0), At(Fri, 21, 59), false},
    {"overnight tail of Sunday falls on Monday", Window(Sunday, 23, 0, 1, 0), At(Mon, 0, 30), true},
    {"Monday night is not Sunday's tail", Window(Sunday, 23, 0, 1, 0), At(Mon, 23, 30), false},
    {"Sunday head", Window(Sunday, 23, 0, 1, 0), At(Sun, 23, 30), true},
    {"Saturday's tail on Sunday", Window(Saturday, 23, 0, 1, 0), At(Sun, 0, 10), true},
    {"equal ends: not yet open before the start", Window(Friday, 13, 0, 13, 0), At(Fri, 12, 59),
     false},
    {"equal ends: open at the start", Window(Friday, 13, 0, 13, 0), At(Fri, 13, 0), true},
    {"equal ends: still open next day before the start", Window(Friday, 13, 0, 13, 0),
     At(Sat, 12, 59), true},
    {"equal ends: closed after 24 hours", Window(Friday, 13, 0, 13, 0), At(Sat, 13, 0), false},
    {"midnight to midnight covers all of Sunday (start)", Window(Sunday, 0, 0, 0, 0), At(Sun, 0, 0),
     true},
    {"midnight to midnight covers all of Sunday (end)", Window(Sunday, 0, 0, 0, 0),
     At(Sun, 23, 59, 59), true},
    {"midnight to midnight does not reach Monday", Window(Sunday, 0, 0, 0, 0), At(Mon, 0, 0),
     false},
    {"overnight ending at 00:00 does not cover the next day", Window(Tuesday, 20, 0, 0, 0),
     At(Wed, 0, 0), false},
};

TEST(RestartWindowMatches, FollowsDayStartEndAndOvernightRules) {
  for (const MatchCase& c : kMatchCases) {
    EXPECT_EQ(RestartWindowMatches(c.window, c.now), c.match) << c.what;
  }
}

TEST(EvaluateGuardStatus, EmptyWindowListBlocksAtAllTimes) {
  const StayholdConfig config = WithWindows({});
  for (WinDay day : {Sun, Mon, Wed, Sat}) {
    for (int hour : {0, 12, 23}) {
      const GuardStatus status = EvaluateGuardStatusAt(config, At(day, hour, 30));
      EXPECT_TRUE(status.guard_enabled);
      EXPECT_TRUE(status.blocking);
      EXPECT_FALSE(status.in_restart_window);
      EXPECT_TRUE(status.window_label.empty());
    }
  }
}

TEST(EvaluateGuardStatus, GuardOffIgnoresMatchingWindowAndTheClock) {
  StayholdConfig config = WithWindows({Window(Thursday, 13, 0, 17, 0)});
  config.guard_enabled = false;
  Fake().now = At(Thu, 14, 0);
  const GuardStatus status = EvaluateGuardStatus(config);
  EXPECT_FALSE(status.guard_enabled);
  EXPECT_FALSE(status.blocking);
  EXPECT_FALSE(status.in_restart_window);
  EXPECT_TRUE(status.window_label.empty());
  EXPECT_EQ(status.active_profile_name, L"Work");
}

TEST(EvaluateGuardStatus, ProductionEntryReadsTheClock) {
  const StayholdConfig config = WithWindows({Window(Thursday, 13, 0, 17, 0)});
  Fake().now = At(Thu, 14, 0);
  EXPECT_FALSE(EvaluateGuardStatus(config).blocking);
  Fake().now = At(Thu, 17, 0);
  EXPECT_TRUE(EvaluateGuardStatus(config).blocking);
}

TEST(EvaluateGuardStatus, OvernightMatchThroughYesterdayCarriesItsLabel) {
  const StayholdConfig config = WithWindows({Window(Sunday, 23, 0, 1, 0)});
  const GuardStatus status = EvaluateGuardStatusAt(config, At(Mon, 0, 30));
  EXPECT_TRUE(status.in_restart_window);
  EXPECT_FALSE(status.blocking);
  EXPECT_EQ(status.window_label, L"Sunday 23:00-01:00 (overnight)");
}

TEST(EvaluateGuardStatus, FirstStoredMatchGivesTheLabel) {
  const StayholdConfig config = WithWindows({
      Window(Wednesday, 8, 0, 9, 0),  // does not match
      Window(Wednesday, 10, 0, 12, 0, false),
      Window(Wednesday, 11, 0, 18, 0),  // first enabled match
      Window(Wednesday, 9, 0, 20, 0),
  });
  const GuardStatus status = EvaluateGuardStatusAt(config, At(Wed, 11, 30));
  EXPECT_TRUE(status.in_restart_window);
  EXPECT_EQ(status.window_label, L"Wednesday 11:00-18:00");
}

TEST(EvaluateGuardStatus, OnlyTheActiveProfileDecides) {
  StayholdConfig config;
  config.profiles.push_back(BehaviorProfile{L"Open", {Window(Wednesday, 0, 0, 0, 0)}});
  config.profiles.push_back(BehaviorProfile{L"Closed", {}});
  config.active_profile_index = 1;
  EXPECT_TRUE(EvaluateGuardStatusAt(config, At(Wed, 12, 0)).blocking);
  config.active_profile_index = 0;
  EXPECT_FALSE(EvaluateGuardStatusAt(config, At(Wed, 12, 0)).blocking);
}

struct IndexCase {
  const char* what;
  int32_t stored_index;
  const wchar_t* expected_name;
  bool expected_blocking;
};

TEST(EvaluateGuardStatus, ActiveIndexIsClampedButUnnamedProfilesShowTheStoredNumber) {
  StayholdConfig config;
  config.profiles.push_back(BehaviorProfile{L"First", {Window(Wednesday, 0, 0, 0, 0)}});
  config.profiles.push_back(BehaviorProfile{L"  ", {}});
  config.profiles.push_back(BehaviorProfile{L"", {}});
  const IndexCase cases[] = {
      {"in range, named", 0, L"First", false},
      {"in range, blank name", 1, L"Profile 2", true},
      {"too large: last profile decides, stored number shows", 7, L"Profile 8", true},
      {"negative: first profile decides", -3, L"First", false},
  };
  for (const IndexCase& c : cases) {
    config.active_profile_index = c.stored_index;
    const GuardStatus status = EvaluateGuardStatusAt(config, At(Wed, 12, 0));
    EXPECT_EQ(status.active_profile_name, c.expected_name) << c.what;
    EXPECT_EQ(status.blocking, c.expected_blocking) << c.what;
  }
}

TEST(EvaluateGuardStatus, OnlyThreeCombinationsExist) {
  StayholdConfig config = WithWindows({Window(Thursday, 13, 0, 17, 0)});
  for (bool enabled : {true, false}) {
    config.guard_enabled = enabled;
    for (int hour = 0; hour < 24; ++hour) {
      for (WinDay day : {Sun, Thu}) {
        const GuardStatus s = EvaluateGuardStatusAt(config, At(day, hour, 0));
        const bool off =
            !s.guard_enabled && !s.blocking && !s.in_restart_window && s.window_label.empty();
        const bool blocking =
            s.guard_enabled && s.blocking && !s.in_restart_window && s.window_label.empty();
        const bool window =
            s.guard_enabled && !s.blocking && s.in_restart_window && !s.window_label.empty();
        EXPECT_EQ(off + blocking + window, 1) << "day " << day << " hour " << hour;
      }
    }
  }
}

TEST(GuardStatusChipVariant, ActiveExactlyWhileBlocking) {
  GuardStatus status;
  status.guard_enabled = true;
  status.blocking = true;
  EXPECT_STREQ(GuardStatusChipVariant(status), L"stayhold-active");
  status.blocking = false;
  status.in_restart_window = true;
  EXPECT_STREQ(GuardStatusChipVariant(status), L"stayhold-idle");
  EXPECT_STREQ(GuardStatusChipVariant(GuardStatus{}), L"stayhold-idle");
}

}  // namespace
