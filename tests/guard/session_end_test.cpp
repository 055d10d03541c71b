#include "guard/session_end.h"

#include <gtest/gtest.h>

namespace {

TEST(SessionMayEnd, OnlyPlannedShutdownsAreRefusedWhileBlocking) {
  const struct {
    const char* what;
    bool blocking;
    uint32_t flags;
    bool may_end;
  } cases[] = {
      {"not blocking: anything passes", false, 0, true},
      {"not blocking, close-app", false, kEndSessionCloseApp, true},
      {"plain shutdown or restart is refused", true, 0, false},
      {"sign-out passes", true, kEndSessionLogoff, true},
      {"critical shutdown passes", true, kEndSessionCritical, true},
      {"sign-out with close-app passes", true, kEndSessionLogoff | kEndSessionCloseApp, true},
      {"close-app alone is refused like a shutdown", true, kEndSessionCloseApp, false},
      {"unknown bits are refused like a shutdown", true, 0x00000100, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(SessionMayEnd(c.blocking, c.flags), c.may_end) << c.what;
}

}  // namespace
