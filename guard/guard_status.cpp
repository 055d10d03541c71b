#include "guard/guard_status.h"

#include "guard/guard_text.h"

bool RestartWindowMatches(const RestartWindow& window, const LocalTime& now) {
  if (!window.enabled) return false;
  const int minute = now.hour * 60 + now.minute;  // seconds play no part
  const int today = now.day_of_week == 0 ? 6 : now.day_of_week - 1;
  const int yesterday = now.day_of_week == 0 ? 5 : (now.day_of_week + 5) % 7;
  if (window.to_minute > window.from_minute) {
    return window.day == today && minute >= window.from_minute && minute < window.to_minute;
  }
  // Overnight, and equal ends mean a full 24 hours from the start.
  return (window.day == today && minute >= window.from_minute) ||
         (window.day == yesterday && minute < window.to_minute);
}

namespace {

GuardStatus EvaluateWith(const StayholdConfig& config, const LocalTime* now_or_null,
                         LocalTime (*read_clock)()) {
  GuardStatus status;
  status.guard_enabled = config.guard_enabled;
  const BehaviorProfile* profile = nullptr;
  if (!config.profiles.empty()) {
    int index = config.active_profile_index;
    const int last = static_cast<int>(config.profiles.size()) - 1;
    if (index > last) index = last;
    if (index < 0) index = 0;
    profile = &config.profiles[static_cast<size_t>(index)];
    // An unnamed profile is numbered by the stored index, not the clamped one.
    status.active_profile_name = ProfileDisplayName(*profile, config.active_profile_index);
  }
  if (!config.guard_enabled) return status;

  const LocalTime now = now_or_null ? *now_or_null : read_clock();
  if (profile) {
    for (const RestartWindow& window : profile->windows) {
      if (RestartWindowMatches(window, now)) {
        status.in_restart_window = true;
        status.window_label = FormatWindowLabel(window);
        return status;
      }
    }
  }
  status.blocking = true;
  return status;
}

}  // namespace

GuardStatus EvaluateGuardStatusAt(const StayholdConfig& config, const LocalTime& now) {
  return EvaluateWith(config, &now, nullptr);
}

GuardStatus EvaluateGuardStatus(const StayholdConfig& config) {
  return EvaluateWith(config, nullptr, &CurrentLocalTime);
}

const wchar_t* GuardStatusChipVariant(const GuardStatus& status) {
  return status.blocking ? L"stayhold-active" : L"stayhold-idle";
}
