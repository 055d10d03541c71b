#include "guard/session_end.h"

#include <gtest/gtest.h>

// guard_scenario.sh asks the running guard each flag alone and with the guard off; only the
// combination of a sign-out with close-app is left to this table.
TEST(SessionMayEnd, ASignOutPassesEvenWithCloseApp) {
  EXPECT_TRUE(SessionMayEnd(true, kEndSessionLogoff | kEndSessionCloseApp));
  EXPECT_FALSE(SessionMayEnd(true, kEndSessionCloseApp));
}
