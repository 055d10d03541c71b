// The compiled product version: what the update check compares, what dialogs show, and what the
// uninstall entry and package cache carry. The resource scripts take the same numbers.
#pragma once

#define STAYHOLD_VERSION_MAJOR 1
#define STAYHOLD_VERSION_MINOR 0
#define STAYHOLD_VERSION_PATCH 112
#define STAYHOLD_VERSION_TEXT "1.0.112"

#ifndef RC_INVOKED
inline constexpr wchar_t kStayholdVersion[] = L"" STAYHOLD_VERSION_TEXT;
#endif
