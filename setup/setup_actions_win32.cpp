#include <windows.h>
#include <shellapi.h>

#include "guard/file_system.h"
#include "guard/install_folder.h"
#include "guard/log.h"
#include "i18n/localized.h"
#include "setup/install_paths.h"
#include "setup/msi_driver_win32.h"
#include "setup/payload.h"
#include "setup/setup_actions.h"
#include "setup/setup_failure.h"
#include "tray/notice.h"

namespace {

void RemoveAppRegistration() {
  for (const wchar_t* key :
       {L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Stayhold.exe",
        L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\StayholdSetup.exe",
        L"Software\\Classes\\Applications\\Stayhold.exe",
        L"Software\\Classes\\Applications\\StayholdSetup.exe"}) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, key);
  }
}

void RemoveLegacyItems(const InstallPaths& paths) {
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

bool InstallThroughPackage(const std::wstring& phase, bool start, bool desktop,
                           const std::wstring& folder) {
  if (!InstallPackage(phase, start, desktop, folder)) return false;
  InstallPaths paths;
  if (ComputeInstallPaths(folder.empty() ? ResolveInstallFolder() : folder, paths)) {
    RemoveLegacyItems(paths);
  }
  return true;
}

}  // namespace

bool RunInstall(bool start_with_windows, bool desktop_shortcut, const wchar_t* install_dir) {
  std::wstring target = install_dir && install_dir[0] ? install_dir : ResolveInstallFolder();
  target = NormalizeInstallFolder(target);
  if (target.empty()) target = DefaultInstallFolder();
  ClearSetupFailure();
  AppendLog(L"install started");
  if (!FindPackageRow(EmbeddedPayloadTable())) {
    // Only the package path exists in this build; a setup without its package cannot install.
    AppendLog(L"install failed: source payload missing");
    ReportSetupFailure(L"install", L"Instalace nemá vestavěný balíček. Stáhněte ji znovu.",
                       L"Setup has no embedded package and could not find the app EXE beside it. "
                       L"Download setup again.");
    return false;
  }
  const bool ok = InstallThroughPackage(L"install", start_with_windows, desktop_shortcut, target);
  AppendLog(ok ? L"MSI install ok" : L"MSI install failed");
  return ok;
}

bool RunRepair(bool start_with_windows, bool desktop_shortcut) {
  ClearSetupFailure();
  AppendLog(L"repair started");
  if (!FindPackageRow(EmbeddedPayloadTable())) {
    AppendLog(L"repair failed: COM/init paths unavailable");
    return false;
  }
  const bool ok = InstallThroughPackage(L"repair", start_with_windows, desktop_shortcut,
                                        ResolveInstallFolder());
  AppendLog(ok ? L"MSI repair ok" : L"MSI repair failed");
  return ok;
}

int RunUninstall() {
  ClearSetupFailure();
  AppendLog(L"uninstall started");
  InstallPaths paths;
  if (!ComputeInstallPaths(ResolveInstallFolder(), paths)) {
    AppendLog(L"uninstall failed: install paths unavailable");
    return 4;
  }
  ForceCloseRunningGuard();
  for (const std::wstring* file :
       {&paths.startup_shortcut, &paths.start_menu_shortcut, &paths.legacy_menu_shortcut,
        &paths.legacy_root_shortcut, &paths.desktop_shortcut, &paths.legacy_quill_shortcut,
        &paths.legacy_app_exe}) {
    DeleteFileW(file->c_str());
  }
  for (const std::wstring* folder : {&paths.legacy_menu_dir, &paths.start_menu_dir,
                                     &paths.legacy_quill_dir, &paths.legacy_app_dir}) {
    RemoveDirectoryW(folder->c_str());
  }
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
  if (!ComputeInstallPaths(ResolveInstallFolder(), paths)) return;
  AppendLog(open_settings ? L"launch installed copy -> settings" : L"launch installed copy");
  ShellExecuteW(nullptr, L"open", paths.app_exe.c_str(), open_settings ? L"--settings" : nullptr,
                paths.install_dir.c_str(), SW_SHOWNORMAL);
}
