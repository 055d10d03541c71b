#include <windows.h>

#include <filesystem>

#include "guard/install_folder.h"
#include "guard/local_time.h"
#include "guard/version.h"
#include "base/wide_text.h"
#include "i18n/localized.h"
#include "setup/msi_driver_win32.h"
#include "setup/registration.h"

namespace {

constexpr wchar_t kAppPaths[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
constexpr wchar_t kApplications[] = L"Software\\Classes\\Applications\\";

bool SetString(HKEY key, const wchar_t* name, const std::wstring& value) {
  return RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                        static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

bool SetDword(HKEY key, const wchar_t* name, DWORD value) {
  return RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                        sizeof(value)) == ERROR_SUCCESS;
}

// Creates the key and writes the values in order; the first failure ends it with false.
template <typename Writer>
bool WithKey(const std::wstring& path, Writer write) {
  HKEY key = nullptr;
  if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_SET_VALUE, nullptr, &key, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const bool ok = write(key);
  RegCloseKey(key);
  return ok;
}

uint64_t FileBytes(const std::wstring& path) {
  std::error_code error;
  const uint64_t size = std::filesystem::file_size(path, error);
  return error ? 0 : size;
}

uint64_t FolderKilobytes(const std::wstring& folder) {
  uint64_t total = 0;
  std::error_code error;
  for (std::filesystem::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    if (it->is_regular_file(error)) total += KilobytesOf(FileBytes(it->path().wstring()));
  }
  return total;
}

}  // namespace

bool IsInstalled() {
  InstallPaths paths;
  if (ComputeInstallPaths(GetInstallLocation(), paths)) {
    const DWORD attributes = GetFileAttributesW(paths.app_exe.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
      return true;
    }
  }
  // Stale keys count as installed, so that the setup offers a repair.
  for (const wchar_t* key : {kProductKey, kUninstallKey}) {
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &handle) == ERROR_SUCCESS) {
      RegCloseKey(handle);
      return true;
    }
  }
  return !FindRelatedProducts().empty();
}

bool WriteUninstallEntry(const InstallPaths& paths) {
  const LocalTime now = CurrentLocalTime();
  wchar_t date[16] = {};
  swprintf(date, 16, L"%04u%02u%02u", now.year, now.month, now.day);
  const std::wstring quoted_setup = L"\"" + paths.setup_exe + L"\"";
  return WithKey(kUninstallKey, [&](HKEY key) {
    if (!SetString(key, L"DisplayName", L"Stayhold") ||
        !SetString(key, L"DisplayVersion", kStayholdVersion) ||
        !SetString(key, L"Publisher", L"Marlowen") ||
        !SetString(key, L"InstallLocation", paths.install_dir) ||
        !SetString(key, L"DisplayIcon", paths.app_exe + L",0") ||
        !SetString(key, L"UninstallString", quoted_setup + L" --uninstall") ||
        !SetString(key, L"QuietUninstallString", quoted_setup + L" --uninstall --quiet") ||
        !SetString(key, L"InstallDate", date) || !SetDword(key, L"NoModify", 1) ||
        !SetDword(key, L"NoRepair", 1)) {
      return false;
    }
    // Summed only when everything else is written; a missing folder counts 0.
    const uint64_t kilobytes =
        FolderKilobytes(paths.assets_dir) + FolderKilobytes(paths.skins_dir) +
        KilobytesOf(FileBytes(paths.app_exe)) + KilobytesOf(FileBytes(paths.setup_exe));
    return SetDword(key, L"EstimatedSize",
                    static_cast<DWORD>(kilobytes > 0xFFFFFFFEull ? 0xFFFFFFFEull : kilobytes));
  });
}

bool WriteAppRegistration(const InstallPaths& paths) {
  struct Program {
    const std::wstring* path;
    const wchar_t* name;
    const wchar_t* friendly;
    std::wstring description;
  };
  const Program programs[] = {
      {&paths.app_exe, L"Stayhold.exe", L"Stayhold",
       Localized(L"Za běhu blokuje běžné plánované restarty Windows Update.",
                 L"Blocks normal planned Windows Update restarts while running.")},
      {&paths.setup_exe, L"StayholdSetup.exe", L"Stayhold Setup",
       Localized(L"Aplikace pro instalaci, opravu a odebrání aplikace Stayhold.",
                 L"Installer, repair, and removal app for Stayhold.")},
  };
  for (const Program& program : programs) {
    const DWORD attributes = GetFileAttributesW(program.path->c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY)) {
      return false;
    }
    const std::wstring applications = std::wstring(kApplications) + program.name;
    if (!WithKey(std::wstring(kAppPaths) + program.name,
                 [&](HKEY key) {
                   return SetString(key, nullptr, *program.path) &&
                          SetString(key, L"Path", paths.install_dir);
                 }) ||
        !WithKey(applications,
                 [&](HKEY key) {
                   return SetString(key, L"FriendlyAppName", program.friendly) &&
                          SetString(key, L"ApplicationCompany", L"Marlowen") &&
                          SetString(key, L"ApplicationDescription", program.description);
                 }) ||
        !WithKey(applications + L"\\ApplicationIcon",
                 [&](HKEY key) { return SetString(key, nullptr, *program.path + L",0"); }) ||
        !WithKey(applications + L"\\shell\\open\\command", [&](HKEY key) {
          return SetString(key, nullptr, L"\"" + *program.path + L"\"");
        })) {
      return false;
    }
  }
  return true;
}

void RemoveAppRegistration() {
  for (const wchar_t* name : {L"Stayhold.exe", L"StayholdSetup.exe"}) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kAppPaths) + name).c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kApplications) + name).c_str());
  }
}
