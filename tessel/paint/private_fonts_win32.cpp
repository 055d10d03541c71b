#include "tessel/paint/private_fonts_win32.h"

#include <windows.h>

#include "base/file_system.h"
#include "base/win_path.h"
#include "tessel/paint/private_fonts.h"

namespace tessel {

namespace {

std::vector<FolderEntry> listFolder(const std::wstring& folder) {
  std::vector<FolderEntry> listing;
  WIN32_FIND_DATAW found{};
  HANDLE search = FindFirstFileExW(JoinPath(folder, L"*").c_str(), FindExInfoBasic, &found,
                                   FindExSearchNameMatch, nullptr, 0);
  if (search == INVALID_HANDLE_VALUE) return listing;  // no folder, or nothing in it
  do {
    const DWORD notRegular = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    listing.push_back(FolderEntry{found.cFileName, (found.dwFileAttributes & notRegular) == 0});
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return listing;
}

// Holds the executable's fonts for the life of the process; the destructor runs at exit.
struct ProgramFonts {
  ProgramFonts() {
    const ModuleFileName module = ReadModuleFileName();
    const std::wstring folder = ModuleFolderFromFileName(module.text, module.copied, MAX_PATH);
    if (!folder.empty()) loaded = loadPrivateFontsFrom(JoinPath(folder, L"fonts"));
  }
  ~ProgramFonts() { releasePrivateFonts(loaded); }
  ProgramFonts(const ProgramFonts&) = delete;
  ProgramFonts& operator=(const ProgramFonts&) = delete;

  std::vector<std::wstring> loaded;
};

}  // namespace

void ensurePrivateFontsLoaded() {
  // A function-local static: loaded by the first caller of any thread, the others wait.
  static ProgramFonts fonts;
}

std::vector<std::wstring> loadPrivateFontsFrom(const std::wstring& folder) {
  std::vector<std::wstring> loaded;
  for (const std::wstring& name : privateFontFiles(listFolder(folder))) {
    std::wstring path = JoinPath(folder, name);
    if (AddFontResourceExW(path.c_str(), FR_PRIVATE, nullptr) > 0)
      loaded.push_back(std::move(path));
  }
  return loaded;
}

size_t releasePrivateFonts(const std::vector<std::wstring>& paths) {
  size_t released = 0;
  for (const std::wstring& path : paths)
    released += RemoveFontResourceExW(path.c_str(), FR_PRIVATE, nullptr) ? 1 : 0;
  return released;
}

}  // namespace tessel
