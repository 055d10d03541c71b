// Where the application is installed: InstallLocation from the product key, else from the
// uninstall entry, else the default folder; always in one canonical form.
#pragma once

#include <string>

inline constexpr wchar_t kProductKey[] = L"Software\\Marlowen\\Stayhold";
inline constexpr wchar_t kUninstallKey[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Stayhold";

std::wstring DefaultInstallFolder();  // C:\Program Files\Stayhold

// Trimmed, forward slashes turned, absolute, lexically normal, without a trailing separator
// except at a drive root. Empty text gives empty.
std::wstring NormalizeInstallFolder(const std::wstring& text);

// Never empty.
std::wstring ResolveInstallFolder();

// The value InstallLocation under HKLM\`key` when it is REG_SZ or REG_EXPAND_SZ (not expanded) and
// its first character is not zero; read into 260 characters.
bool ReadInstallLocation(const wchar_t* key, std::wstring& out);
