// The platform seams for native tests: a clock, known folders, a file system and a registry held
// in memory, locale texts from a small table, and the log captured as lines.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/file_system.h"
#include "guard/local_time.h"

struct FakeHttpResponse {
  bool ok = true;
  std::wstring text, error;
};

struct FakePlatform {
  LocalTime now;
  std::wstring ui_locale = L"en-US";
  std::map<KnownFolder, std::wstring> known_folders = {
      {KnownFolder::LocalAppData, L"C:\\Users\\ada\\AppData\\Local"},
      {KnownFolder::Startup,
       L"C:\\Users\\ada\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
      {KnownFolder::CommonPrograms, L"C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs"},
      {KnownFolder::Desktop, L"C:\\Users\\ada\\Desktop"},
  };
  ModuleFileName module = {L"C:\\Apps\\Stayhold\\Stayhold.exe", 30};
  std::set<std::wstring> files, directories;
  std::map<std::wstring, std::wstring> install_locations;  // registry key -> value
  std::vector<std::wstring> opened;                        // ShellOpen calls
  std::vector<std::wstring> created_directories;
  bool directories_fail = false;  // CreateDirectoryTree reports an error
  std::vector<std::wstring> log;
  std::map<std::wstring, FakeHttpResponse> http;  // url -> what a fetch gets
};

FakePlatform& Fake();
void ResetFakePlatform();  // before each test
