#include "tests/support/memory_profile_store.h"

#include <algorithm>
#include <cwchar>

#include "i18n/locale_system.h"
#include "tests/support/fake_platform.h"

namespace {

// Section and key names compare without case, as the profile functions do.
template <typename List>
auto FindNamed(List& list, const std::wstring& name) {
  return std::find_if(list.begin(), list.end(),
                      [&](const auto& item) { return EqualsOrdinalIgnoreCase(item.first, name); });
}

// A folder in the file's place refuses every change; a change that is not refused counts.
bool Writable(MemoryProfileStore& store, const std::wstring& path) {
  if (Fake().directories.count(path)) return false;
  ++store.writes;
  return true;
}

template <typename Files>
auto SectionOf(Files& files, const std::wstring& path, const std::wstring& section) {
  auto file = files.find(path);
  decltype(&FindNamed(file->second, section)->second) found = nullptr;
  if (file == files.end()) return found;
  auto sec = FindNamed(file->second, section);
  if (sec != file->second.end()) found = &sec->second;
  return found;
}

}  // namespace

const std::wstring* MemoryProfileStore::Find(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key) const {
  const Section* sec = SectionOf(files, path, section);
  if (!sec) return nullptr;
  auto value = FindNamed(*sec, key);
  return value == sec->end() ? nullptr : &value->second;
}

bool MemoryProfileStore::HasSection(const std::wstring& path, const std::wstring& section) const {
  return SectionOf(files, path, section) != nullptr;
}

int MemoryProfileStore::ReadInt(const std::wstring& path, const std::wstring& section,
                                const std::wstring& key, int fallback) {
  const std::wstring* value = Find(path, section, key);
  if (!value) return fallback;
  // The leading decimal number with an optional sign, saturated at 32 bits; 0 when there is none.
  const long long number = std::wcstoll(value->c_str(), nullptr, 10);
  return static_cast<int>(static_cast<unsigned>(std::clamp(number, -0xFFFFFFFFll, 0xFFFFFFFFll)));
}

std::wstring MemoryProfileStore::ReadString(const std::wstring& path, const std::wstring& section,
                                            const std::wstring& key, const std::wstring& fallback) {
  const std::wstring* value = Find(path, section, key);
  return (value ? *value : fallback).substr(0, kIniTextBufferChars - 1);
}

bool MemoryProfileStore::WriteString(const std::wstring& path, const std::wstring& section,
                                     const std::wstring& key, const std::wstring& value) {
  if (!Writable(*this, path)) return false;
  Fake().files.insert(path);
  File& file = files[path];
  if (FindNamed(file, section) == file.end()) file.push_back({section, {}});
  Section& sec = FindNamed(file, section)->second;
  if (FindNamed(sec, key) == sec.end()) sec.push_back({key, L""});
  FindNamed(sec, key)->second = value;
  return true;
}

bool MemoryProfileStore::DeleteKey(const std::wstring& path, const std::wstring& section,
                                   const std::wstring& key) {
  if (!Writable(*this, path)) return false;
  if (Section* sec = SectionOf(files, path, section)) {
    auto entry = FindNamed(*sec, key);
    if (entry != sec->end()) sec->erase(entry);
  }
  return true;
}

bool MemoryProfileStore::DeleteSection(const std::wstring& path, const std::wstring& section) {
  if (!Writable(*this, path)) return false;
  auto file = files.find(path);
  if (file == files.end()) return true;
  auto sec = FindNamed(file->second, section);
  if (sec != file->second.end()) file->second.erase(sec);
  return true;
}

void MemoryProfileStore::Put(const std::wstring& path, const File& file) {
  files[path] = file;
  Fake().files.insert(path);
}

MemoryProfileStore& MemoryStore() {
  static MemoryProfileStore store;
  return store;
}
