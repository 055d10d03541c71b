#include "app/hidden_window_win32.h"

#include <shellapi.h>

#include "guard/app_icon_win32.h"
#include "guard/build_facts.h"
#include "guard/config_store.h"
#include "guard/guard_messages.h"
#include "guard/guard_state.h"
#include "guard/guard_status.h"
#include "guard/log.h"
#include "guard/paths.h"
#include "guard/session_end.h"
#include "i18n/localized.h"
#include "settings/settings_window_win32.h"
#include "setup/shortcuts.h"
#include "tray/notice.h"
#include "tray/tray_icon_win32.h"
#include "update/update_commands_win32.h"

namespace {

// Sent to every top-level window when the shell (re)starts; the icon must be added again.
UINT taskbar_created_message = 0;

}  // namespace

HiddenWindowOptions& HiddenWindowStart() {
  static HiddenWindowOptions options;
  return options;
}

BlockReasonApi& ShutdownBlockReasonApi() {
  static BlockReasonApi api = {&ShutdownBlockReasonCreate, &ShutdownBlockReasonDestroy};
  return api;
}

void RefreshShutdownBlockReason() {
  const GuardStatus status = EvaluateGuardStatus(AppConfig());
  SetGuardBlocking(status.blocking);
  // Taken down on every refresh, also when it is registered again at once.
  if (BlockReasonHeld()) {
    ShutdownBlockReasonApi().destroy(GuardWindow());
    SetBlockReasonHeld(false);
  }
  if (!status.blocking) return;
  // Looked up each time, so a change of language shows at the next refresh.
  const std::wstring reason = Localized(
      L"Stayhold blokuje plánovaný restart. Pro restart ukončete aplikaci nebo vypněte ochranu.",
      L"Stayhold is blocking a planned restart. Exit or disable the guard to restart.");
  // A failure is not logged: the refusal holds without the text.
  SetBlockReasonHeld(ShutdownBlockReasonApi().create(GuardWindow(), reason.c_str()) != 0);
}

namespace {

void StartTimers(HWND window) {
  SetTimer(window, kTimerStart, kStartDelayMs, nullptr);
  SetTimer(window, kTimerRefresh, kRefreshPeriodMs, nullptr);
  SetTimer(window, kTimerUpdateCheck, kUpdateCheckPeriodMs, nullptr);
  const uint32_t exit_after_ms = HiddenWindowStart().exit_after_ms;
  if (exit_after_ms != 0) SetTimer(window, kTimerSelfExit, exit_after_ms, nullptr);
}

void OnTimer(HWND window, UINT_PTR id) {
  switch (id) {
    case kTimerStart:
      KillTimer(window, kTimerStart);
      AddTrayIcon();
      RefreshGuardState();
      if (HiddenWindowStart().exit_after_ms == 0) StartAutomaticUpdateCheck(window);
      if (HiddenWindowStart().open_settings) PostMessageW(window, WM_COMMAND, kCmdSettings, 0);
      break;
    case kTimerSelfExit:
      KillTimer(window, kTimerSelfExit);
      DestroyWindow(window);
      break;
    case kTimerRefresh:
      RefreshGuardState();
      break;
    case kTimerUpdateCheck:
      if (HiddenWindowStart().exit_after_ms == 0) StartAutomaticUpdateCheck(window);
      break;
    default:
      break;
  }
}

LRESULT OnQueryEndSession(LPARAM l_param) {
  // Answered from the last refresh, not re-evaluated: at most 30 seconds old.
  if (SessionMayEnd(GuardBlocking(), static_cast<uint32_t>(l_param))) return TRUE;
  AppendLog(L"planned shutdown/restart blocked");
  ShowTrayBalloon(Localized(L"Restart zablokován", L"Restart blocked"),
                  Localized(L"Stayhold zablokoval plánované vypnutí nebo restart.",
                            L"A planned shutdown or restart was blocked by Stayhold."),
                  BalloonIcon::Warning);
  return FALSE;
}

void ToggleGuard() {
  StayholdConfig& config = AppConfig();
  config.guard_enabled = !config.guard_enabled;
  SaveConfig(config);
  RefreshShutdownBlockReason();
  UpdateTrayTooltip();
  AppendLog(config.guard_enabled ? L"stayhold enabled" : L"stayhold disabled");
}

void ToggleStartup() {
  const bool enable = !IsStartupShortcutPresent();
  if (!SetStartupEnabled(enable)) {
    ShowTrayBalloon(Localized(L"Změna spouštění se nezdařila", L"Startup update failed"),
                    Localized(L"Zástupce pro spuštění po přihlášení se nepodařilo upravit.",
                              L"The Startup shortcut could not be updated."),
                    BalloonIcon::Error);
    return;
  }
  ShowTrayBalloon(Localized(L"Spouštění aktualizováno", L"Startup updated"),
                  enable ? Localized(L"Stayhold se spustí po přihlášení.",
                                     L"Stayhold will start after sign-in.")
                         : Localized(L"Stayhold se po přihlášení nespustí.",
                                     L"Stayhold will not start after sign-in."),
                  BalloonIcon::Information);
}

void ToggleDesktop() {
  const bool enable = !IsDesktopShortcutPresent();
  if (!SetDesktopShortcutEnabled(enable)) {
    ShowTrayBalloon(
        Localized(L"Změna zástupce na ploše se nezdařila", L"Desktop shortcut update failed"),
        Localized(L"Zástupce na ploše se nepodařilo upravit.",
                  L"The desktop shortcut could not be updated."),
        BalloonIcon::Error);
    return;
  }
  ShowTrayBalloon(Localized(L"Zástupce na ploše aktualizován", L"Desktop shortcut updated"),
                  enable
                      ? Localized(L"Zástupce na ploše byl vytvořen.", L"Desktop shortcut created.")
                      : Localized(L"Zástupce na ploše byl odebrán.", L"Desktop shortcut removed."),
                  BalloonIcon::Information);
}

// The update check's worker has left its result; the tooltip shows an offered update before the
// result's notice (a manual check's only) holds the thread.
void OnUpdateCheckDone(HWND window) {
  const std::optional<UpdateCheckResult> result = ReceiveUpdateCheckResult();
  if (!result) return;  // another window took it already
  if (result->ok) UpdateTrayTooltip();
  ShowStayholdUpdateResultNotice(window, *result);
}

void OnCommand(HWND window, unsigned id) {
  HINSTANCE instance = GetModuleHandleW(nullptr);
  switch (id) {
    case kCmdToggleGuard:
      ToggleGuard();
      break;
    case kCmdOpenWindowsUpdate:
      AppendLog(L"open windows update settings");
      ShellExecuteW(nullptr, L"open", L"ms-settings:windowsupdate", nullptr, nullptr,
                    SW_SHOWNORMAL);
      break;
    case kCmdToggleStartup:
      ToggleStartup();
      break;
    case kCmdToggleDesktop:
      ToggleDesktop();
      break;
    case kCmdExit:
      AppendLog(L"tray exit requested");
      if (ConfirmStayholdExit(instance, window)) DestroyWindow(window);
      break;
    case kCmdSettings:
      OpenOrRaiseSettingsDialog(window);
      RefreshGuardState();
      break;
    case kCmdHelp:
      ShowStayholdHelpNotice(instance, window, TrayHelpTitle(), TrayHelpText());
      break;
    case kCmdLogs:
      OpenLogsFolder();
      break;
    case kCmdAbout:
      ShowStayholdAboutNotice(instance, window);
      break;
    case kCmdCheckUpdates:
      StartManualUpdateCheck(window);
      break;
    case kCmdInstallUpdate:
      if (std::optional<UpdateManifest> update = GetAvailableUpdate()) {
        ShowStayholdAutoUpdateDialog(window, *update);
      } else {
        StartManualUpdateCheck(window);
      }
      break;
    default:
      break;
  }
}

}  // namespace

