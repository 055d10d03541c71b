#include "tray/tray_icon_win32.h"

#include "guard/app_icon_win32.h"
#include "guard/guard_messages.h"
#include "guard/guard_state.h"
#include "guard/guard_status.h"
#include "guard/guard_text.h"
#include "guard/paths.h"
#include "i18n/localized.h"
#include "tray/tray_action.h"
#include "tray/tray_text.h"

ShellNotifyIconFunction& TrayShellNotify() {
  static ShellNotifyIconFunction function = &Shell_NotifyIconW;
  return function;
}

namespace {

// What the shell was last told about the icon; each call changes the fields it names.
NOTIFYICONDATAW tray_data = {};

template <size_t N>
void CopyField(wchar_t (&field)[N], const std::wstring& text) {
  const std::wstring fitted = FitToField(text, N);
  wcsncpy(field, fitted.c_str(), N - 1);
  field[N - 1] = L'\0';
}

}  // namespace

void AddTrayIcon() {
  tray_data = NOTIFYICONDATAW{};
  tray_data.cbSize = sizeof(tray_data);
  tray_data.hWnd = GuardWindow();
  tray_data.uID = 1;
  tray_data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  tray_data.uCallbackMessage = kWmTrayCallback;
  tray_data.hIcon = LoadApplicationIcon(GetModuleHandleW(nullptr), SM_CXSMICON, SM_CYSMICON);
  // The status text always; a known update shows again at the next refresh.
  CopyField(tray_data.szTip, FormatTrayTooltip(EvaluateGuardStatus(AppConfig())));
  if (TrayShellNotify()(NIM_ADD, &tray_data)) {
    tray_data.uVersion = NOTIFYICON_VERSION_4;
    TrayShellNotify()(NIM_SETVERSION, &tray_data);
  }
}

void UpdateTrayTooltip() {
  tray_data.uFlags = NIF_TIP;
  CopyField(tray_data.szTip,
            TrayTooltipText(EvaluateGuardStatus(AppConfig()), GetAvailableUpdate()));
  TrayShellNotify()(NIM_MODIFY, &tray_data);
}

void ShowTrayBalloon(const std::wstring& title, const std::wstring& text, BalloonIcon icon) {
  tray_data.uFlags = NIF_INFO;
  CopyField(tray_data.szInfoTitle, title);
  CopyField(tray_data.szInfo, text);
  tray_data.dwInfoFlags = static_cast<DWORD>(icon);
  TrayShellNotify()(NIM_MODIFY, &tray_data);
}

void RemoveTrayIcon() {
  if (tray_data.cbSize == 0) return;
  TrayShellNotify()(NIM_DELETE, &tray_data);
}

void HandleTrayCallback(HWND window, LPARAM l_param) {
  switch (TrayActionFor(static_cast<uint32_t>(l_param))) {
    case TrayAction::ShowMenu:
      ShowTrayMenu(window);
      break;
    case TrayAction::OpenSettings:
      // The hub opens the settings, as for the menu's command.
      PostMessageW(window, WM_COMMAND, kCmdSettings, 0);
      break;
    case TrayAction::None:
      break;
  }
}

// A system popup menu stands in for the skinned tray menu until the toolkit's dialogs exist. It
// offers the same commands in the same order and, like the final menu, only hands the chosen
// command id to the hidden window after it has closed.
void ShowTrayMenu(HWND window) {
  const GuardStatus status = EvaluateGuardStatus(AppConfig());
  const std::optional<UpdateManifest> update = GetAvailableUpdate();
  HMENU menu = CreatePopupMenu();
  if (!menu) return;
  const auto item = [&](UINT id, const std::wstring& text, bool checked = false) {
    AppendMenuW(menu, MF_STRING | (checked ? MF_CHECKED : 0), id, text.c_str());
  };
  AppendMenuW(menu, MF_STRING | MF_GRAYED, 0, FormatGuardStatus(status).c_str());
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  item(kCmdToggleGuard, Localized(L"Blokovat plánované restarty", L"Block planned restarts"),
       AppConfig().guard_enabled);
  item(kCmdOpenWindowsUpdate, Localized(L"Otevřít Windows Update", L"Open Windows Update"));
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  if (update) {
    item(kCmdInstallUpdate,
         Localized(L"Aktualizovat na verzi", L"Update to version") + L" " + update->version);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  }
  item(kCmdToggleStartup, Localized(L"Spouštět s Windows", L"Start with Windows"),
       IsStartupShortcutPresent());
  item(kCmdToggleDesktop, Localized(L"Zástupce na ploše", L"Desktop shortcut"),
       IsDesktopShortcutPresent());
  item(kCmdSettings, Localized(L"Nastavení", L"Settings"));
  item(kCmdLogs, Localized(L"Otevřít protokoly", L"Open logs"));
  item(kCmdCheckUpdates, Localized(L"Zkontrolovat aktualizace", L"Check for updates"));
  item(kCmdHelp, Localized(L"Nápověda", L"Help"));
  item(kCmdAbout, Localized(L"O aplikaci", L"About"));
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  item(kCmdExit, Localized(L"Ukončit", L"Exit"));

  POINT cursor = {};
  GetCursorPos(&cursor);
  SetForegroundWindow(window);
  const UINT chosen = static_cast<UINT>(TrackPopupMenuEx(
      menu, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, cursor.x, cursor.y, window, nullptr));
  DestroyMenu(menu);
  if (chosen != 0 && IsWindow(window)) SendMessageW(window, WM_COMMAND, chosen, 0);
}
