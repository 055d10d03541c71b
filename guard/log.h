// The diagnostic log: one line per event appended to stayhold.log in the data folder, UTF-8
// without BOM, LF-terminated, "D.M.YYYY  H:MM:SS  message". No levels, no rotation, and a write
// that fails is lost silently so that logging never stops the program.
#pragma once

#include <string>

#include "guard/local_time.h"

void AppendLog(const std::wstring& message);

// The line's bytes as AppendLog writes them, line feed included.
std::string FormatLogLine(const LocalTime& time, const std::wstring& message);
