#include "tests/support/fake_platform.h"

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
  if (!Fake().known_folders.count(folder)) return false;
  out = Fake().known_folders[folder];
  return true;
}

std::wstring TempFolder() {
  return L"C:\\Users\\ada\\AppData\\Local\\Temp\\";
}

bool AbsolutePath(const std::wstring& path, std::wstring& out) {
  // Enough of Windows' rule for tests, with C:\Work as the current folder: drive-absolute and
  // UNC paths stand, others join the current folder; "?" stands for a path the platform rejects.
  if (path.find(L'?') != std::wstring::npos) return false;
  const bool drive = path.size() >= 3 && path[1] == L':' && path[2] == L'\\';
  const bool absolute = drive || path.starts_with(L"\\\\");
  out = absolute ? path : path.starts_with(L"\\") ? L"C:" + path : L"C:\\Work\\" + path;
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
  // The native and the English name of the language, then the day names from Monday.
  static const std::map<std::wstring, std::vector<std::wstring>> kTexts = {
      {L"en-US",
       {L"English", L"English", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday",
        L"Saturday", L"Sunday"}},
      {L"cs-CZ",
       {L"čeština", L"Czech", L"pondělí", L"úterý", L"středa", L"čtvrtek", L"pátek", L"sobota",
        L"neděle"}},
  };
  size_t index = 0;
  if (lctype == kLocaleEnglishDisplayName)
    index = 1;
  else if (lctype >= kLocaleDayName1 && lctype <= kLocaleDayName1 + 6)
    index = 2 + lctype - kLocaleDayName1;
  else if (lctype != kLocaleNativeDisplayName)
    return false;
  auto found = kTexts.find(tag);
  if (found == kTexts.end()) return false;
  out = found->second[index];
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
  if (found == Fake().http.end() || !found->second.ok) {
    error = found == Fake().http.end() ? L"Update manifest request failed." : found->second.error;
    return false;
  }
  text = found->second.text;
  return true;
}
