#include "base/win_path.h"

#include <vector>

namespace {

bool IsSeparator(wchar_t c) {
  return c == L'\\' || c == L'/';
}

bool IsDriveLetter(wchar_t c) {
  return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

// Length of the root part: "C:\" (3), "C:" (2), "\\server\share\" or "\" (1); 0 for relative.
size_t RootLength(const std::wstring& path, bool& absolute) {
  absolute = false;
  if (path.size() >= 2 && IsDriveLetter(path[0]) && path[1] == L':') {
    if (path.size() >= 3 && IsSeparator(path[2])) {
      absolute = true;
      return 3;
    }
    return 2;
  }
  if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
    // UNC: two leading separators, server, share.
    size_t i = 2;
    for (int part = 0; part < 2; ++part) {
      while (i < path.size() && !IsSeparator(path[i]))
        ++i;
      if (i < path.size()) ++i;
    }
    absolute = true;
    return i;
  }
  if (!path.empty() && IsSeparator(path[0])) {
    absolute = true;
    return 1;
  }
  return 0;
}

}  // namespace

std::wstring JoinPath(const std::wstring& folder, const std::wstring& name) {
  if (folder.empty()) return std::wstring();
  if (IsSeparator(folder.back())) return folder + name;
  return folder + L"\\" + name;
}

std::wstring LexicallyNormalPath(const std::wstring& path) {
  bool absolute = false;
  const size_t root_length = RootLength(path, absolute);
  std::wstring root = path.substr(0, root_length);
  for (wchar_t& c : root) {
    if (c == L'/') c = L'\\';
  }
  if (root.size() > 2 && !IsSeparator(root.back())) root += L'\\';  // "\\server\share" gets its \.

  std::vector<std::wstring> parts;
  size_t i = root_length;
  while (i <= path.size()) {
    size_t j = i;
    while (j < path.size() && !IsSeparator(path[j]))
      ++j;
    std::wstring part = path.substr(i, j - i);
    if (part.empty() || part == L".") {
      // skipped
    } else if (part == L"..") {
      if (!parts.empty() && parts.back() != L"..") {
        parts.pop_back();
      } else if (!absolute) {
        parts.push_back(part);  // a relative path keeps the climbs it cannot resolve
      }
    } else {
      parts.push_back(part);
    }
    i = j + 1;
  }
  std::wstring result = root;
  for (size_t k = 0; k < parts.size(); ++k) {
    if (k > 0) result += L'\\';
    result += parts[k];
  }
  // A trailing separator of the input stays, as lexical normalization keeps a final empty name.
  if (!parts.empty() && !path.empty() && IsSeparator(path.back())) result += L'\\';
  if (result.empty()) result = L".";
  return result;
}

std::wstring ModuleFolderFromFileName(const std::wstring& text, unsigned copied,
                                      unsigned capacity) {
  if (copied == 0 || copied >= capacity) return std::wstring();
  const size_t slash = text.find_last_of(L'\\');
  if (slash == std::wstring::npos) return std::wstring();
  return text.substr(0, slash);
}
