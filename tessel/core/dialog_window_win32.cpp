#include "tessel/core/dialog_window_win32.h"

#include <algorithm>

#include "tessel/core/window_frame.h"

namespace tessel {

bool createDialog(DialogWindow& dialog, Win32WindowPlatform& native, NativeWindowOptions options) {
  options.quitOnDestroy = false;
  if (!native.create(options)) return false;
  HWND hwnd = native.hwnd();
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  Size size{frame.right - frame.left, frame.bottom - frame.top};
  const Size minimum = native.minimumWindowSize();
  size.width = std::max(size.width, minimum.width);
  size.height = std::max(size.height, minimum.height);
  RECT ownerFrame{};
  const bool hasOwner = options.owner != nullptr && GetWindowRect(options.owner, &ownerFrame);
  const Rect ownerRect = rectOf(ownerFrame);
  Rect screen, work;
  monitorAreas(hasOwner ? MonitorFromRect(&ownerFrame, MONITOR_DEFAULTTONEAREST)
                        : MonitorFromWindow(hwnd, MONITOR_DEFAULTTONEAREST),
               screen, work);
  const Rect place = centreOnOwner(size, hasOwner ? &ownerRect : nullptr, work);
  SetWindowPos(hwnd, nullptr, place.x, place.y, place.width, place.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  dialog.relayout();
  return true;
}

DialogResult runDialog(DialogWindow& dialog, Win32WindowPlatform& native, HWND owner) {
  HWND hwnd = native.hwnd();
  HWND target = owner != nullptr ? owner : GetWindow(hwnd, GW_OWNER);
  const bool ownerWasEnabled = target != nullptr && IsWindowEnabled(target);
  if (target != nullptr) EnableWindow(target, FALSE);
  dialog.started();
  ShowWindow(hwnd, SW_SHOWNORMAL);
  dialog.relayout();
  UpdateWindow(hwnd);
  MSG msg{};
  while (!dialog.finished() && IsWindow(hwnd)) {
    const BOOL got = GetMessageW(&msg, nullptr, 0, 0);
    if (got <= 0) {
      // An outer loop must see the quit too.
      if (got == 0) PostQuitMessage(int(msg.wParam));
      break;
    }
    // The toolkit wants the dialog's raw keys; everything else may be a dialog message.
    const bool ownKey = msg.hwnd == hwnd && msg.message >= 256 && msg.message <= 265;
    if (ownKey || !IsDialogMessageW(hwnd, &msg)) {
      TranslateMessage(&msg);
      DispatchMessageW(&msg);
    }
  }
  if (target != nullptr && IsWindow(target) && ownerWasEnabled) {
    EnableWindow(target, TRUE);
    SetActiveWindow(target);
  }
  return dialog.result();
}

}  // namespace tessel
