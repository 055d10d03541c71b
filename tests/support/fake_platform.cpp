#include "tests/support/fake_platform.h"

#include <cwctype>

#include "base/wide_text.h"
#include "guard/install_folder.h"
#include "guard/log.h"
#include "i18n/locale_system.h"
#include "tests/support/fake_machine_registry.h"
#include "tests/support/memory_profile_store.h"
#include "update/update_check.h"

FakePlatform& Fake() {
  static FakePlatform platform;
  return platform;
}

FakeMachineRegistry& FakeRegistry() {
  static FakeMachineRegistry registry;
  return registry;
}

MachineRegistry& SystemMachineRegistry() {
  return FakeRegistry();
}

void ResetFakePlatform() {
  Fake() = FakePlatform();
  FakeRegistry() = FakeMachineRegistry();
  MemoryStore() = MemoryProfileStore();
}

ProfileStore& SystemProfileStore() {
  return MemoryStore();
}

LocalTime CurrentLocalTime() {
  return Fake().now;
}

ModuleFileName ReadModuleFileName() {
  return Fake().module;
}

bool KnownFolderPath(KnownFolder folder, std::wstring& out) {
  auto found = Fake().known_folders.find(folder);
  if (found == Fake().known_folders.end()) return false;
  out = found->second;
  return true;
}

std::wstring TempFolder() {
  return Fake().temp_folder;
}

bool AbsolutePath(const std::wstring& path, std::wstring& out) {
  // Enough of Windows' rule for tests: drive-absolute and UNC paths stand, others join the
  // current folder; "?" stands for a path the platform rejects.
  if (path.find(L'?') != std::wstring::npos) return false;
  const bool drive = path.size() >= 3 && path[1] == L':' && path[2] == L'\\';
  const bool unc = path.size() >= 2 && path[0] == L'\\' && path[1] == L'\\';
  if (drive || unc) {
    out = path;
  } else if (!path.empty() && path[0] == L'\\') {
    out = Fake().current_directory.substr(0, 2) + path;
  } else {
    out = Fake().current_directory + L"\\" + path;
  }
  return true;
}

bool IsRegularFile(const std::wstring& path) {
  return Fake().files.count(path) > 0;
}
bool IsDirectory(const std::wstring& path) {
  return Fake().directories.count(path) > 0;
}

bool CreateDirectoryTree(const std::wstring& path) {
  if (Fake().directories_fail) return false;
  Fake().created_directories.push_back(path);
  Fake().directories.insert(path);
  return true;
}

void ShellOpen(const std::wstring& path) {
  Fake().opened.push_back(path);
}

bool ReadInstallLocation(const wchar_t* key, std::wstring& out) {
  auto found = Fake().install_locations.find(key);
  if (found == Fake().install_locations.end() || found->second.empty()) return false;
  out = found->second;
  return true;
}

std::wstring SystemUiLocaleName() {
  return Fake().ui_locale;
}

bool LocaleInfoText(const std::wstring& tag, uint32_t lctype, std::wstring& out) {
  static const std::map<std::wstring, std::vector<std::wstring>> kDayNames = {
      {L"en-US",
       {L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday", L"Sunday"}},
      {L"cs-CZ", {L"pondělí", L"úterý", L"středa", L"čtvrtek", L"pátek", L"sobota", L"neděle"}},
  };
  static const std::map<std::wstring, std::pair<std::wstring, std::wstring>> kLanguageNames = {
      {L"en-US", {L"English", L"English"}},
      {L"cs-CZ", {L"čeština", L"Czech"}},
  };
  if (lctype == kLocaleNativeDisplayName || lctype == kLocaleEnglishDisplayName) {
    auto names = kLanguageNames.find(tag);
    if (names == kLanguageNames.end()) return false;
    out = lctype == kLocaleNativeDisplayName ? names->second.first : names->second.second;
    return true;
  }
  auto found = kDayNames.find(tag);
  if (found == kDayNames.end() || lctype < kLocaleDayName1 || lctype > kLocaleDayName1 + 6) {
    return false;
  }
  out = found->second[lctype - kLocaleDayName1];
  return true;
}

bool EqualsOrdinalIgnoreCase(const std::wstring& a, const std::wstring& b) {
  return EqualsIgnoringCase(a, b);
}

void AppendLog(const std::wstring& message) {
  Fake().log.push_back(message);
}

bool FetchUpdateManifest(const std::wstring& url, std::wstring& text, std::wstring& error) {
  auto found = Fake().http.find(url);
  if (found == Fake().http.end()) {
    error = L"Update manifest request failed.";
    return false;
  }
  if (!found->second.ok) {
    error = found->second.error;
    return false;
  }
  text = found->second.text;
  return true;
}
