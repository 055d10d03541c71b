// The guard decision: from the configuration and a local time, whether a planned restart is to be
// refused now, with the texts the tray, the settings dialog and the hidden window show for it.
// A pure function of its inputs; the production entry reads the clock only when the guard is on.
#pragma once

#include <string>

#include "guard/config.h"
#include "guard/local_time.h"

struct GuardStatus {
  bool guard_enabled = false;
  bool blocking = false;
  bool in_restart_window = false;
  std::wstring active_profile_name;
  std::wstring window_label;
};

// Whether `window` is open at `now`; a window whose end is not above its start is overnight.
bool RestartWindowMatches(const RestartWindow& window, const LocalTime& now);

GuardStatus EvaluateGuardStatusAt(const StayholdConfig& config, const LocalTime& now);

// Reads the local clock unless the guard is off.
GuardStatus EvaluateGuardStatus(const StayholdConfig& config);

// "stayhold-active" while blocking, else "stayhold-idle": the status chip's style variant.
const wchar_t* GuardStatusChipVariant(const GuardStatus& status);
