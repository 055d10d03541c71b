#include "update/update_commands_win32.h"

#include "i18n/localized.h"
#include "tray/notice.h"

// The self-update is not part of this build yet: automatic checks do not run, and a manual
// request says so plainly.

void StartAutomaticUpdateCheck(HWND) {}

void StartManualUpdateCheck(HWND window) {
  ShowStayholdHelpNotice(GetModuleHandleW(nullptr), window,
                         Localized(L"Aktualizace Stayhold", L"Stayhold Update"),
                         Localized(L"Kontrola aktualizací v tomto sestavení zatím není.",
                                   L"Update checks are not part of this build yet."));
}

void HandleUpdateCheckDone(HWND) {}

void ShowStayholdAutoUpdateDialog(HWND owner, const UpdateManifest&) {
  StartManualUpdateCheck(owner);
}
