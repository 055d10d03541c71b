#include "guard/update_policy.h"

#include <gtest/gtest.h>

#include "tests/support/fake_machine_registry.h"
#include "tests/support/fake_platform.h"

namespace {

const std::wstring kUpdate = kWindowsUpdatePolicyKey;
const std::wstring kAu = kWindowsUpdateAuPolicyKey;

TEST(ApplyWindowsUpdatePolicy, WritesNineValuesInOrderAndLogs) {
  FakeMachineRegistry& registry = FakeRegistry();
  ASSERT_TRUE(ApplyWindowsUpdatePolicy());
  const std::vector<std::wstring> expected = {
      L"create " + kUpdate,
      L"set SetComplianceDeadline=0",
      L"set ConfigureDeadlineForQualityUpdates=0",
      L"set ConfigureDeadlineForFeatureUpdates=0",
      L"set ConfigureDeadlineGracePeriod=0",
      L"close",
      L"create " + kAu,
      L"set NoAutoUpdate=0",
      L"set AUOptions=3",
      L"set NoAutoRebootWithLoggedOnUsers=1",
      L"set AlwaysAutoRebootAtScheduledTime=0",
      L"set AlwaysAutoRebootAtScheduledTimeMinutes=0",
      L"close",
  };
  EXPECT_EQ(registry.calls, expected);
  EXPECT_EQ(Fake().log, std::vector<std::wstring>{
                            L"windows update manual-restart policy applied: AUOptions=3 "
                            L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
                            L"deadlines=0"});
  EXPECT_TRUE(IsStrictUpdatePolicy(ReadWindowsUpdatePolicy(registry)));
}

TEST(ApplyWindowsUpdatePolicy, KeyCreationFailuresStopWithTheirLogLine) {
  const struct {
    const char* what;
    std::wstring key;
    long error;
    const wchar_t* line;
    size_t calls;
  } cases[] = {
      {"first key", kUpdate, 5, L"windows update policy failed: create WindowsUpdate key error=5",
       1},
      {"AU key", kAu, 5, L"windows update policy failed: create AU key error=5", 7},
      {"negative code keeps its sign", kAu, -2,
       L"windows update policy failed: create AU key error=-2", 7},
  };
  for (const auto& c : cases) {
    ResetFakePlatform();
    FakeRegistry().create_errors[c.key] = c.error;
    EXPECT_FALSE(ApplyWindowsUpdatePolicy()) << c.what;
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{c.line}) << c.what;
    EXPECT_EQ(FakeRegistry().calls.size(), c.calls) << c.what;
  }
}

TEST(ApplyWindowsUpdatePolicy, AFailedValueFailsTheWholeButEveryWriteIsMade) {
  for (const wchar_t* failing : {L"ConfigureDeadlineGracePeriod", L"AUOptions"}) {
    ResetFakePlatform();
    FakeRegistry().failing_values.insert(failing);
    EXPECT_FALSE(ApplyWindowsUpdatePolicy()) << failing;
    EXPECT_EQ(FakeRegistry().calls.size(), 13u) << failing;
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{
                              L"windows update manual-restart policy failed while writing values"});
  }
}

using Value = FakeMachineRegistry::Value;

struct StatusCase {
  const char* what;
  std::map<std::wstring, Value> update_key;
  std::map<std::wstring, Value> au_key;
  const wchar_t* line;
};

TEST(LogWindowsUpdatePolicyStatus, JudgesFiveValues) {
  const std::map<std::wstring, Value> written_au = {
      {L"NoAutoUpdate", {true, 0}},
      {L"AUOptions", {true, 3}},
      {L"NoAutoRebootWithLoggedOnUsers", {true, 1}},
      {L"AlwaysAutoRebootAtScheduledTime", {true, 0}},
  };
  auto with = [&](const wchar_t* name, Value value) {
    auto au = written_au;
    au[name] = value;
    return au;
  };
  const StatusCase cases[] = {
      {"no keys at all",
       {},
       {},
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=<missing> "
       L"AUOptions=<missing> NoAutoRebootWithLoggedOnUsers=<missing> "
       L"AlwaysAutoRebootAtScheduledTime=<missing> SetComplianceDeadline=<missing>"},
      {"as written",
       {{L"SetComplianceDeadline", {true, 0}}},
       written_au,
       L"windows update manual-restart policy status: strict NoAutoUpdate=0 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=0"},
      {"deadline deleted by hand is still strict",
       {},
       written_au,
       L"windows update manual-restart policy status: strict NoAutoUpdate=0 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=<missing>"},
      {"AUOptions 4",
       {},
       with(L"AUOptions", {true, 4}),
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=0 AUOptions=4 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=<missing>"},
      {"NoAutoUpdate as text counts as absent",
       {},
       with(L"NoAutoUpdate", {false, 1}),
       L"windows update manual-restart policy status: strict NoAutoUpdate=<missing> AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=<missing>"},
      {"automatic update switched off",
       {},
       with(L"NoAutoUpdate", {true, 1}),
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=1 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=<missing>"},
      {"reboot with users signed in allowed",
       {},
       with(L"NoAutoRebootWithLoggedOnUsers", {true, 0}),
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=0 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=0 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=<missing>"},
      {"forced restart at the scheduled time",
       {},
       with(L"AlwaysAutoRebootAtScheduledTime", {true, 1}),
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=0 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=1 "
       L"SetComplianceDeadline=<missing>"},
      {"a compliance deadline",
       {{L"SetComplianceDeadline", {true, 1}}},
       written_au,
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=0 AUOptions=3 "
       L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 "
       L"SetComplianceDeadline=1"},
      {"a large value in decimal",
       {{L"SetComplianceDeadline", {true, 4294967295u}}},
       {},
       L"windows update manual-restart policy status: not-strict NoAutoUpdate=<missing> "
       L"AUOptions=<missing> NoAutoRebootWithLoggedOnUsers=<missing> "
       L"AlwaysAutoRebootAtScheduledTime=<missing> SetComplianceDeadline=4294967295"},
  };
  for (const StatusCase& c : cases) {
    ResetFakePlatform();
    if (!c.update_key.empty()) FakeRegistry().keys[kUpdate] = c.update_key;
    if (!c.au_key.empty()) FakeRegistry().keys[kAu] = c.au_key;
    LogWindowsUpdatePolicyStatus();
    EXPECT_EQ(Fake().log, std::vector<std::wstring>{c.line}) << c.what;
  }
}

}  // namespace
