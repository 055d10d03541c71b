// Modal dialogs under the system: the result of a closed dialog, a click that ends the dialog
// from inside its own dispatch, the owner disabled only while the loop runs, and WM_QUIT
// passing through nested loops.
#include "tessel/core/dialog_window_win32.h"

#include <gtest/gtest.h>

#include <functional>

namespace tessel {
namespace {

struct ActionBox : Control {
  ActionBox(Rect bounds, std::function<void()> action) : Control(L"box", bounds), action(action) {}
  void clicked() override { action(); }
  std::function<void()> action;
};

NativeWindowOptions Options(HWND owner) {
  NativeWindowOptions options;
  options.instance = GetModuleHandleW(nullptr);
  options.title = L"Dialog test";
  options.clientSize = Size{240, 140};
  options.owner = owner;
  options.quitOnDestroy = false;
  return options;
}

struct Owner {
  // Never shown: disabling and enabling work on hidden windows, and showing costs seconds here.
  Owner() : native(window) { EXPECT_TRUE(native.create(Options(nullptr))); }
  Window window;
  Win32WindowPlatform native;
};

void Click(HWND hwnd, int x, int y) {
  PostMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
  PostMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

TEST(DialogWin32, ClosedWithoutAResultEndsWithFive) {
  Owner owner;
  DialogWindow dialog;
  Win32WindowPlatform native(dialog);
  ASSERT_TRUE(createDialog(dialog, native, Options(owner.native.hwnd())));
  PostMessageW(native.hwnd(), WM_CLOSE, 0, 0);
  EXPECT_EQ(runDialog(dialog, native), kDialogDestroyed);
  EXPECT_TRUE(IsWindowEnabled(owner.native.hwnd()));
}

TEST(DialogWin32, AClickEndsTheDialogFromInsideItsDispatch) {
  Owner owner;
  DialogWindow dialog;
  bool ownerDisabledMeanwhile = false;
  dialog.rootPanel().add<ActionBox>(Rect{20, 20, 80, 30}, [&] {
    ownerDisabledMeanwhile = !IsWindowEnabled(owner.native.hwnd());
    dialog.endDialog(7);
  });
  Win32WindowPlatform native(dialog);
  ASSERT_TRUE(createDialog(dialog, native, Options(owner.native.hwnd())));
  Click(native.hwnd(), 30, 30);
  EXPECT_EQ(runDialog(dialog, native), 7);
  EXPECT_TRUE(ownerDisabledMeanwhile);
  EXPECT_TRUE(IsWindowEnabled(owner.native.hwnd()));
  EXPECT_FALSE(IsWindow(native.hwnd()));
}

TEST(DialogWin32, QuitEndsEveryNestedLoop) {
  Owner owner;
  DialogWindow outer;
  DialogResult innerResult = -1;
  Win32WindowPlatform outerNative(outer);
  outer.rootPanel().add<ActionBox>(Rect{20, 20, 80, 30}, [&] {
    DialogWindow inner;
    Win32WindowPlatform innerNative(inner);
    ASSERT_TRUE(createDialog(inner, innerNative, Options(outerNative.hwnd())));
    PostQuitMessage(3);
    innerResult = runDialog(inner, innerNative);
  });
  ASSERT_TRUE(createDialog(outer, outerNative, Options(owner.native.hwnd())));
  Click(outerNative.hwnd(), 30, 30);
  EXPECT_EQ(runDialog(outer, outerNative), kNoDialogResult);  // left by the quit, not ended
  EXPECT_EQ(innerResult, kNoDialogResult);
  // The quit was passed on once more for the thread's own loop.
  MSG msg{};
  ASSERT_TRUE(PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(msg.wParam, 3u);
  EXPECT_TRUE(IsWindowEnabled(owner.native.hwnd()));
}

}  // namespace
}  // namespace tessel
