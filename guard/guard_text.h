// The texts derived from the guard model: profile and window labels, the status line and the tray
// tooltip, all in the user's language. Day names come from the platform's locale data.
#pragma once

#include <string>

#include "guard/config.h"

struct GuardStatus;

// The trimmed name, or "Profile N" with N = index + 1 (a negative index counts as 0).
std::wstring ProfileDisplayName(const BehaviorProfile& profile, int index);

// "HH:MM" of the minutes, clamped to 0..1439.
std::wstring FormatMinutes(int minutes);

// The localized weekday name of day 0 (Monday) .. 6 (Sunday), clamped; the language tag itself
// when the locale has no name for it.
std::wstring DayName(int day);

// "Day HH:MM-HH:MM", with the overnight suffix when the end is not above the start.
std::wstring FormatWindowLabel(const RestartWindow& window);

std::wstring FormatGuardStatus(const GuardStatus& status);
std::wstring FormatTrayTooltip(const GuardStatus& status);
