// Dialogs on Windows: creation centred on the owner's window, and the modal loop that disables
// the owner, dispatches the messages of every window of the thread (raw keys to the dialog),
// passes WM_QUIT on to outer loops, and re-enables and activates the owner afterwards.
#pragma once

#include "tessel/core/dialog_window.h"
#include "tessel/core/window_win32.h"

namespace tessel {

// Creates the dialog's window over `options.owner`: its size raised to the effective minimum,
// centred on the owner (or the work area), inside the work area, and laid out. Dialogs never
// end the thread's message loop when destroyed.
bool createDialog(DialogWindow& dialog, Win32WindowPlatform& native, NativeWindowOptions options);

// Runs the dialog until it ends; `owner` (or the one it was created over) is disabled meanwhile.
DialogResult runDialog(DialogWindow& dialog, Win32WindowPlatform& native, HWND owner = nullptr);

}  // namespace tessel
