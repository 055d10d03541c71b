#include "settings/settings_window_win32.h"

#include "i18n/localized.h"
#include "tray/notice.h"

void OpenOrRaiseSettingsDialog(HWND owner) {
  // The skinned settings dialog is not part of this build yet; say so instead of doing nothing.
  ShowStayholdHelpNotice(
      GetModuleHandleW(nullptr), owner, Localized(L"Nastavení Stayhold", L"Stayhold Settings"),
      Localized(L"Okno nastavení v tomto sestavení zatím není. Profily a okna pro restart lze "
                L"zatím upravit v souboru config.ini.",
                L"The settings window is not part of this build yet. Profiles and restart windows "
                L"can be edited in config.ini for now."));
}
