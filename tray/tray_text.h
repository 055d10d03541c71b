// The texts of the notification-area icon: the tooltip with or without a known update.
#pragma once

#include <optional>
#include <string>

#include "guard/guard_status.h"
#include "update/update_manifest.h"

// "Update available 1.2.0 - open tray menu and choose Update."
std::wstring FormatUpdateTooltip(const UpdateManifest& manifest);

// The update text when one is available, else the guard's status text.
std::wstring TrayTooltipText(const GuardStatus& status,
                             const std::optional<UpdateManifest>& available);

// Text cut to fit a fixed NOTIFYICONDATAW field of `capacity` characters with its terminator.
std::wstring FitToField(const std::wstring& text, size_t capacity);