void RefreshGuardState() {
  RefreshShutdownBlockReason();
  UpdateTrayTooltip();
}

LRESULT CALLBACK HiddenWindowProc(HWND window, UINT message, WPARAM w_param, LPARAM l_param) {
  // The registered message is no constant, so it is tested before the switch.
  if (taskbar_created_message != 0 && message == taskbar_created_message) {
    AddTrayIcon();
    UpdateTrayTooltip();
    return 0;
  }
  switch (message) {
    case WM_CREATE:
      StartTimers(window);
      return 0;
    case WM_TIMER:
      OnTimer(window, w_param);
      return 0;
    case WM_QUERYENDSESSION:
      return OnQueryEndSession(l_param);
    case WM_COMMAND:
      OnCommand(window, LOWORD(w_param));
      return 0;
    case kWmTrayCallback:
      HandleTrayCallback(window, l_param);
      return 0;
    case kWmUpdateCheckDone:
      OnUpdateCheckDone(window);
      return 0;
    case kWmUpdateInstallProgress:
      HandleUpdateInstallProgress(window);
      return 0;
    case WM_CLOSE:
      // The update installer and any outside WM_CLOSE end the guard with no question.
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      KillTimer(window, kTimerUpdateCheck);
      KillTimer(window, kTimerRefresh);
      if (BlockReasonHeld()) {
        ShutdownBlockReasonApi().destroy(window);
        SetBlockReasonHeld(false);
      }
      RemoveTrayIcon();
      AppendLog(L"app shutdown");
      PostQuitMessage(0);
      return 0;
    default:
      // WM_ENDSESSION included: the guard does not prepare to die with the session.
      return DefWindowProcW(window, message, w_param, l_param);
  }
}

bool RegisterHiddenWindowClass(HINSTANCE instance) {
  taskbar_created_message = RegisterWindowMessageW(kTaskbarCreatedMessageName);
  WNDCLASSEXW window_class = {};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = HiddenWindowProc;
  window_class.hInstance = instance;
  window_class.hIcon = LoadApplicationIcon(instance, SM_CXICON, SM_CYICON);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.lpszClassName = kHiddenWindowClass;
  return RegisterClassExW(&window_class) != 0;
}

HWND CreateHiddenWindow(HINSTANCE instance) {
  // A real top-level window, never shown: Windows asks only top-level windows before a shutdown,
  // and a message-only window would not be asked.
  return CreateWindowExW(WS_EX_TOOLWINDOW, kHiddenWindowClass, kHiddenWindowTitle, WS_POPUP, 0, 0,
                         1, 1, nullptr, nullptr, instance, nullptr);
}
