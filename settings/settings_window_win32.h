// The settings dialog as the rest of the guard reaches it: the one way to open it, or to bring
// the open one to the front.
#pragma once

#include <windows.h>

void OpenOrRaiseSettingsDialog(HWND owner);
