// The numbers the running guard answers to: its private window messages, the tray menu's
// command ids (a second instance and a click on the tray icon post kCmdSettings too), and the
// hidden window's timers.
#pragma once

#include <cstdint>

inline constexpr unsigned kWmApp = 0x8000;  // WM_APP
inline constexpr unsigned kWmTrayCallback = kWmApp + 1;
inline constexpr unsigned kWmUpdateCheckDone = kWmApp + 20;
inline constexpr unsigned kWmUpdateInstallProgress = kWmApp + 21;
inline constexpr unsigned kWmUpdateStateChanged = kWmApp + 22;
inline constexpr unsigned kWmGuardStateChanged = kWmApp + 23;

enum GuardCommand : unsigned {
  kCmdToggleGuard = 1001,
  kCmdOpenWindowsUpdate = 1002,
  kCmdToggleStartup = 1003,
  kCmdToggleDesktop = 1004,
  kCmdExit = 1005,
  kCmdSettings = 1006,
  kCmdHelp = 1007,
  kCmdLogs = 1008,
  kCmdAbout = 1009,
  kCmdCheckUpdates = 1010,
  kCmdInstallUpdate = 1011,
};

enum GuardTimer : unsigned {
  kTimerStart = 1,        // 500 ms after creation, once: protection starts
  kTimerSelfExit = 2,     // the --exit-after-ms limit, once
  kTimerRefresh = 3,      // every 30 s
  kTimerUpdateCheck = 4,  // every hour
};

inline constexpr unsigned kStartDelayMs = 500;
inline constexpr unsigned kRefreshPeriodMs = 30000;
inline constexpr unsigned kUpdateCheckPeriodMs = 3600000;
