#include <windows.h>
#include <objbase.h>
#include <shellapi.h>

#include <filesystem>

#include "base/file_system.h"
#include "base/wide_text.h"
#include "base/win_path.h"
#include "guard/install_folder.h"
#include "guard/install_paths.h"
#include "guard/log.h"
#include "guard/version.h"
#include "i18n/localized.h"
#include "setup/msi_driver_win32.h"
#include "setup/payload.h"
#include "setup/payload_win32.h"
#include "setup/registration.h"
#include "setup/setup_actions.h"
#include "setup/setup_failure.h"
#include "setup/shortcuts.h"
#include "tray/notice.h"

namespace {

namespace fs = std::filesystem;

std::wstring OwnPath() {
  wchar_t buffer[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(nullptr, buffer, MAX_PATH);
  return length == 0 || length >= MAX_PATH ? std::wstring() : std::wstring(buffer, length);
}

bool CopyInto(const std::wstring& source, const std::wstring& target) {
  return EqualsIgnoringCase(source, target) || CopyFileW(source.c_str(), target.c_str(), FALSE);
}

// Copies files of the given extensions from `from` to `to`; a missing source folder is fine.
bool CopyFolderFiles(const std::wstring& from, const std::wstring& to,
                     std::initializer_list<const wchar_t*> extensions) {
  std::error_code error;
  if (!fs::is_directory(from, error)) return true;
  fs::create_directories(to, error);
  for (const fs::directory_entry& entry : fs::directory_iterator(from, error)) {
    if (!entry.is_regular_file(error)) continue;
    std::wstring extension = entry.path().extension().wstring();
    for (wchar_t& c : extension)
      c = static_cast<wchar_t>(towlower(c));
    for (const wchar_t* wanted : extensions) {
      if (extension == wanted &&
          !CopyInto(entry.path().wstring(), JoinPath(to, entry.path().filename().wstring()))) {
        return false;
      }
    }
  }
  return true;
}

// The file-copy installation, for a setup without an embedded package.
bool InstallByCopying(const InstallPaths& paths, const std::wstring& source_app,
                      const std::wstring& source_setup, const std::wstring& source_folder,
                      bool start, bool desktop) {
  ForceCloseRunningGuard();
  std::error_code error;
  fs::create_directories(paths.install_dir, error);
  const std::vector<PayloadRow> rows = CountingPayloadRows(EmbeddedPayloadTable());
  bool ok = !error;
  if (ok && !rows.empty()) {
    for (const PayloadRow& row : rows) {
      ok = ok &&
           WriteEmbeddedResource(row.resource_id, JoinPath(paths.install_dir, row.relative_path));
    }
  } else if (ok) {
    ok = CopyInto(source_app, paths.app_exe);
  }
  ok = ok && CopyInto(source_setup, paths.setup_exe);
  if (ok && rows.empty()) {
    ok = CopyFolderFiles(JoinPath(source_folder, L"skins"), paths.skins_dir,
                         {L".json", L".txt", L".md"}) &&
         CopyFolderFiles(JoinPath(source_folder, L"assets"), paths.assets_dir, {L".png"});
  }
  ok = ok && CreateDirectoryTree(paths.start_menu_dir) &&
       CreateStartMenuShortcut(paths.start_menu_shortcut, paths);
  if (ok && start) ok = CreateStartupShortcut(paths.startup_shortcut, paths);
  if (ok && desktop) ok = CreateStartMenuShortcut(paths.desktop_shortcut, paths);
  ok = ok && WriteUninstallEntry(paths) && WriteAppRegistration(paths);
  if (!ok) return false;
  if (!WriteUpdatePolicyStep(L"install", false)) return false;
  RemoveLegacyInstallItems(paths);
  return true;
}

// A shortcut to delete: already gone counts as deleted.
bool DeleteShortcut(const std::wstring& link) {
  return DeleteFileW(link.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND;
}

}  // namespace

void RemoveLegacyInstallItems(const InstallPaths& paths) {
  for (const std::wstring* file : {&paths.legacy_quill_shortcut, &paths.legacy_menu_shortcut,
                                   &paths.legacy_root_shortcut, &paths.legacy_app_exe}) {
    DeleteFileW(file->c_str());
  }
  // A folder that is not empty, the usual case for the Start menu folder, stays.
  for (const std::wstring* folder : {&paths.legacy_menu_dir, &paths.start_menu_dir,
                                     &paths.legacy_quill_dir, &paths.legacy_app_dir}) {
    RemoveDirectoryW(folder->c_str());
  }
}

void ScheduleDeleteOnReboot(const std::wstring& path) {
  if (path.empty()) return;
  if (MoveFileExW(path.c_str(), nullptr, MOVEFILE_DELAY_UNTIL_REBOOT)) {
    AppendLog(L"scheduled delete on reboot: " + path);
  } else {
    AppendLog(L"schedule delete on reboot failed: " + path + L" error=" +
              DecimalText(GetLastError()));
  }
}

bool RunInstall(bool start_with_windows, bool desktop_shortcut, const wchar_t* install_dir) {
  std::wstring target = install_dir && install_dir[0] ? install_dir : GetInstallLocation();
  target = NormalizeInstallPath(target);
  if (target.empty()) target = DefaultInstallFolder();
  ClearSetupFailure();
  AppendLog(L"install started");

  const std::wstring own = OwnPath();
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const bool com_ready = SUCCEEDED(com) || com == RPC_E_CHANGED_MODE;
  InstallPaths paths;
  const size_t slash = own.find_last_of(L'\\');
  const std::wstring source_folder = slash == std::wstring::npos ? L"" : own.substr(0, slash);
  std::wstring source_app = JoinPath(source_folder, L"Stayhold.exe");
  std::wstring source_setup = JoinPath(source_folder, L"StayholdSetup.exe");
  const auto finish = [&](bool ok) {
    if (SUCCEEDED(com)) CoUninitialize();
    return ok;
  };
  if (own.empty() || source_folder.empty() || !ComputeInstallPaths(target, paths) || !com_ready ||
      source_app.size() >= kMaxPathChars || source_setup.size() >= kMaxPathChars) {
    AppendLog(L"install failed: setup source paths unavailable");
    ReportSetupFailure(L"install",
                       L"Instalace nemohla připravit instalační cesty ani COM. Zkuste ji spustit "
                       L"znovu jako správce.",
                       L"Setup could not prepare install paths or COM. Try running it again as "
                       L"administrator.");
    return finish(false);
  }
  if (!IsRegularFile(source_app) && EqualsIgnoringCase(own, paths.app_exe)) source_app = own;
  // The usual case of a downloaded setup with its version in the name.
  if (!IsRegularFile(source_setup)) source_setup = own;

  const bool has_payload = HasEmbeddedPayload();
  if ((!has_payload && !IsRegularFile(source_app)) || !IsRegularFile(source_setup)) {
    AppendLog(L"install failed: source payload missing");
    ReportSetupFailure(L"install",
                       L"Instalace nemá vestavěný balíček a vedle sebe nenašla EXE aplikace. "
                       L"Stáhněte ji znovu.",
                       L"Setup has no embedded package and could not find the app EXE beside it. "
                       L"Download setup again.");
    return finish(false);
  }
  if (FindPackageRow(EmbeddedPayloadTable())) {
    const bool ok = InstallPackage(L"install", start_with_windows, desktop_shortcut, target);
    AppendLog(ok ? L"MSI install ok" : L"MSI install failed");
    return finish(ok);
  }
  const bool ok = InstallByCopying(paths, source_app, source_setup, source_folder,
                                   start_with_windows, desktop_shortcut);
  AppendLog(ok ? L"install ok" : L"install failed");
  return finish(ok);
}

bool RunRepair(bool start_with_windows, bool desktop_shortcut) {
  ClearSetupFailure();
  AppendLog(L"repair started");
  if (FindPackageRow(EmbeddedPayloadTable())) {
    const bool ok =
        InstallPackage(L"repair", start_with_windows, desktop_shortcut, GetInstallLocation());
    AppendLog(ok ? L"MSI repair ok" : L"MSI repair failed");
    return ok;
  }
  InstallPaths paths;
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (!ComputeInstallPaths(GetInstallLocation(), paths) ||
      !(SUCCEEDED(com) || com == RPC_E_CHANGED_MODE)) {
    AppendLog(L"repair failed: COM/init paths unavailable");
    if (SUCCEEDED(com)) CoUninitialize();
    return false;
  }
  bool ok = IsDirectory(paths.install_dir) && IsRegularFile(paths.app_exe) &&
            IsRegularFile(paths.setup_exe) && CreateDirectoryTree(paths.start_menu_dir) &&
            CreateStartMenuShortcut(paths.start_menu_shortcut, paths);
  ok = ok && (start_with_windows ? CreateStartupShortcut(paths.startup_shortcut, paths)
                                 : DeleteShortcut(paths.startup_shortcut));
  ok = ok && (desktop_shortcut ? CreateStartMenuShortcut(paths.desktop_shortcut, paths)
                               : DeleteShortcut(paths.desktop_shortcut));
  ok = ok && WriteUninstallEntry(paths) && WriteAppRegistration(paths);
  ok = ok && WriteUpdatePolicyStep(L"repair", true);
  if (ok) RemoveLegacyInstallItems(paths);
  if (SUCCEEDED(com)) CoUninitialize();
  AppendLog(ok ? L"repair ok" : L"repair failed");
  return ok;
}

int RunUninstall() {
  ClearSetupFailure();
  AppendLog(L"uninstall started");
  InstallPaths paths;
  const std::wstring own = OwnPath();
  if (own.empty() || !ComputeInstallPaths(GetInstallLocation(), paths)) {
    AppendLog(L"uninstall failed: install paths unavailable");
    return 4;
  }
  ForceCloseRunningGuard();
  for (const std::wstring* file :
       {&paths.startup_shortcut, &paths.start_menu_shortcut, &paths.desktop_shortcut}) {
    DeleteFileW(file->c_str());
  }
  // The same legacy shortcuts, copy and folders that an install clears.
  RemoveLegacyInstallItems(paths);
  // Found before the registry is touched.
  const std::vector<std::wstring> products = FindRelatedProducts();
  RemoveAppRegistration();
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kUninstallKey);
  if (!products.empty()) {
    const bool ok = UninstallPackages();
    AppendLog(ok ? L"MSI uninstall ok" : L"MSI uninstall failed");
    return ok ? 0 : 2;
  }
  // The files were copied.
  std::error_code ignored;
  fs::remove_all(paths.skins_dir, ignored);
  fs::remove_all(paths.assets_dir, ignored);
  const bool running_inside =
      EqualsIgnoringCase(own, paths.app_exe) || EqualsIgnoringCase(own, paths.setup_exe);
  for (const std::wstring* file : {&paths.app_exe, &paths.setup_exe}) {
    if (!DeleteFileW(file->c_str()) && running_inside && GetLastError() != ERROR_FILE_NOT_FOUND) {
      ScheduleDeleteOnReboot(*file);
    }
  }
  if (!RemoveDirectoryW(paths.install_dir.c_str()) && running_inside &&
      GetLastError() != ERROR_FILE_NOT_FOUND) {
    ScheduleDeleteOnReboot(paths.install_dir);
  }
  AppendLog(L"uninstall ok");
  return 0;
}

int RunSetupDialog(InstanceHandle instance) {
  ShowInstallerNotice(
      instance, Localized(L"Instalace Stayhold", L"Stayhold Setup"),
      Localized(L"Interaktivní instalace v tomto sestavení zatím není. Použijte příkazový řádek.",
                L"Interactive setup is not available in this build yet. Use the command line."),
      false);
  return 0;
}

void LaunchInstalledCopy(bool open_settings) {
  InstallPaths paths;
  if (!ComputeInstallPaths(GetInstallLocation(), paths)) return;
  AppendLog(open_settings ? L"launch installed copy -> settings" : L"launch installed copy");
  ShellExecuteW(nullptr, L"open", paths.app_exe.c_str(), open_settings ? L"--settings" : nullptr,
                paths.install_dir.c_str(), SW_SHOWNORMAL);
}
