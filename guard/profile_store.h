// Key-by-key access to INI files with the semantics of Windows' profile-string functions: a
// missing key reads as the default, writing a null value deletes the key, deleting a section
// removes it whole, and the file and section are created on the first write.
#pragma once

#include <string>

class ProfileStore {
 public:
  virtual ~ProfileStore() = default;
  // GetPrivateProfileIntW: the leading decimal number of the value, 0 when it has none, the
  // default when the key is missing.
  virtual int ReadInt(const std::wstring& path, const std::wstring& section,
                      const std::wstring& key, int fallback) = 0;
  // GetPrivateProfileStringW into 4096 characters: longer text is cut at 4095.
  virtual std::wstring ReadString(const std::wstring& path, const std::wstring& section,
                                  const std::wstring& key, const std::wstring& fallback) = 0;
  virtual bool WriteString(const std::wstring& path, const std::wstring& section,
                           const std::wstring& key, const std::wstring& value) = 0;
  virtual bool DeleteKey(const std::wstring& path, const std::wstring& section,
                         const std::wstring& key) = 0;
  virtual bool DeleteSection(const std::wstring& path, const std::wstring& section) = 0;
};

ProfileStore& SystemProfileStore();

inline constexpr size_t kIniTextBufferChars = 4096;
