// Where per-user and per-install things live: the data folder with config.ini and the log, the
// folders beside the running executable, and the installed skins. Computed afresh at every call;
// the ones that depend on the executable are empty when its path cannot be found.
#pragma once

#include <string>

std::wstring DataDirectory();
std::wstring ConfigFilePath();
std::wstring LogDirectory();
std::wstring LogFilePath();
std::wstring ExecutableDirectory();
std::wstring SkinsDirectory();
std::wstring AssetsDirectory();
std::wstring SkinGuidePath();
std::wstring InstalledSkinsDirectory();
std::wstring InstalledSkinGuidePath();

// Creates the log folder when needed and opens it in the shell.
void OpenLogsFolder();
// Opens the skin guide beside the executable or in the installation; without one, the skin
// folder (created when needed).
void OpenSkinGuide();

// Whether the shortcut of the current installation exists as a file (not a folder).
bool IsDesktopShortcutPresent();
bool IsStartupShortcutPresent();
