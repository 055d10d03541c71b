// The application icon (resource 101) at a system icon size, shared; the stock application icon
// when it cannot be loaded.
#pragma once

#include <windows.h>

HICON LoadApplicationIcon(HINSTANCE instance, int size_metric_x, int size_metric_y);
