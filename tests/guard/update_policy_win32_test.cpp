// The policy writer and reader against the real registry (Wine runs as administrator).
// update_policy_scenario.sh runs the first test by name to leave the written policy behind.
#include <windows.h>

#include <gtest/gtest.h>

#include "guard/update_policy.h"

namespace {

DWORD ReadDword(const wchar_t* key, const wchar_t* name) {
  DWORD data = 0xFFFFFFFF, size = sizeof(data);
  RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_DWORD, nullptr, &data, &size);
  return data;
}

TEST(WindowsUpdatePolicy, ApplyWritesEveryValueAndReadsBackStrict) {
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  EXPECT_EQ(ReadDword(kWindowsUpdatePolicyKey, L"SetComplianceDeadline"), 0u);
  EXPECT_EQ(ReadDword(kWindowsUpdateAuPolicyKey, L"NoAutoRebootWithLoggedOnUsers"), 1u);
  const UpdatePolicyReading reading = ReadWindowsUpdatePolicy(SystemMachineRegistry());
  EXPECT_TRUE(IsStrictUpdatePolicy(reading));
  EXPECT_EQ(reading.au_options, 3u);
}

TEST(WindowsUpdatePolicy, TextValueCountsAsAbsent) {
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  const wchar_t text[] = L"1";
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kWindowsUpdateAuPolicyKey, L"NoAutoUpdate", REG_SZ,
                            text, sizeof(text)),
            ERROR_SUCCESS);
  const UpdatePolicyReading reading = ReadWindowsUpdatePolicy(SystemMachineRegistry());
  EXPECT_FALSE(reading.no_auto_update.has_value());
  EXPECT_TRUE(IsStrictUpdatePolicy(reading));
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Policies\\Microsoft\\Windows\\WindowsUpdate");
}

}  // namespace
