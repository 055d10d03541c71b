// What the path logic needs of the platform: the executable's location, known folders, the
// temporary folder, absolute paths, file tests and the shell's "open".
#pragma once

#include <string>

enum class KnownFolder { LocalAppData, Startup, CommonPrograms, Desktop };

// The raw module file name (GetModuleFileNameW into 260 characters): `copied` is the call's result.
struct ModuleFileName {
  std::wstring text;
  unsigned copied = 0;
};
ModuleFileName ReadModuleFileName();

bool KnownFolderPath(KnownFolder folder, std::wstring& out);  // created when missing
std::wstring TempFolder();                                    // GetTempPathW
bool AbsolutePath(const std::wstring& path, std::wstring& out);
bool IsRegularFile(const std::wstring& path);
bool IsDirectory(const std::wstring& path);
// False when the folder could not be made; most callers ignore that.
bool CreateDirectoryTree(const std::wstring& path);
void ShellOpen(const std::wstring& path);  // verb "open", normal show state
