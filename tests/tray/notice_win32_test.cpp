// The exit question as the user meets it: a skinned dialog that a key or the title bar's close
// ends, with the answer each gives.
#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "tray/notice.h"

namespace {

// Waits on another thread for the notice titled `title`, then does `act` to it.
struct NoticeDriver {
  NoticeDriver(const wchar_t* title, std::function<void(HWND)> act)
      : thread([this, title, act] {
          HWND hwnd = nullptr;
          for (int i = 0; i < 400 && !(hwnd = FindWindowW(L"TesselDesignWindow", title)); ++i)
            Sleep(25);
          if (hwnd) act(hwnd);
        }) {}
  ~NoticeDriver() { thread.join(); }
  std::thread thread;
};

void Key(HWND hwnd, WPARAM key) {
  PostMessageW(hwnd, WM_KEYDOWN, key, 1);
  PostMessageW(hwnd, WM_KEYUP, key, 0xC0000001);
}

TEST(NoticeWin32, EnterConfirmsTheExitClosingTheWindowOrThePopupMeansNo) {
  const std::pair<void (*)(HWND), bool> cases[] = {
      {[](HWND hwnd) { Key(hwnd, VK_RETURN); }, true},
      {[](HWND hwnd) { PostMessageW(hwnd, WM_CLOSE, 0, 0); }, false},
      {[](HWND hwnd) { Key(hwnd, VK_ESCAPE); }, false}};
  for (const auto& [act, confirmed] : cases) {
    NoticeDriver driver(L"Exit Stayhold", act);
    EXPECT_EQ(ConfirmStayholdExit(GetModuleHandleW(nullptr), nullptr), confirmed);
  }
}

}  // namespace
