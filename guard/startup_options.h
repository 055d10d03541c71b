// The options of both executables. They are found by case-sensitive substring search in the raw
// command line, so each also matches inside a longer word or a quoted path; only the
// --install-dir folder is read from the argument vector, case-insensitively.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct StartupOptions {
  uint32_t exit_after_ms = 0;  // 0: no self-exit limit
  bool settings = false;
  bool install = false;
  bool preserve_options = false;
  bool desktop = false;
  bool no_startup = false;
  bool restart_app = false;
  bool repair = false;
  bool uninstall = false;
  bool ensure_config = false;
};

// A null command line reads as an empty one.
StartupOptions ParseStartupOptions(const wchar_t* command_line);

// The value of --exit-after-ms= in the text, or 0 when absent, not a number or outside
// 1..600000.
uint32_t ParseExitAfterMs(const std::wstring& command_line);

// The folder after the first "--install-dir" among arguments 1..argc-2; empty when the next
// argument starts with "--" or there are fewer than three arguments.
std::wstring FindInstallDirArgument(const std::vector<std::wstring>& arguments);

// What the process does, in the order the checks run; the first that matches wins.
enum class StartupRole {
  Install,            // setup: --install (also matched by --install-dir)
  Repair,             // setup: --repair
  Uninstall,          // setup: --uninstall
  RefuseSetupAction,  // application: a setup option, exit code 4
  EnsureConfig,       // application: --ensure-config
  SetupDialog,        // setup without a self-exit limit
  Guard,
};

StartupRole ChooseStartupRole(const StartupOptions& options, bool setup_build);

// Exit codes of the process.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitInstallFailed = 4;
inline constexpr int kExitRepairFailed = 5;
