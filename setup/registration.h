// What makes the application a citizen of Windows when it is installed by copying files: the
// Installed apps entry, the App Paths and Applications keys of both programs, and how an
// installation is recognised. The package path gets the same from the package's own tables.
#pragma once

#include <cstdint>
#include <string>

#include "guard/install_paths.h"

// The folder of the current installation (never empty), and the normalization it uses.
std::wstring GetInstallLocation();
std::wstring NormalizeInstallPath(const std::wstring& text);

// Kilobytes as the Installed apps entry counts them: (bytes + 1023) / 1024, at most 2^32 - 2.
uint32_t KilobytesOf(uint64_t bytes);

bool IsInstalled();
bool WriteUninstallEntry(const InstallPaths& paths);
bool WriteAppRegistration(const InstallPaths& paths);
void RemoveAppRegistration();
