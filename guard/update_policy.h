// The Windows Update policy that keeps the service from restarting on its own: nine DWORD values
// the setup writes (administrator rights needed), and the five the guard reads at each start to
// log whether the machine is in the wanted, "strict" state. The judgement changes nothing else.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "guard/machine_registry.h"

inline constexpr wchar_t kWindowsUpdatePolicyKey[] =
    L"Software\\Policies\\Microsoft\\Windows\\WindowsUpdate";
inline constexpr wchar_t kWindowsUpdateAuPolicyKey[] =
    L"Software\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU";

// The five values the judgement reads; absent when missing or not a 4-byte REG_DWORD.
struct UpdatePolicyReading {
  std::optional<uint32_t> no_auto_update;
  std::optional<uint32_t> au_options;
  std::optional<uint32_t> no_auto_reboot_with_logged_on_users;
  std::optional<uint32_t> always_auto_reboot_at_scheduled_time;
  std::optional<uint32_t> set_compliance_deadline;
};

bool ApplyWindowsUpdatePolicy(MachineRegistry& registry);
bool ApplyWindowsUpdatePolicy();

UpdatePolicyReading ReadWindowsUpdatePolicy(MachineRegistry& registry);
bool IsStrictUpdatePolicy(const UpdatePolicyReading& reading);
// "windows update manual-restart policy status: strict|not-strict NoAutoUpdate=... ..."
std::wstring FormatUpdatePolicyStatus(const UpdatePolicyReading& reading);

void LogWindowsUpdatePolicyStatus(MachineRegistry& registry);
void LogWindowsUpdatePolicyStatus();
