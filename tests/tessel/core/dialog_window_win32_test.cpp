// Modal dialogs under the system: the result of a closed dialog, a click that ends the dialog
// from inside its own dispatch, the owner disabled only while the loop runs, and WM_QUIT
// passing through nested loops.
#include "tessel/core/dialog_window_win32.h"

#include <gtest/gtest.h>

#include <functional>

namespace tessel {
namespace {

struct ActionBox : Control {
  explicit ActionBox(std::function<void()> action)
      : Control(L"box", Rect{20, 20, 80, 30}), action(action) {}
  void clicked() override { action(); }
  std::function<void()> action;
};

NativeWindowOptions Options(HWND owner) {
  NativeWindowOptions options;
  options.instance = GetModuleHandleW(nullptr);
  options.clientSize = Size{240, 140};
  options.owner = owner;
  options.quitOnDestroy = false;
  return options;
}

// Never shown: disabling and enabling work on hidden windows, and showing costs seconds here.
struct DialogWin32 : ::testing::Test {
  void SetUp() override { ASSERT_TRUE(owner.create(Options(nullptr))); }
  static void Click(HWND hwnd) {
    for (UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
      PostMessageW(hwnd, message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(30, 30));
  }
  Window ownerWindow;
  Win32WindowPlatform owner{ownerWindow};
};

TEST_F(DialogWin32, EndedByAClickInsideItsDispatchOrClosedWithoutAResult) {
  DialogWindow dialog, closed;
  bool ownerDisabledMeanwhile = false;
  dialog.rootPanel().add<ActionBox>([&] {
    ownerDisabledMeanwhile = !IsWindowEnabled(owner.hwnd());
    dialog.endDialog(7);
  });
  Win32WindowPlatform native(dialog);
  ASSERT_TRUE(createDialog(dialog, native, Options(owner.hwnd())));
  Click(native.hwnd());
  EXPECT_EQ(runDialog(dialog, native), 7);
  EXPECT_TRUE(ownerDisabledMeanwhile);
  EXPECT_TRUE(IsWindowEnabled(owner.hwnd()));
  EXPECT_FALSE(IsWindow(native.hwnd()));
  Win32WindowPlatform closedNative(closed);
  ASSERT_TRUE(createDialog(closed, closedNative, Options(owner.hwnd())));
  PostMessageW(closedNative.hwnd(), WM_CLOSE, 0, 0);
  EXPECT_EQ(runDialog(closed, closedNative), kDialogDestroyed);
}

TEST_F(DialogWin32, QuitEndsEveryNestedLoop) {
  DialogWindow outer;
  DialogResult innerResult = -1;
  Win32WindowPlatform outerNative(outer);
  outer.rootPanel().add<ActionBox>([&] {
    DialogWindow inner;
    Win32WindowPlatform innerNative(inner);
    ASSERT_TRUE(createDialog(inner, innerNative, Options(outerNative.hwnd())));
    PostQuitMessage(3);
    innerResult = runDialog(inner, innerNative);
  });
  ASSERT_TRUE(createDialog(outer, outerNative, Options(owner.hwnd())));
  Click(outerNative.hwnd());
  EXPECT_EQ(runDialog(outer, outerNative), kNoDialogResult);  // left by the quit, not ended
  EXPECT_EQ(innerResult, kNoDialogResult);
  // The quit was passed on once more for the thread's own loop.
  MSG msg{};
  ASSERT_TRUE(PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(msg.wParam, 3u);
  EXPECT_TRUE(IsWindowEnabled(owner.hwnd()));
}

}  // namespace
}  // namespace tessel
