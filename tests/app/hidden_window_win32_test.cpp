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
};
Observed observed;

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

std::wstring Cell(size_t row, const wchar_t* column) {
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
    // Keep the toggle's save away from the user's real configuration.
    AppConfig().language = L"en-US";
    window_ = CreateHiddenWindow(GetModuleHandleW(nullptr));
    ASSERT_NE(window_, nullptr);
    SetGuardWindow(window_);
  }

  void TearDown() override {
    if (IsWindow(window_)) DestroyWindow(window_);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
    SetGuardBlocking(false);
    SetBlockReasonHeld(false);
  }

  LRESULT Query(LPARAM flags) { return SendMessageW(window_, WM_QUERYENDSESSION, 0, flags); }
  void StartTimerFires() { SendMessageW(window_, WM_TIMER, kTimerStart, 0); }

  HWND window_ = nullptr;
};

TEST_F(HiddenWindowTest, NothingIsBlockedBeforeTheFirstRefresh) {
  EXPECT_EQ(Query(0), TRUE);
  EXPECT_TRUE(observed.calls.empty());
}

TEST_F(HiddenWindowTest, BlockReasonLivesExactlyWhileBlocking) {
  StartTimerFires();
  const std::wstring reason = Cell(3, L"en");
  ASSERT_EQ(observed.calls, std::vector<std::wstring>{L"create " + reason});
  EXPECT_TRUE(BlockReasonHeld());
  EXPECT_EQ(Query(0), FALSE);

  // Every refresh takes the reason down and registers it again.
  SendMessageW(window_, WM_TIMER, kTimerRefresh, 0);
  EXPECT_EQ(observed.calls,
            (std::vector<std::wstring>{L"create " + reason, L"destroy", L"create " + reason}));

  // Turning the guard off removes it at once, not at the next timer.
  SendMessageW(window_, WM_COMMAND, kCmdToggleGuard, 0);
  EXPECT_EQ(observed.calls.back(), L"destroy");
  EXPECT_FALSE(BlockReasonHeld());
  EXPECT_EQ(Query(0), TRUE);

  SendMessageW(window_, WM_COMMAND, kCmdToggleGuard, 0);
  EXPECT_EQ(observed.calls.back(), L"create " + reason);
  const size_t before_destroy = observed.calls.size();
  DestroyWindow(window_);
  ASSERT_EQ(observed.calls.size(), before_destroy + 1);
  EXPECT_EQ(observed.calls.back(), L"destroy");
  EXPECT_FALSE(BlockReasonHeld());
  EXPECT_EQ(observed.notify_messages.back(), static_cast<DWORD>(NIM_DELETE));
}

TEST_F(HiddenWindowTest, RefusalShowsTheWarningNotification) {
  StartTimerFires();
  observed.notify.clear();
  EXPECT_EQ(Query(0), FALSE);
  ASSERT_EQ(observed.notify.size(), 1u);
  const NOTIFYICONDATAW& balloon = observed.notify[0];
  EXPECT_EQ(balloon.uFlags, static_cast<UINT>(NIF_INFO));
  EXPECT_EQ(balloon.dwInfoFlags, static_cast<DWORD>(NIIF_WARNING));
  EXPECT_EQ(std::wstring(balloon.szInfoTitle), Cell(194, L"en"));
  EXPECT_EQ(std::wstring(balloon.szInfo), Cell(195, L"en"));

  // Sign-out and critical shutdown pass without a notification.
  EXPECT_EQ(Query(ENDSESSION_LOGOFF), TRUE);
  EXPECT_EQ(Query(ENDSESSION_CRITICAL), TRUE);
  EXPECT_EQ(Query(ENDSESSION_CLOSEAPP), FALSE);
  EXPECT_EQ(observed.notify.size(), 2u);
}

TEST_F(HiddenWindowTest, TrayIconIsAddedWithTheStatusTooltip) {
  StartTimerFires();
  ASSERT_GE(observed.notify_messages.size(), 2u);
  EXPECT_EQ(observed.notify_messages[0], static_cast<DWORD>(NIM_ADD));
  EXPECT_EQ(observed.notify_messages[1], static_cast<DWORD>(NIM_SETVERSION));
  const NOTIFYICONDATAW& added = observed.notify[0];
  EXPECT_EQ(added.uID, 1u);
  EXPECT_EQ(added.hWnd, window_);
  EXPECT_EQ(added.uCallbackMessage, kWmTrayCallback);
  EXPECT_EQ(added.uFlags, static_cast<UINT>(NIF_MESSAGE | NIF_ICON | NIF_TIP));
  EXPECT_NE(added.hIcon, nullptr);
  EXPECT_EQ(std::wstring(added.szTip), Cell(27, L"en"));
  EXPECT_EQ(observed.notify[1].uVersion, static_cast<UINT>(NOTIFYICON_VERSION_4));
}

