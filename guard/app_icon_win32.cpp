#include "guard/app_icon_win32.h"

#include "guard/build_facts.h"

HICON LoadApplicationIcon(HINSTANCE instance, int size_metric_x, int size_metric_y) {
  HICON icon = static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(kApplicationIconId),
                                             IMAGE_ICON, GetSystemMetrics(size_metric_x),
                                             GetSystemMetrics(size_metric_y), LR_SHARED));
  return icon ? icon : LoadIconW(nullptr, IDI_APPLICATION);
}
