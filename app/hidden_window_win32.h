// The guard's invisible top-level window: the hub of the running application. It owns the
// timers, answers Windows' session-end query, carries out the tray menu's commands, passes what
// the update workers post on to the tray and the user, and ends the process when it is
// destroyed, by whatever path. The state other folders read is in guard/guard_state.h.
#pragma once

#include <windows.h>

#include <cstdint>

// What the entry routine decides before the window is created: the self-exit limit (0: none)
// and whether the settings open once protection has started.
struct HiddenWindowOptions {
  uint32_t exit_after_ms = 0;
  bool open_settings = false;
};
HiddenWindowOptions& HiddenWindowStart();

// The two block-reason calls, replaceable so that tests can observe them (Wine implements
// neither); they are the real functions otherwise.
struct BlockReasonApi {
  BOOL(WINAPI* create)(HWND, LPCWSTR);
  BOOL(WINAPI* destroy)(HWND);
};
BlockReasonApi& ShutdownBlockReasonApi();

LRESULT CALLBACK HiddenWindowProc(HWND window, UINT message, WPARAM w_param, LPARAM l_param);

// Registers the class (and the shell's TaskbarCreated message) and creates the window; null on
// failure (the class is left registered).
bool RegisterHiddenWindowClass(HINSTANCE instance);
HWND CreateHiddenWindow(HINSTANCE instance);

// Evaluates the guard and re-registers the block reason while blocking.
void RefreshShutdownBlockReason();
// The above and the tooltip.
void RefreshGuardState();
