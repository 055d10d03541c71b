#include "guard/update_policy.h"

#include <gtest/gtest.h>

#include "tests/support/fake_machine_registry.h"
#include "tests/support/fake_platform.h"

const std::wstring kUpdate = kWindowsUpdatePolicyKey;
const std::wstring kAu = kWindowsUpdateAuPolicyKey;
using Values = std::map<std::wstring, FakeMachineRegistry::Value>;

TEST(ApplyWindowsUpdatePolicy, WritesEveryValueReadsBackStrictAndLogs) {
  FakeMachineRegistry& registry = FakeRegistry();
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  EXPECT_EQ(registry.calls.size(), 13u);  // two keys opened, nine values set, two keys closed
  EXPECT_EQ(registry.keys[kUpdate].size(), 4u);
  EXPECT_EQ(registry.keys[kAu].size(), 5u);
  EXPECT_TRUE(IsStrictUpdatePolicy(ReadWindowsUpdatePolicy(registry)));
  EXPECT_EQ(Fake().log, std::vector<std::wstring>{
                            L"windows update manual-restart policy applied: AUOptions=3 "
                            L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
                            L"deadlines=0"});
}

TEST(ApplyWindowsUpdatePolicy, FailuresStopAtAKeyButNotAtAValue) {
  const std::tuple<std::wstring, long, const wchar_t*, const wchar_t*, size_t> cases[] = {
      {kUpdate, 5, L"", L"windows update policy failed: create WindowsUpdate key error=5", 1},
      {kAu, -2, L"", L"windows update policy failed: create AU key error=-2", 7},
      {L"", 0, L"ConfigureDeadlineGracePeriod",
       L"windows update manual-restart policy failed while writing values", 13},
  };
  for (const auto& [failing_key, error, failing_value, line, calls] : cases) {
    ResetFakePlatform();
    if (!failing_key.empty()) FakeRegistry().create_errors[failing_key] = error;
    FakeRegistry().failing_values.insert(failing_value);
    EXPECT_FALSE(ApplyWindowsUpdatePolicy()) << line;
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{line});
    EXPECT_EQ(FakeRegistry().calls.size(), calls) << line;
  }
}

// update_policy_scenario.sh compares whole lines; the largest value is left to this test.
TEST(LogWindowsUpdatePolicyStatus, TheLargestValueInFull) {
  FakeRegistry().keys[kUpdate] = {{L"SetComplianceDeadline", {true, 4294967295u}}};
  LogWindowsUpdatePolicyStatus();
  EXPECT_TRUE(Fake().log.at(0).ends_with(L" SetComplianceDeadline=4294967295"));
}

TEST(LogWindowsUpdatePolicyStatus, StrictOnlyWhileNothingAllowsAForcedRestart) {
  const Values written = {{L"NoAutoUpdate", {true, 0}},
                          {L"AUOptions", {true, 3}},
                          {L"NoAutoRebootWithLoggedOnUsers", {true, 1}},
                          {L"AlwaysAutoRebootAtScheduledTime", {true, 0}}};
  // A value changed from what was written (the deadline in the other key), and the verdict.
  const std::tuple<const char*, const wchar_t*, FakeMachineRegistry::Value, bool> cases[] = {
      {"as written", L"SetComplianceDeadline", {true, 0}, true},
      {"a compliance deadline", L"SetComplianceDeadline", {true, 1}, false},
      {"AUOptions 4", L"AUOptions", {true, 4}, false},
      // No deadline at all here, and a text value is no value: both leave the policy strict.
      {"NoAutoUpdate as text counts as absent", L"NoAutoUpdate", {false, 1}, true},
      {"automatic update switched off", L"NoAutoUpdate", {true, 1}, false},
      {"reboot with users signed in", L"NoAutoRebootWithLoggedOnUsers", {true, 0}, false},
      {"forced restart at the scheduled time",
       L"AlwaysAutoRebootAtScheduledTime",
       {true, 1},
       false}};
  for (const auto& [what, name, value, strict] : cases) {
    ResetFakePlatform();
    FakeRegistry().keys[kAu] = written;
    const bool deadline = std::wstring(name) == L"SetComplianceDeadline";
    FakeRegistry().keys[deadline ? kUpdate : kAu][name] = value;
    LogWindowsUpdatePolicyStatus();
    const std::wstring verdict = strict ? L"status: strict " : L"status: not-strict ";
    EXPECT_NE(Fake().log.at(0).find(verdict), std::wstring::npos) << what;
  }
}