TEST_F(HiddenWindowTest, TaskbarCreatedAddsTheIconAgain) {
  SendMessageW(window_, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  ASSERT_GE(observed.notify_messages.size(), 3u);
  EXPECT_EQ(observed.notify_messages[0], static_cast<DWORD>(NIM_ADD));
  EXPECT_EQ(observed.notify_messages.back(), static_cast<DWORD>(NIM_MODIFY));
  EXPECT_TRUE(observed.calls.empty());  // no other state changes
}

TEST_F(HiddenWindowTest, BlockReasonAndTooltipFollowTheLanguage) {
  const struct {
    const wchar_t* language;
    const wchar_t* column;
  } cases[] = {{L"ja-JP", L"ja"}, {L"ar-SA", L"ar"}, {L"cs-CZ", L"cs"}};
  for (const auto& c : cases) {
    AppConfig().language = c.language;
    observed = Observed{};
    SendMessageW(window_, WM_TIMER, kTimerStart, 0);
    ASSERT_FALSE(observed.calls.empty()) << c.column;
    EXPECT_EQ(observed.calls.back(), L"create " + Cell(3, c.column)) << c.column;
    EXPECT_NE(Cell(3, c.column), Cell(3, L"en")) << c.column;
    ASSERT_FALSE(observed.notify.empty()) << c.column;
    EXPECT_EQ(std::wstring(observed.notify.back().szTip), Cell(27, c.column)) << c.column;
  }
}

TEST_F(HiddenWindowTest, AClickThatOpensTheSettingsPostsTheSettingsCommand) {
  for (const UINT event : {NIN_SELECT, NIN_KEYSELECT, WM_LBUTTONUP, WM_LBUTTONDBLCLK}) {
    SendMessageW(window_, kWmTrayCallback, 0, MAKELPARAM(event, 1));
    MSG posted{};
    ASSERT_TRUE(PeekMessageW(&posted, window_, WM_COMMAND, WM_COMMAND, PM_REMOVE)) << event;
    EXPECT_EQ(posted.wParam, static_cast<WPARAM>(kCmdSettings)) << event;
  }
  // Another icon's click asks for nothing.
  SendMessageW(window_, kWmTrayCallback, 0, MAKELPARAM(NIN_SELECT, 2));
  MSG posted{};
  EXPECT_FALSE(PeekMessageW(&posted, window_, WM_COMMAND, WM_COMMAND, PM_REMOVE));
}

TEST_F(HiddenWindowTest, AFinishedCheckSwitchesTheTooltipToTheUpdate) {
  StartTimerFires();
  UpdateCheckResult found;
  found.ok = true;
  found.update_available = true;
  found.manifest.version = L"1.0.200";
  StorePendingUpdateResult(found, true);
  SendMessageW(window_, kWmUpdateCheckDone, 0, 0);
  ASSERT_TRUE(GetAvailableUpdate().has_value());
  EXPECT_EQ(std::wstring(observed.notify.back().szTip),
            Cell(1, L"en") + L" 1.0.200 - " + Cell(2, L"en"));

  // A failed check keeps the offer; a successful one without an update withdraws it.
  UpdateCheckResult failed;
  StorePendingUpdateResult(failed, true);
  SendMessageW(window_, kWmUpdateCheckDone, 0, 0);
  EXPECT_TRUE(GetAvailableUpdate().has_value());
  UpdateCheckResult current;
  current.ok = true;
  current.manifest.version = L"1.0.112";
  StorePendingUpdateResult(current, true);
  SendMessageW(window_, kWmUpdateCheckDone, 0, 0);
  EXPECT_FALSE(GetAvailableUpdate().has_value());
  EXPECT_EQ(std::wstring(observed.notify.back().szTip), Cell(27, L"en"));

  // A message whose result another window took already changes nothing.
  const size_t calls = observed.notify.size();
  SendMessageW(window_, kWmUpdateCheckDone, 0, 0);
  EXPECT_EQ(observed.notify.size(), calls);
}

}  // namespace
