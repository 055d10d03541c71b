// The answer to Windows' question whether the session may end. Only a planned shutdown or
// restart is ever refused, and only while the guard blocks; a sign-out and a critical shutdown
// always pass.
#pragma once

#include <cstdint>

inline constexpr uint32_t kEndSessionCloseApp = 0x00000001;  // ENDSESSION_CLOSEAPP
inline constexpr uint32_t kEndSessionCritical = 0x40000000;  // ENDSESSION_CRITICAL
inline constexpr uint32_t kEndSessionLogoff = 0x80000000;    // ENDSESSION_LOGOFF

// `flags` is the lParam of WM_QUERYENDSESSION.
inline bool SessionMayEnd(bool blocking_now, uint32_t flags) {
  if (!blocking_now) return true;
  return (flags & (kEndSessionLogoff | kEndSessionCritical)) != 0;
}
