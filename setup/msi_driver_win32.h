// Windows Installer driven as a silent child process: msiexec runs under a ten-minute limit, its
// log is kept in the data folder, and a failure is recorded with the log's telling lines.
#pragma once

#include <string>
#include <vector>

inline constexpr wchar_t kUpgradeCode[] = L"{7C2E915B-3F4A-4D68-9B1E-5A60C3D7E214}";

bool RunProcessWithTimeout(const std::wstring& command_line, unsigned long& exit_code,
                           unsigned long timeout_ms);
// True for exit code 0 or 3010.
bool RunMsiexec(const std::wstring& phase, const std::wstring& arguments, unsigned long& exit_code);
std::vector<std::wstring> FindRelatedProducts();
bool RemoveExistingProducts();
bool InstallPackage(const std::wstring& phase, bool start_with_windows, bool desktop_shortcut,
                    const std::wstring& install_dir);
bool UninstallPackages();
std::wstring ReadMsiLogExcerpt(const std::wstring& log_path);

// Writes the Windows Update policy as a step of `phase`; on failure records
// "<phase>-windows-update-policy" with the install text, or the repair text when asked for it.
bool WriteUpdatePolicyStep(const std::wstring& phase, bool repair_wording);

// Ends every other Stayhold.exe: WM_CLOSE to its windows, then termination if it stays.
void ForceCloseRunningGuard();
