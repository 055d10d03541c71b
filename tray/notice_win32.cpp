#include <windows.h>

#include "tray/notice.h"

// A system message box stands in until the skinned notice window exists.
void ShowInstallerNotice(InstanceHandle, const std::wstring& title, const std::wstring& message,
                         bool is_error) {
  MessageBoxW(nullptr, message.c_str(), title.c_str(),
              MB_OK | MB_SETFOREGROUND | (is_error ? MB_ICONERROR : MB_ICONINFORMATION));
}
