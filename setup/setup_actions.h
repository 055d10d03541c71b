// The setup program's operations: install, repair, uninstall, the interactive dialog flow, and
// starting the installed application. Each returns what decides the process's exit code.
#pragma once

#include <string>

#include "base/win32_types.h"
#include "guard/install_paths.h"

bool RunInstall(bool start_with_windows, bool desktop_shortcut, const wchar_t* install_dir);
bool RunRepair(bool start_with_windows, bool desktop_shortcut);
int RunUninstall();
int RunSetupDialog(InstanceHandle instance);

// Starts the installed Stayhold.exe, with --settings when asked.
void LaunchInstalledCopy(bool open_settings);

// Older versions' shortcuts, folders and per-user copy; results are not examined.
void RemoveLegacyInstallItems(const InstallPaths& paths);

// MoveFileExW with MOVEFILE_DELAY_UNTIL_REBOOT, logged either way; an empty path is ignored.
void ScheduleDeleteOnReboot(const std::wstring& path);
