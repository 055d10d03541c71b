#include <windows.h>

#include "guard/profile_store.h"

namespace {

// The profile functions write ANSI into a file they create themselves, which loses every
// character outside the code page. A file that already starts with a UTF-16LE byte order mark
// stays UTF-16, so the file is created that way before the first write.
void EnsureUnicodeFile(const std::wstring& path) {
  if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) return;
  HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  static const BYTE kBom[] = {0xFF, 0xFE};
  DWORD written = 0;
  WriteFile(file, kBom, sizeof(kBom), &written, nullptr);
  CloseHandle(file);
}

class Win32ProfileStore final : public ProfileStore {
 public:
  int ReadInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
              int fallback) override {
    return static_cast<int>(
        GetPrivateProfileIntW(section.c_str(), key.c_str(), fallback, path.c_str()));
  }

  std::wstring ReadString(const std::wstring& path, const std::wstring& section,
                          const std::wstring& key, const std::wstring& fallback) override {
    wchar_t buffer[kIniTextBufferChars] = {};
    const DWORD length = GetPrivateProfileStringW(section.c_str(), key.c_str(), fallback.c_str(),
                                                  buffer, kIniTextBufferChars, path.c_str());
    return std::wstring(buffer, length);
  }

  bool WriteString(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override {
    EnsureUnicodeFile(path);
    return WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(), path.c_str()) !=
           0;
  }

  bool DeleteKey(const std::wstring& path, const std::wstring& section,
                 const std::wstring& key) override {
    return WritePrivateProfileStringW(section.c_str(), key.c_str(), nullptr, path.c_str()) != 0;
  }

  bool DeleteSection(const std::wstring& path, const std::wstring& section) override {
    return WritePrivateProfileStringW(section.c_str(), nullptr, nullptr, path.c_str()) != 0;
  }
};

}  // namespace

ProfileStore& SystemProfileStore() {
  static Win32ProfileStore store;
  return store;
}
