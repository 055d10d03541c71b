#include <windows.h>

#include "i18n/localized.h"
#include "tray/notice.h"

// System message boxes stand in until the skinned notice windows exist; texts and answers are
// already the final ones.

void ShowInstallerNotice(InstanceHandle, const std::wstring& title, const std::wstring& message,
                         bool is_error) {
  MessageBoxW(nullptr, message.c_str(), title.c_str(),
              MB_OK | MB_SETFOREGROUND | (is_error ? MB_ICONERROR : MB_ICONINFORMATION));
}

bool ConfirmStayholdExit(InstanceHandle, WindowHandle owner) {
  const std::wstring title = Localized(L"Ukončit Stayhold", L"Exit Stayhold");
  const std::wstring text = Localized(
      L"Ukončit Stayhold? Ochrana před plánovaným restartem i ikona v oznamovací oblasti zmizí, "
      L"dokud aplikaci znovu nespustíte.",
      L"Exit Stayhold? Planned-restart protection and the tray icon stop until you launch the "
      L"app again.");
  return MessageBoxW(owner, text.c_str(), title.c_str(),
                     MB_OKCANCEL | MB_ICONWARNING | MB_DEFBUTTON2 | MB_SETFOREGROUND) == IDOK;
}

void ShowStayholdAboutNotice(InstanceHandle, WindowHandle owner) {
  const std::wstring title = Localized(L"O aplikaci Stayhold", L"About Stayhold");
  MessageBoxW(owner, AboutText().c_str(), title.c_str(),
              MB_OK | MB_ICONINFORMATION | MB_SETFOREGROUND);
}

void ShowStayholdHelpNotice(InstanceHandle, WindowHandle owner, const std::wstring& title,
                            const std::wstring& message) {
  MessageBoxW(owner, message.c_str(), title.c_str(), MB_OK | MB_ICONQUESTION | MB_SETFOREGROUND);
}
