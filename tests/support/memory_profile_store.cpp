#include "tests/support/memory_profile_store.h"

#include <cwctype>

#include "i18n/locale_system.h"
#include "tests/support/fake_platform.h"

namespace {

// Section and key names compare without case, as the profile functions do.
bool SameName(const std::wstring& a, const std::wstring& b) {
  return EqualsOrdinalIgnoreCase(a, b);
}

template <typename List>
auto FindNamed(List& list, const std::wstring& name) {
  for (auto it = list.begin(); it != list.end(); ++it) {
    if (SameName(it->first, name)) return it;
  }
  return list.end();
}

}  // namespace

const std::wstring* MemoryProfileStore::Find(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key) const {
  auto file = files.find(path);
  if (file == files.end()) return nullptr;
  auto sec = FindNamed(file->second, section);
  if (sec == file->second.end()) return nullptr;
  auto value = FindNamed(sec->second, key);
  return value == sec->second.end() ? nullptr : &value->second;
}

bool MemoryProfileStore::HasSection(const std::wstring& path, const std::wstring& section) const {
  auto file = files.find(path);
  return file != files.end() && FindNamed(file->second, section) != file->second.end();
}

int MemoryProfileStore::ReadInt(const std::wstring& path, const std::wstring& section,
                                const std::wstring& key, int fallback) {
  const std::wstring* value = Find(path, section, key);
  if (!value) return fallback;
  // The leading decimal number, with an optional sign; 0 when there is none.
  size_t at = 0;
  while (at < value->size() && std::iswspace(static_cast<wint_t>((*value)[at])))
    ++at;
  bool negative = false;
  if (at < value->size() && ((*value)[at] == L'-' || (*value)[at] == L'+')) {
    negative = (*value)[at++] == L'-';
  }
  long long number = 0;
  while (at < value->size() && (*value)[at] >= L'0' && (*value)[at] <= L'9') {
    number = number * 10 + ((*value)[at++] - L'0');
    if (number > 0xFFFFFFFFll) number = 0xFFFFFFFFll;
  }
  return static_cast<int>(static_cast<unsigned>(negative ? -number : number));
}

std::wstring MemoryProfileStore::ReadString(const std::wstring& path, const std::wstring& section,
                                            const std::wstring& key, const std::wstring& fallback) {
  const std::wstring* value = Find(path, section, key);
  std::wstring text = value ? *value : fallback;
  if (text.size() > kIniTextBufferChars - 1) text.resize(kIniTextBufferChars - 1);
  return text;
}

bool MemoryProfileStore::WriteString(const std::wstring& path, const std::wstring& section,
                                     const std::wstring& key, const std::wstring& value) {
  if (Fake().directories.count(path)) return false;
  ++writes;
  Fake().files.insert(path);
  File& file = files[path];
  auto sec = FindNamed(file, section);
  if (sec == file.end()) {
    file.push_back({section, {}});
    sec = file.end() - 1;
  }
  auto entry = FindNamed(sec->second, key);
  if (entry == sec->second.end()) {
    sec->second.push_back({key, value});
  } else {
    entry->second = value;
  }
  return true;
}

bool MemoryProfileStore::DeleteKey(const std::wstring& path, const std::wstring& section,
                                   const std::wstring& key) {
  if (Fake().directories.count(path)) return false;
  ++writes;
  auto file = files.find(path);
  if (file == files.end()) return true;
  auto sec = FindNamed(file->second, section);
  if (sec == file->second.end()) return true;
  auto entry = FindNamed(sec->second, key);
  if (entry != sec->second.end()) sec->second.erase(entry);
  return true;
}

bool MemoryProfileStore::DeleteSection(const std::wstring& path, const std::wstring& section) {
  if (Fake().directories.count(path)) return false;
  ++writes;
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
