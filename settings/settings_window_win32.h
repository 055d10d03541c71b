// The settings dialog as the rest of the guard reaches it: its window while open, and the one
// way to open it or bring the open one to the front.
#pragma once

#include <windows.h>

extern HWND settings_window;

void OpenOrRaiseSettingsDialog(HWND owner);
