// The guard's invisible top-level window: the hub of the running application. It owns the
// timers, answers Windows' session-end query, carries out the tray menu's commands and ends the
// process when it is destroyed, by whatever path.
#pragma once

#include <windows.h>

#include <cstdint>

// Process-wide state of the guard role, touched on the user interface thread only.
extern uint32_t exit_after_ms;
extern bool open_settings_at_start;
extern HWND hidden_window;
extern UINT taskbar_created_message;
extern bool blocking_now;             // what WM_QUERYENDSESSION is answered from
extern bool block_reason_registered;  // a shutdown block reason is held for the window

// The two block-reason calls, replaceable so that tests can observe them (Wine implements
// neither); they are the real functions otherwise.
struct BlockReasonApi {
  BOOL(WINAPI* create)(HWND, LPCWSTR);
  BOOL(WINAPI* destroy)(HWND);
};
BlockReasonApi& ShutdownBlockReasonApi();

LRESULT CALLBACK HiddenWindowProc(HWND window, UINT message, WPARAM w_param, LPARAM l_param);

// Registers the class and creates the window; null on failure (the class is left registered).
bool RegisterHiddenWindowClass(HINSTANCE instance);
HWND CreateHiddenWindow(HINSTANCE instance);

// Evaluates the guard and re-registers the block reason while blocking.
void RefreshShutdownBlockReason();
// The above, the tooltip, and a nudge to an open settings dialog.
void RefreshGuardState();
