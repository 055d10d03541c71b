#include <windows.h>
#include <share.h>

#include <cstdio>

#include "base/file_system.h"
#include "guard/log.h"
#include "guard/paths.h"

void AppendLog(const std::wstring& message) {
  CreateDirectoryTree(LogDirectory());
  // Opened for each line and shared with everyone: the guard, its workers and a running setup
  // all append to the same file.
  FILE* file = _wfsopen(LogFilePath().c_str(), L"ab", _SH_DENYNO);
  if (!file) return;
  const std::string line = FormatLogLine(CurrentLocalTime(), message);
  if (!line.empty()) std::fwrite(line.data(), 1, line.size(), file);
  std::fclose(file);
}
