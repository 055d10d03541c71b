#include "guard/hidden_window_win32.h"

#include "guard/log.h"

uint32_t exit_after_ms = 0;
bool open_settings_at_start = false;
HWND hidden_window = nullptr;
UINT taskbar_created_message = 0;

namespace {

void StartTimers(HWND window) {
  SetTimer(window, kTimerStart, 500, nullptr);
  SetTimer(window, kTimerRefresh, 30000, nullptr);
  SetTimer(window, kTimerUpdateCheck, 3600000, nullptr);
  if (exit_after_ms != 0) SetTimer(window, kTimerSelfExit, exit_after_ms, nullptr);
}

void OnTimer(HWND window, UINT_PTR id) {
  switch (id) {
    case kTimerStart:
      KillTimer(window, kTimerStart);
      break;
    case kTimerSelfExit:
      KillTimer(window, kTimerSelfExit);
      DestroyWindow(window);
      break;
    default:
      break;
  }
}

}  // namespace

LRESULT CALLBACK HiddenWindowProc(HWND window, UINT message, WPARAM w_param, LPARAM l_param) {
  // The registered message is no constant, so it is tested before the switch.
  if (taskbar_created_message != 0 && message == taskbar_created_message) return 0;
  switch (message) {
    case WM_CREATE:
      StartTimers(window);
      return 0;
    case WM_TIMER:
      OnTimer(window, w_param);
      return 0;
    case WM_CLOSE:
      // The update installer and any outside WM_CLOSE end the guard with no question.
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      KillTimer(window, kTimerUpdateCheck);
      KillTimer(window, kTimerRefresh);
      AppendLog(L"app shutdown");
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, w_param, l_param);
  }
}
