// INI files held in memory with the profile functions' semantics, for native tests. Files join
// the fake platform's file set; a folder in a file's place refuses writes.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "guard/profile_store.h"

class MemoryProfileStore final : public ProfileStore {
 public:
  using Section = std::vector<std::pair<std::wstring, std::wstring>>;
  using File = std::vector<std::pair<std::wstring, Section>>;

  std::map<std::wstring, File> files;
  int writes = 0;  // calls that change a file

  int ReadInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
              int fallback) override;
  std::wstring ReadString(const std::wstring& path, const std::wstring& section,
                          const std::wstring& key, const std::wstring& fallback) override;
  bool WriteString(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override;
  bool DeleteKey(const std::wstring& path, const std::wstring& section,
                 const std::wstring& key) override;
  bool DeleteSection(const std::wstring& path, const std::wstring& section) override;

  // Test helpers: put a whole file in place, find a value or a section.
  void Put(const std::wstring& path, const File& file);
  const std::wstring* Find(const std::wstring& path, const std::wstring& section,
                           const std::wstring& key) const;
  bool HasSection(const std::wstring& path, const std::wstring& section) const;
};

MemoryProfileStore& MemoryStore();
