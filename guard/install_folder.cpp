#include "guard/install_folder.h"

#include "base/file_system.h"
#include "base/wide_text.h"
#include "base/win_path.h"

std::wstring DefaultInstallFolder() {
  return L"C:\\Program Files\\Stayhold";
}

std::wstring NormalizeInstallFolder(const std::wstring& text) {
  std::wstring path = TrimWhiteSpace(text);
  if (path.empty()) return path;
  for (wchar_t& c : path) {
    if (c == L'/') c = L'\\';
  }
  std::wstring absolute;
  if (AbsolutePath(path, absolute)) path = absolute;  // on error go on with the trimmed text
  path = LexicallyNormalPath(path);
  while (path.size() > 3 && (path.back() == L'\\' || path.back() == L'/'))
    path.pop_back();
  return path;
}

std::wstring ResolveInstallFolder() {
  std::wstring stored;
  if (!ReadInstallLocation(kProductKey, stored)) ReadInstallLocation(kUninstallKey, stored);
  if (!stored.empty()) {
    std::wstring folder = NormalizeInstallFolder(stored);
    if (!folder.empty()) return folder;
  }
  return DefaultInstallFolder();
}
