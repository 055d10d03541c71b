#include <windows.h>

#include "guard/install_folder.h"

bool ReadInstallLocation(const wchar_t* key, std::wstring& out) {
  HKEY handle = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, key, 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) {
    return false;
  }
  wchar_t buffer[MAX_PATH] = {};
  DWORD type = 0;
  DWORD size = sizeof(buffer);
  const LSTATUS status = RegQueryValueExW(handle, L"InstallLocation", nullptr, &type,
                                          reinterpret_cast<BYTE*>(buffer), &size);
  RegCloseKey(handle);
  buffer[MAX_PATH - 1] = L'\0';
  // An expandable value is taken as it stands, not expanded.
  if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ) || buffer[0] == 0) {
    return false;
  }
  out = buffer;
  return true;
}
