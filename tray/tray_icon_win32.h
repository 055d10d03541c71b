// The guard's notification-area icon on the guard's window: adding it, its tooltip, its
// notifications, and what a click on it does. The icon itself never changes with the state; the
// tooltip tells it.
#pragma once

#include <windows.h>
#include <shellapi.h>

#include <string>

// Shell_NotifyIconW, replaceable so that tests can see what the shell is asked to show.
using ShellNotifyIconFunction = BOOL(WINAPI*)(DWORD, PNOTIFYICONDATAW);
ShellNotifyIconFunction& TrayShellNotify();

enum class BalloonIcon : DWORD {
  Information = NIIF_INFO,
  Warning = NIIF_WARNING,
  Error = NIIF_ERROR
};

void AddTrayIcon();
void UpdateTrayTooltip();
void ShowTrayBalloon(const std::wstring& title, const std::wstring& text, BalloonIcon icon);
void RemoveTrayIcon();

// WM_TRAY_CALLBACK of the hidden window. A click that opens the settings posts the settings
// command to `window`.
void HandleTrayCallback(HWND window, LPARAM l_param);

// The tray menu; returns after the chosen command has run.
void ShowTrayMenu(HWND window);
