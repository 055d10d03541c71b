#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>
#include <knownfolders.h>

#include <filesystem>
#include <system_error>

#include "base/file_system.h"

ModuleFileName ReadModuleFileName() {
  wchar_t buffer[MAX_PATH] = {};
  ModuleFileName module;
  module.copied = GetModuleFileNameW(nullptr, buffer, MAX_PATH);
  module.text.assign(buffer, module.copied < MAX_PATH ? module.copied : MAX_PATH);
  return module;
}

bool KnownFolderPath(KnownFolder folder, std::wstring& out) {
  const KNOWNFOLDERID* id = &FOLDERID_LocalAppData;
  switch (folder) {
    case KnownFolder::LocalAppData:
      id = &FOLDERID_LocalAppData;
      break;
    case KnownFolder::Startup:
      id = &FOLDERID_Startup;
      break;
    case KnownFolder::CommonPrograms:
      id = &FOLDERID_CommonPrograms;
      break;
    case KnownFolder::Desktop:
      id = &FOLDERID_Desktop;
      break;
  }
  PWSTR path = nullptr;
  const HRESULT hr = SHGetKnownFolderPath(*id, KF_FLAG_CREATE, nullptr, &path);
  const bool ok = SUCCEEDED(hr) && path != nullptr;
  if (ok) out = path;
  CoTaskMemFree(path);
  return ok;
}

std::wstring TempFolder() {
  wchar_t buffer[MAX_PATH + 1] = {};
  const DWORD length = GetTempPathW(MAX_PATH + 1, buffer);
  if (length == 0 || length > MAX_PATH) return std::wstring();
  return std::wstring(buffer, length);
}

bool AbsolutePath(const std::wstring& path, std::wstring& out) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  if (error) return false;
  out = absolute.wstring();
  return true;
}

bool IsRegularFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool IsDirectory(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool CreateDirectoryTree(const std::wstring& path) {
  std::error_code error;
  std::filesystem::create_directories(path, error);
  return !error;
}

void ShellOpen(const std::wstring& path) {
  ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}
