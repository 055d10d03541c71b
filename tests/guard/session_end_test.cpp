#include "guard/session_end.h"

#include <gtest/gtest.h>

TEST(SessionMayEnd, OnlyPlannedShutdownsAreRefusedWhileBlocking) {
  const std::tuple<const char*, bool, uint32_t, bool> cases[] = {
      {"not blocking: anything passes", false, kEndSessionCloseApp, true},
      {"plain shutdown or restart is refused", true, 0, false},
      {"sign-out passes", true, kEndSessionLogoff, true},
      {"critical shutdown passes", true, kEndSessionCritical, true},
      {"sign-out with close-app passes", true, kEndSessionLogoff | kEndSessionCloseApp, true},
      {"close-app alone is refused like a shutdown", true, kEndSessionCloseApp, false}};
  for (const auto& [what, blocking, flags, may_end] : cases)
    EXPECT_EQ(SessionMayEnd(blocking, flags), may_end) << what;
}
