// The entry of both executables: reads the options, writes the setup's skins to their cache,
// loads the configuration, and runs a one-shot setup action, the setup dialog, or the guard with
// its hidden window and message loop.
#include <windows.h>
#include <shellapi.h>
#include <shobjidl.h>

#include <string>
#include <vector>

#include "app/hidden_window_win32.h"
#include "guard/app_icon_win32.h"
#include "guard/app_skins.h"
#include "guard/build_facts.h"
#include "guard/config_store.h"
#include "guard/guard_messages.h"
#include "guard/guard_state.h"
#include "guard/log.h"
#include "guard/paths.h"
#include "guard/startup_options.h"
#include "guard/update_policy.h"
#include "i18n/language.h"
#include "i18n/localized.h"
#include "setup/setup_actions.h"
#include "setup/setup_skins.h"
#include "tray/notice.h"

namespace {

std::wstring InstallDirFromArguments() {
  int count = 0;
  LPWSTR* argv = CommandLineToArgvW(GetCommandLineW(), &count);
  if (!argv) return std::wstring();
  std::vector<std::wstring> arguments(argv, argv + count);
  LocalFree(argv);
  return FindInstallDirArgument(arguments);
}

int RunSetupAction(StartupRole role, const StartupOptions& options,
                   const std::wstring& install_dir) {
  switch (role) {
    case StartupRole::Install: {
      bool desktop = options.desktop;
      bool startup = !options.no_startup;
      if (options.preserve_options) {
        // Read before anything changes.
        desktop = IsDesktopShortcutPresent();
        startup = IsStartupShortcutPresent();
      }
      const bool ok =
          RunInstall(startup, desktop, install_dir.empty() ? nullptr : install_dir.c_str());
      if (ok && options.restart_app) LaunchInstalledCopy(options.settings);
      return ok ? kExitOk : kExitInstallFailed;
    }
    case StartupRole::Repair:
      return RunRepair(IsStartupShortcutPresent(), IsDesktopShortcutPresent()) ? kExitOk
                                                                               : kExitRepairFailed;
    case StartupRole::Uninstall:
      return RunUninstall();
    default:
      return kExitFailure;
  }
}

int RunSecondInstance(HANDLE mutex, HINSTANCE instance, const StartupOptions& options) {
  if (options.exit_after_ms > 0) {
    // A self-limited run (tests, the setup's check) never disturbs the first instance.
  } else if (options.settings) {
    if (HWND first = FindWindowW(kHiddenWindowClass, nullptr)) {
      PostMessageW(first, WM_COMMAND, kCmdSettings, 0);
    }
  } else {
    ShowInstallerNotice(instance, Localized(L"Už běží", L"Already running"),
                        Localized(L"Stayhold už běží v oznamovací oblasti.",
                                  L"Stayhold is already running in the notification area."),
                        false);
    AppendLog(L"launch ignored: already running");
  }
  CloseHandle(mutex);
  return kExitOk;
}

int RunGuard(HINSTANCE instance, const StartupOptions& options) {
  HANDLE mutex = CreateMutexW(nullptr, TRUE, kSingleInstanceMutexName);
  if (!mutex) return kExitFailure;
  if (GetLastError() == ERROR_ALREADY_EXISTS) return RunSecondInstance(mutex, instance, options);

  HiddenWindowStart() = HiddenWindowOptions{options.exit_after_ms, options.settings};
  if (!RegisterHiddenWindowClass(instance)) {
    CloseHandle(mutex);
    return kExitFailure;
  }
  // WM_CREATE runs inside and starts the timers; protection begins 500 ms later.
  HWND window = CreateHiddenWindow(instance);
  if (!window) {
    AppendLog(L"app startup failed: hidden window creation failed");
    CloseHandle(mutex);
    return kExitFailure;
  }
  SetGuardWindow(window);
  SendMessageW(window, WM_SETICON, ICON_BIG,
               reinterpret_cast<LPARAM>(LoadApplicationIcon(instance, SM_CXICON, SM_CYICON)));
  SendMessageW(window, WM_SETICON, ICON_SMALL,
               reinterpret_cast<LPARAM>(LoadApplicationIcon(instance, SM_CXSMICON, SM_CYSMICON)));

  AppendLog(options.settings ? L"app startup -> open settings" : L"app startup");
  LogWindowsUpdatePolicyStatus();

  MSG message = {};
  BOOL result;
  while ((result = GetMessageW(&message, nullptr, 0, 0)) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  CloseHandle(mutex);
  return static_cast<int>(message.wParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR command_line, int) {
  // Every text from here on speaks the configured language.
  SetLanguageSettingReader(&ConfiguredLanguage);
  const StartupOptions options = ParseStartupOptions(command_line);
  // The setup carries skin files: written to their cache before the configuration is loaded, so
  // that its skin id is repaired against them and the setup's own dialogs wear them. The guard
  // carries none, so nothing is written and the cache stays out.
  if (!WriteSetupSkins().empty()) UseSetupSkinCache(SetupSkinCacheFolder());
  AppConfig() = LoadConfig();
  const std::wstring install_dir = InstallDirFromArguments();
  SetCurrentProcessExplicitAppUserModelID(kAppUserModelId);

  const StartupRole role = ChooseStartupRole(options, kIsSetupBuild);
  switch (role) {
    case StartupRole::Install:
    case StartupRole::Repair:
    case StartupRole::Uninstall:
      return RunSetupAction(role, options, install_dir);
    case StartupRole::RefuseSetupAction:
      ShowInstallerNotice(instance, Localized(L"Použijte instalační program", L"Use the setup"),
                          Localized(L"Instalaci, opravu a odinstalaci zajišťuje StayholdSetup.exe.",
                                    L"Install, repair, and uninstall are handled by "
                                    L"StayholdSetup.exe."),
                          true);
      return kExitInstallFailed;
    case StartupRole::EnsureConfig:
      return SaveConfig(LoadConfig()) ? kExitOk : kExitFailure;
    case StartupRole::SetupDialog:
      return RunSetupDialog(instance);
    case StartupRole::Guard:
      break;
  }
  return RunGuard(instance, options);
}
