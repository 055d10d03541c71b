#include "guard/update_policy.h"

#include "guard/log.h"
#include "base/wide_text.h"

namespace {

struct PolicyValue {
  const wchar_t* name;
  uint32_t data;
};

// Written in this order.
constexpr PolicyValue kUpdateValues[] = {
    {L"SetComplianceDeadline", 0},
    {L"ConfigureDeadlineForQualityUpdates", 0},
    {L"ConfigureDeadlineForFeatureUpdates", 0},
    {L"ConfigureDeadlineGracePeriod", 0},
};
constexpr PolicyValue kAuValues[] = {
    {L"NoAutoUpdate", 0},
    {L"AUOptions", 3},
    {L"NoAutoRebootWithLoggedOnUsers", 1},
    {L"AlwaysAutoRebootAtScheduledTime", 0},
    {L"AlwaysAutoRebootAtScheduledTimeMinutes", 0},
};

// Creates the key and writes every value, even after one failed; false when the key could not
// be created (logged) or any write failed.
bool WriteKey(MachineRegistry& registry, const wchar_t* key, const wchar_t* key_label,
              const PolicyValue* values, size_t count, bool& all_written) {
  const long error = registry.CreateKey(key);
  if (error != 0) {
    AppendLog(std::wstring(L"windows update policy failed: create ") + key_label + L" key error=" +
              SignedDecimalText(error));
    return false;
  }
  for (size_t i = 0; i < count; ++i) {
    all_written = registry.SetDword(values[i].name, values[i].data) && all_written;
  }
  registry.CloseKey();
  return true;
}

std::optional<uint32_t> Read(MachineRegistry& registry, const wchar_t* key, const wchar_t* name) {
  uint32_t value = 0;
  if (registry.ReadDword(key, name, value)) return value;
  return std::nullopt;
}

std::wstring ValueText(const std::optional<uint32_t>& value) {
  return value ? DecimalText(*value) : std::wstring(L"<missing>");
}

MachineRegistry& PolicyRegistry() {
  return MachineRegistryOverride() ? *MachineRegistryOverride() : SystemMachineRegistry();
}

}  // namespace

MachineRegistry*& MachineRegistryOverride() {
  static MachineRegistry* registry = nullptr;
  return registry;
}

bool ApplyWindowsUpdatePolicy(MachineRegistry& registry) {
  bool all_written = true;
  if (!WriteKey(registry, kWindowsUpdatePolicyKey, L"WindowsUpdate", kUpdateValues,
                std::size(kUpdateValues), all_written) ||
      !WriteKey(registry, kWindowsUpdateAuPolicyKey, L"AU", kAuValues, std::size(kAuValues),
                all_written)) {
    return false;
  }
  if (!all_written) {
    AppendLog(L"windows update manual-restart policy failed while writing values");
    return false;
  }
  AppendLog(
      L"windows update manual-restart policy applied: AUOptions=3 "
      L"NoAutoRebootWithLoggedOnUsers=1 AlwaysAutoRebootAtScheduledTime=0 deadlines=0");
  return true;
}

bool ApplyWindowsUpdatePolicy() {
  return ApplyWindowsUpdatePolicy(PolicyRegistry());
}

UpdatePolicyReading ReadWindowsUpdatePolicy(MachineRegistry& registry) {
  UpdatePolicyReading reading;
  reading.no_auto_update = Read(registry, kWindowsUpdateAuPolicyKey, L"NoAutoUpdate");
  reading.au_options = Read(registry, kWindowsUpdateAuPolicyKey, L"AUOptions");
  reading.no_auto_reboot_with_logged_on_users =
      Read(registry, kWindowsUpdateAuPolicyKey, L"NoAutoRebootWithLoggedOnUsers");
  reading.always_auto_reboot_at_scheduled_time =
      Read(registry, kWindowsUpdateAuPolicyKey, L"AlwaysAutoRebootAtScheduledTime");
  reading.set_compliance_deadline =
      Read(registry, kWindowsUpdatePolicyKey, L"SetComplianceDeadline");
  return reading;
}

bool IsStrictUpdatePolicy(const UpdatePolicyReading& r) {
  const auto absent_or_zero = [](const std::optional<uint32_t>& v) { return !v || *v == 0; };
  return absent_or_zero(r.no_auto_update) && r.au_options == 3u &&
         r.no_auto_reboot_with_logged_on_users == 1u &&
         absent_or_zero(r.always_auto_reboot_at_scheduled_time) &&
         absent_or_zero(r.set_compliance_deadline);
}

std::wstring FormatUpdatePolicyStatus(const UpdatePolicyReading& r) {
  return std::wstring(L"windows update manual-restart policy status: ") +
         (IsStrictUpdatePolicy(r) ? L"strict" : L"not-strict") + L" NoAutoUpdate=" +
         ValueText(r.no_auto_update) + L" AUOptions=" + ValueText(r.au_options) +
         L" NoAutoRebootWithLoggedOnUsers=" + ValueText(r.no_auto_reboot_with_logged_on_users) +
         L" AlwaysAutoRebootAtScheduledTime=" + ValueText(r.always_auto_reboot_at_scheduled_time) +
         L" SetComplianceDeadline=" + ValueText(r.set_compliance_deadline);
}

void LogWindowsUpdatePolicyStatus(MachineRegistry& registry) {
  AppendLog(FormatUpdatePolicyStatus(ReadWindowsUpdatePolicy(registry)));
}

void LogWindowsUpdatePolicyStatus() {
  LogWindowsUpdatePolicyStatus(PolicyRegistry());
}
