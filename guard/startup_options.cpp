#include "guard/startup_options.h"

#include <cwchar>

#include "base/wide_text.h"

namespace {

bool Contains(const std::wstring& text, const wchar_t* option) {
  return text.find(option) != std::wstring::npos;
}

}  // namespace

uint32_t ParseExitAfterMs(const std::wstring& command_line) {
  static constexpr wchar_t kOption[] = L"--exit-after-ms=";
  const size_t at = command_line.find(kOption);
  if (at == std::wstring::npos) return 0;
  const wchar_t* digits = command_line.c_str() + at + (sizeof(kOption) / sizeof(wchar_t) - 1);
  const long value = std::wcstol(digits, nullptr, 10);
  // One unsigned test covers 0, negatives and values above the limit.
  const uint32_t candidate = static_cast<uint32_t>(value);
  if (static_cast<long long>(candidate) != static_cast<long long>(value)) return 0;
  return candidate - 1u < 600000u ? candidate : 0;
}

StartupOptions ParseStartupOptions(const wchar_t* command_line) {
  const std::wstring text = command_line ? command_line : L"";
  StartupOptions options;
  options.exit_after_ms = ParseExitAfterMs(text);
  options.settings = Contains(text, L"--settings");
  // A substring search on purpose: "--install-dir" also selects install.
  options.install = Contains(text, L"--install");
  options.preserve_options = Contains(text, L"--preserve-options");
  options.desktop = Contains(text, L"--desktop");
  options.no_startup = Contains(text, L"--no-startup");
  options.restart_app = Contains(text, L"--restart-app");
  options.repair = Contains(text, L"--repair");
  options.uninstall = Contains(text, L"--uninstall");
  options.ensure_config = Contains(text, L"--ensure-config");
  return options;
}

std::wstring FindInstallDirArgument(const std::vector<std::wstring>& arguments) {
  if (arguments.size() < 3) return std::wstring();
  for (size_t i = 1; i + 1 < arguments.size(); ++i) {
    if (!EqualsIgnoringCase(arguments[i], L"--install-dir")) continue;
    const std::wstring& next = arguments[i + 1];
    if (next.compare(0, 2, L"--") == 0) return std::wstring();
    return next;
  }
  return std::wstring();
}

StartupRole ChooseStartupRole(const StartupOptions& options, bool setup_build) {
  if (setup_build) {
    if (options.install) return StartupRole::Install;
    if (options.repair) return StartupRole::Repair;
    if (options.uninstall) return StartupRole::Uninstall;
    if (options.exit_after_ms == 0) return StartupRole::SetupDialog;
    return StartupRole::Guard;
  }
  if (options.install || options.uninstall || options.repair) {
    return StartupRole::RefuseSetupAction;
  }
  if (options.ensure_config) return StartupRole::EnsureConfig;
  return StartupRole::Guard;
}
