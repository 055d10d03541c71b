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

TEST(WindowsUpdatePolicy, TextValueCountsAsAbsent) {
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  HKEY key = nullptr;
  ASSERT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, kWindowsUpdateAuPolicyKey, 0, KEY_SET_VALUE, &key),
            ERROR_SUCCESS);
  const wchar_t text[] = L"1";
  RegSetValueExW(key, L"NoAutoUpdate", 0, REG_SZ, reinterpret_cast<const BYTE*>(text),
                 sizeof(text));
  RegCloseKey(key);
  const UpdatePolicyReading reading = ReadWindowsUpdatePolicy(SystemMachineRegistry());
  EXPECT_FALSE(reading.no_auto_update.has_value());
  EXPECT_TRUE(IsStrictUpdatePolicy(reading));
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Policies\\Microsoft\\Windows\\WindowsUpdate");
}

}  // namespace
