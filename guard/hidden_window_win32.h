// The guard's invisible top-level window: the hub of the running application. It owns the timers
// and ends the process when it is destroyed, by whatever path.
#pragma once

#include <windows.h>

#include <cstdint>

// Process-wide state of the guard role.
extern uint32_t exit_after_ms;
extern bool open_settings_at_start;
extern HWND hidden_window;
extern UINT taskbar_created_message;

enum GuardTimer : UINT_PTR {
  kTimerStart = 1,        // 500 ms after creation, once: protection starts
  kTimerSelfExit = 2,     // the --exit-after-ms limit, once
  kTimerRefresh = 3,      // every 30 s
  kTimerUpdateCheck = 4,  // every hour
};

LRESULT CALLBACK HiddenWindowProc(HWND window, UINT message, WPARAM w_param, LPARAM l_param);
