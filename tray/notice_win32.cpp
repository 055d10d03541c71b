#include <windows.h>

#include <functional>
#include <memory>

#include "guard/app_skins.h"
#include "guard/guard_state.h"
#include "guard/paths.h"
#include "i18n/localized.h"
#include "tessel/controls/chrome_title_bar.h"
#include "tessel/controls/designed_popup.h"
#include "tessel/core/dialog_window_win32.h"
#include "tessel/paint/icon_image_win32.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/style_sheet.h"
#include "tray/notice.h"

namespace {

using tessel::DialogResult;
using tessel::DialogWindow;
using tessel::PopupAction;

constexpr int kChromeHeight = 42;
constexpr int kChromeIconSize = 20;
constexpr int kIconResource = 101;

struct NoticeLook {
  std::wstring title;
  std::wstring message;
  tessel::Size size;
  std::wstring popupId;
  std::wstring variant;
  std::wstring glyph;
  HWND owner = nullptr;
};

// The skin the user chose (or the fallback look when no skin files are at hand).
tessel::Theme ThemeOf(const tessel::SkinDefinition* skin) {
  return skin != nullptr ? skin->theme : tessel::fallbackTheme();
}

void SetIcons(HINSTANCE instance, HWND hwnd) {
  for (const auto& [which, metric] : {std::pair{ICON_BIG, SM_CXICON}, {ICON_SMALL, SM_CXSMICON}}) {
    const int side = GetSystemMetrics(metric);
    HANDLE icon = LoadImageW(instance, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON, side, side, 0);
    if (icon == nullptr) icon = LoadIconW(nullptr, IDI_APPLICATION);
    SendMessageW(hwnd, WM_SETICON, which, reinterpret_cast<LPARAM>(icon));
  }
}

// The title bar of the notices and the setup's dialogs: title, the program's small icon, and
// minimise and close (maximise hidden); close ends the dialog without a result.
void AddChrome(HINSTANCE instance, DialogWindow& dialog, HWND hwnd, const tessel::Theme& theme,
               const std::wstring& title, int width) {
  auto* bar = dialog.rootPanel().add<tessel::ChromeTitleBar>(
      L"installer-chrome", tessel::Rect{0, 0, width, kChromeHeight}, title, theme);
  bar->setStyleId(L"stayhold-chrome");
  bar->setAnchors(tessel::kAnchorLeft | tessel::kAnchorTop | tessel::kAnchorRight);
  bar->setShowMaximize(false);
  bar->setOnMinimize([hwnd](tessel::CommandEvent&) { ShowWindow(hwnd, SW_MINIMIZE); });
  bar->setOnClose([&dialog](tessel::CommandEvent&) { dialog.endDialog(tessel::kDialogDestroyed); });
  if (HICON icon =
          static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON,
                                        kChromeIconSize, kChromeIconSize, 0))) {
    bar->setIcon(tessel::imageFromIcon(icon));
    DestroyIcon(icon);
  }
}

// One notice: a dialog whose whole content is a designed popup under a title bar with a close
// button. `actions` receives the dialog so that its handlers can end it.
DialogResult RunNotice(HINSTANCE instance, const NoticeLook& look,
                       const std::function<std::vector<PopupAction>(DialogWindow&)>& actions) {
  const tessel::SkinDefinition* skin = FindAppSkinOrDefault(AppConfig().skin_id);
  const tessel::Theme theme = ThemeOf(skin);
  const tessel::StyleSheet sheet =
      skin != nullptr ? tessel::StyleSheet(*skin) : tessel::StyleSheet(theme);
  DialogWindow dialog;
  dialog.setWindowStyle(sheet.window());
  dialog.setTooltipStyle(sheet.tooltips.get(L"default"));
  tessel::Win32WindowPlatform native(dialog);
  tessel::NativeWindowOptions options;
  options.instance = instance;
  options.title = look.title;
  options.clientSize = look.size;
  options.style = WS_POPUP | WS_SYSMENU | WS_THICKFRAME;
  options.exStyle = 0;
  options.owner = look.owner;
  if (!tessel::createDialog(dialog, native, options)) return tessel::kNoDialogResult;
  HWND hwnd = native.hwnd();

  // Centred on the work area of the nearest monitor.
  tessel::Rect screen, work;
  tessel::monitorAreas(MonitorFromWindow(hwnd, MONITOR_DEFAULTTONEAREST), screen, work);
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  const tessel::Rect now = tessel::rectOf(frame);
  SetWindowPos(hwnd, nullptr, work.x + (work.width - now.width) / 2,
               work.y + (work.height - now.height) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  SetIcons(instance, hwnd);

  // The popup fills the client area below the title bar.
  const tessel::Rect body{0, kChromeHeight, look.size.width, look.size.height - kChromeHeight};
  auto* popup = dialog.rootPanel().add<tessel::DesignedPopup>(look.popupId, body, theme);
  popup->setStyleId(look.variant);
  popup->setAnchors(tessel::kAnchorLeft | tessel::kAnchorTop | tessel::kAnchorRight |
                    tessel::kAnchorBottom);
  popup->setDragEnabled(true);
  popup->show();
  popup->setTitle(look.title);
  popup->setMessage(look.message);
  popup->setIconGlyph(look.glyph);
  // The popup's close button acts like cancel.
  popup->onPopup([&dialog](tessel::PopupEvent& event) {
    if (event.kind != tessel::PopupEvent::kClose) return;
    event.handled = true;
    dialog.endDialog(tessel::kDialogDestroyed);
  });
  for (PopupAction& action : actions(dialog))
    popup->addAction(std::move(action));
  AddChrome(instance, dialog, hwnd, theme, look.title, look.size.width);
  tessel::applySkinTree(sheet, dialog.rootPanel());
  dialog.relayout();
  // Enter and Escape reach the popup without a click first.
  dialog.setFocusedControl(popup);
  return tessel::runDialog(dialog, native, look.owner);
}

PopupAction Action(std::wstring id, std::wstring text, bool primary, std::function<void()> run) {
  PopupAction action;
  action.value = id;
  action.id = std::move(id);
  action.text = std::move(text);
  action.primary = primary;
  action.handler = std::move(run);
  return action;
}

}  // namespace

