// INI files held in memory with the profile functions' semantics, for native tests. Files join
// the fake platform's file set; a folder in a file's place refuses writes.
#pragma once

#include <algorithm>
#include <cwchar>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "guard/profile_store.h"
#include "i18n/locale_system.h"
#include "tests/support/fake_platform.h"

class MemoryProfileStore final : public ProfileStore {
  // Section and key names compare without case, as the profile functions do.
  template <typename List>
  static auto FindNamed(List& list, const std::wstring& name) {
    return std::find_if(list.begin(), list.end(), [&](const auto& item) {
      return EqualsOrdinalIgnoreCase(item.first, name);
    });
  }
  // A folder in the file's place refuses every change; a change that is not refused counts.
  bool Writable(const std::wstring& path) {
    if (Fake().directories.count(path)) return false;
    ++writes;
    return true;
  }

 public:
  using Section = std::vector<std::pair<std::wstring, std::wstring>>;
  using File = std::vector<std::pair<std::wstring, Section>>;

  std::map<std::wstring, File> files;
  int writes = 0;  // calls that change a file

  int ReadInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
              int fallback) override {
    const std::wstring* value = Find(path, section, key);
    if (!value) return fallback;
    // The leading decimal number with an optional sign, saturated at 32 bits; 0 when there is none.
    const long long number = std::wcstoll(value->c_str(), nullptr, 10);
    return static_cast<int>(static_cast<unsigned>(std::clamp(number, -0xFFFFFFFFll, 0xFFFFFFFFll)));
  }
  std::wstring ReadString(const std::wstring& path, const std::wstring& section,
                          const std::wstring& key, const std::wstring& fallback) override {
    const std::wstring* value = Find(path, section, key);
    return (value ? *value : fallback).substr(0, kIniTextBufferChars - 1);
  }
  bool WriteString(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override {
    if (!Writable(path)) return false;
    Fake().files.insert(path);
    File& file = files[path];
    if (FindNamed(file, section) == file.end()) file.push_back({section, {}});
    Section& sec = FindNamed(file, section)->second;
    if (FindNamed(sec, key) == sec.end()) sec.push_back({key, L""});
    FindNamed(sec, key)->second = value;
    return true;
  }
  bool DeleteKey(const std::wstring& path, const std::wstring& section,
                 const std::wstring& key) override {
    if (!Writable(path)) return false;
    if (Find(path, section, key)) {
      Section& sec = FindNamed(files[path], section)->second;
      sec.erase(FindNamed(sec, key));
    }
    return true;
  }
  bool DeleteSection(const std::wstring& path, const std::wstring& section) override {
    if (!Writable(path)) return false;
    if (HasSection(path, section)) files[path].erase(FindNamed(files[path], section));
    return true;
  }

  // Test helpers: put a whole file in place, find a value or a section.
  void Put(const std::wstring& path, const File& file) {
    files[path] = file;
    Fake().files.insert(path);
  }
  const std::wstring* Find(const std::wstring& path, const std::wstring& section,
                           const std::wstring& key) const {
    const auto file = files.find(path);
    if (file == files.end()) return nullptr;
    const auto sec = FindNamed(file->second, section);
    if (sec == file->second.end()) return nullptr;
    const auto value = FindNamed(sec->second, key);
    return value == sec->second.end() ? nullptr : &value->second;
  }
  bool HasSection(const std::wstring& path, const std::wstring& section) const {
    const auto file = files.find(path);
    return file != files.end() && FindNamed(file->second, section) != file->second.end();
  }
};

MemoryProfileStore& MemoryStore();
