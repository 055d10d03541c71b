#include <windows.h>
#include <shellapi.h>

#include "guard/install_folder.h"
#include "guard/log.h"
#include "i18n/localized.h"
#include "setup/install_paths.h"
#include "setup/setup_actions.h"
#include "tray/notice.h"

// The package install, repair and removal are not part of this build yet: they fail visibly in
// the log instead of pretending to succeed.
bool RunInstall(bool, bool, const wchar_t*) {
  AppendLog(L"install started");
  AppendLog(L"install failed: installer not available in this build");
  return false;
}

bool RunRepair(bool, bool) {
  AppendLog(L"repair started");
  AppendLog(L"repair failed: installer not available in this build");
  return false;
}

int RunUninstall() {
  AppendLog(L"uninstall started");
  AppendLog(L"uninstall failed: installer not available in this build");
  return 2;
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
