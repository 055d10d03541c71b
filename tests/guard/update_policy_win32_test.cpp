// The policy writer against the real registry (Wine runs as administrator).
// update_policy_scenario.sh runs it by name to leave the written policy behind, and checks every
// value through the guard's own status line.
#include <windows.h>

#include <gtest/gtest.h>

#include "guard/update_policy.h"

namespace {

TEST(WindowsUpdatePolicy, ApplyWritesEveryValueAndReadsBackStrict) {
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  EXPECT_TRUE(IsStrictUpdatePolicy(ReadWindowsUpdatePolicy(SystemMachineRegistry())));
}

}  // namespace
