// The hidden window in this process, with the block-reason calls and the shell's notification
// calls observed: Wine implements neither block-reason call, so their lifecycle is proven here.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/hidden_window_win32.h"
#include "guard/guard_messages.h"
#include "guard/guard_state.h"
#include "i18n/language.h"
#include "i18n/string_table.h"
#include "tray/tray_icon_win32.h"
#include "update/update_check.h"

namespace {

struct Observed {
  std::vector<std::wstring> calls;  // "create <text>", "destroy"
  std::vector<NOTIFYICONDATAW> notify;
  std::vector<DWORD> notify_messages;
} observed;

BOOL WINAPI RecordCreate(HWND, LPCWSTR text) {
  observed.calls.push_back(std::wstring(L"create ") + text);
  return TRUE;
}
BOOL WINAPI RecordDestroy(HWND) {
  observed.calls.push_back(L"destroy");
  return TRUE;
}
BOOL WINAPI RecordNotify(DWORD message, PNOTIFYICONDATAW data) {
  observed.notify_messages.push_back(message);
  observed.notify.push_back(*data);
  return TRUE;
}

std::wstring Cell(size_t row, const wchar_t* column = L"en") {
  return kStringTable[row].cells[LanguageColumnIndex(column)];
}

class HiddenWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    observed = Observed{};
    ShutdownBlockReasonApi() = {&RecordCreate, &RecordDestroy};
    TrayShellNotify() = &RecordNotify;
    static bool registered = RegisterHiddenWindowClass(GetModuleHandleW(nullptr));
    ASSERT_TRUE(registered);
    AppConfig() = StayholdConfig();
    AppConfig().profiles.push_back(BehaviorProfile{});
    AppConfig().language = L"en-US";
    window_ = CreateHiddenWindow(GetModuleHandleW(nullptr));
    ASSERT_NE(window_, nullptr);
    SetGuardWindow(window_);
  }

  void TearDown() override {
    if (IsWindow(window_)) DestroyWindow(window_);
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
      ;
    SetGuardBlocking(false);
    SetBlockReasonHeld(false);
  }

  void Send(UINT message, WPARAM w = 0, LPARAM l = 0) { SendMessageW(window_, message, w, l); }
  std::wstring Tip() const { return observed.notify.back().szTip; }

  HWND window_ = nullptr;
};

TEST_F(HiddenWindowTest, BlockReasonLivesExactlyWhileBlocking) {
  Send(WM_TIMER, kTimerStart);
  const std::wstring create = L"create " + Cell(3);
  ASSERT_EQ(observed.calls, std::vector<std::wstring>{create});
  // A refusal shows the warning notification; a sign-out passes without one.
  observed.notify.clear();
  Send(WM_QUERYENDSESSION, 0, 0);
  Send(WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF);
  ASSERT_EQ(observed.notify.size(), 1u);
  EXPECT_EQ(observed.notify[0].dwInfoFlags, static_cast<DWORD>(NIIF_WARNING));
  EXPECT_EQ(observed.notify[0].szInfoTitle, Cell(194));
  EXPECT_EQ(observed.notify[0].szInfo, Cell(195));

  // Every refresh takes the reason down and registers it again.
  Send(WM_TIMER, kTimerRefresh);
  EXPECT_EQ(observed.calls, (std::vector<std::wstring>{create, L"destroy", create}));

  // Turning the guard off removes it at once, not at the next timer.
  Send(WM_COMMAND, kCmdToggleGuard);
  EXPECT_EQ(observed.calls.back(), L"destroy");

  Send(WM_COMMAND, kCmdToggleGuard);
  EXPECT_EQ(observed.calls.back(), create);
  DestroyWindow(window_);
  EXPECT_EQ(observed.calls.back(), L"destroy");
  EXPECT_FALSE(BlockReasonHeld());
  EXPECT_EQ(observed.notify_messages.back(), static_cast<DWORD>(NIM_DELETE));
}

TEST_F(HiddenWindowTest, TrayIconIsAddedInTheLanguageAndAgainForANewTaskbar) {
  AppConfig().language = L"ja-JP";
  Send(WM_TIMER, kTimerStart);
  // tray_scenario.sh clicks the added icon; here its tip is in the language.
  ASSERT_FALSE(observed.notify.empty());
  EXPECT_EQ(observed.notify[0].szTip, Cell(27, L"ja"));
  EXPECT_EQ(observed.calls.back(), L"create " + Cell(3, L"ja"));
  // A restarted taskbar gets the icon again, and nothing else changes.
  observed = Observed{};
  Send(RegisterWindowMessageW(L"TaskbarCreated"));
  ASSERT_FALSE(observed.notify_messages.empty());
  EXPECT_EQ(observed.notify_messages[0], static_cast<DWORD>(NIM_ADD));
  EXPECT_TRUE(observed.calls.empty());
}

TEST_F(HiddenWindowTest, AFinishedCheckSwitchesTheTooltipToTheUpdate) {
  Send(WM_TIMER, kTimerStart);
  const auto finish = [this](bool ok, bool available, const wchar_t* version) {
    UpdateCheckResult result{false, ok, available, {}, L""};
    result.manifest.version = version;
    StorePendingUpdateResult(result, true);
    Send(kWmUpdateCheckDone);
  };
  finish(true, true, L"1.0.200");
  ASSERT_TRUE(GetAvailableUpdate().has_value());
  EXPECT_EQ(Tip(), Cell(1) + L" 1.0.200 - " + Cell(2));
  // A successful check without an update withdraws the offer.
  finish(true, false, L"1.0.112");
  EXPECT_FALSE(GetAvailableUpdate().has_value());
  EXPECT_EQ(Tip(), Cell(27));
}

}  // namespace
