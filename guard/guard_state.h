// The running guard's shared state, owned here and reached only through these functions: the
// configuration, the hidden window, whether a planned restart is refused now, and whether a
// shutdown block reason is held for the window. Written on the user interface thread only; the
// window is set once, before any worker that posts to it starts.
#pragma once

#include <string>

#include "base/win32_types.h"
#include "guard/config.h"

// The process-wide configuration; exists with its defaults from the first instruction.
StayholdConfig& AppConfig();
// Its language setting, read afresh: the reader the application registers with i18n at start.
std::wstring ConfiguredLanguage();

// Null until the entry routine has created the window.
WindowHandle GuardWindow();
void SetGuardWindow(WindowHandle window);

// What WM_QUERYENDSESSION is answered from: the outcome of the last refresh.
bool GuardBlocking();
void SetGuardBlocking(bool blocking);

bool BlockReasonHeld();
void SetBlockReasonHeld(bool held);