void ShowInstallerNotice(InstanceHandle instance, const std::wstring& title,
                         const std::wstring& message, bool is_error) {
  NoticeLook look{title,
                  message,
                  is_error ? tessel::Size{760, 430} : tessel::Size{560, 238},
                  L"setup-notice",
                  is_error ? L"stayhold-error" : L"stayhold-notice",
                  is_error ? L"!" : L"i"};
  RunNotice(static_cast<HINSTANCE>(instance), look, [](DialogWindow& dialog) {
    return std::vector<PopupAction>{
        Action(L"ok", Localized(L"OK", L"OK"), true, [&dialog] { dialog.endDialog(1); })};
  });
}

bool ConfirmStayholdExit(InstanceHandle instance, WindowHandle owner) {
  const std::wstring title = Localized(L"Ukončit Stayhold", L"Exit Stayhold");
  const std::wstring text = Localized(
      L"Ukončit Stayhold? Ochrana před plánovaným restartem i ikona v oznamovací oblasti zmizí, "
      L"dokud aplikaci znovu nespustíte.",
      L"Exit Stayhold? Planned-restart protection and the tray icon stop until you launch the "
      L"app again.");
  bool confirmed = false;
  NoticeLook look{title,
                  text,
                  tessel::Size{560, 248},
                  L"stayhold-exit-confirm",
                  L"stayhold-notice",
                  L"!",
                  static_cast<HWND>(owner)};
  RunNotice(static_cast<HINSTANCE>(instance), look, [&confirmed](DialogWindow& dialog) {
    return std::vector<PopupAction>{
        Action(L"exit", Localized(L"Ukončit", L"Exit"), true,
               [&dialog, &confirmed] {
                 confirmed = true;
                 dialog.endDialog(1);
               }),
        Action(L"cancel", Localized(L"Zavřít", L"Close"), false,
               [&dialog] { dialog.endDialog(tessel::kDialogDestroyed); })};
  });
  return confirmed;
}

void ShowStayholdAboutNotice(InstanceHandle instance, WindowHandle owner) {
  NoticeLook look{Localized(L"O aplikaci Stayhold", L"About Stayhold"),
                  AboutText(),
                  tessel::Size{620, 306},
                  L"stayhold-about",
                  L"stayhold-notice",
                  L"i",
                  static_cast<HWND>(owner)};
  RunNotice(static_cast<HINSTANCE>(instance), look, [](DialogWindow& dialog) {
    return std::vector<PopupAction>{
        Action(L"open-logs", Localized(L"Otevřít protokoly", L"Open logs"), false,
               [] { OpenLogsFolder(); }),
        Action(L"close", Localized(L"Zavřít", L"Close"), true, [&dialog] { dialog.endDialog(1); })};
  });
}

void ShowStayholdHelpNotice(InstanceHandle instance, WindowHandle owner, const std::wstring& title,
                            const std::wstring& message) {
  NoticeLook look{title,
                  message,
                  tessel::Size{680, 330},
                  L"stayhold-help",
                  L"stayhold-notice",
                  L"?",
                  static_cast<HWND>(owner)};
  RunNotice(static_cast<HINSTANCE>(instance), look, [](DialogWindow& dialog) {
    return std::vector<PopupAction>{
        Action(L"open-skin-guide", Localized(L"Otevřít průvodce vzhledy", L"Open skin guide"),
               false, [] { OpenSkinGuide(); }),
        Action(L"open-logs", Localized(L"Otevřít protokoly", L"Open logs"), false,
               [] { OpenLogsFolder(); }),
        Action(L"close", Localized(L"Zavřít", L"Close"), true, [&dialog] { dialog.endDialog(1); })};
  });
}
