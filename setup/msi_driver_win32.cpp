#include "setup/msi_driver_win32.h"

#include <windows.h>
#include <msi.h>
#include <tlhelp32.h>

#include <cstdio>

#include "base/wide_text.h"
#include "guard/install_folder.h"
#include "guard/install_paths.h"
#include "guard/log.h"
#include "guard/paths.h"
#include "guard/update_policy.h"
#include "setup/payload.h"
#include "setup/quote_argument.h"
#include "setup/setup_actions.h"
#include "setup/setup_failure.h"

namespace {

std::string ReadBytes(const std::wstring& path) {
  std::string bytes;
  FILE* file = _wfopen(path.c_str(), L"rb");
  if (!file) return bytes;
  char buffer[65536];
  size_t read;
  while ((read = std::fread(buffer, 1, sizeof(buffer), file)) > 0)
    bytes.append(buffer, read);
  std::fclose(file);
  return bytes;
}

BOOL CALLBACK CloseTopLevelWindow(HWND window, LPARAM l_param) {
  auto* state = reinterpret_cast<std::pair<DWORD, bool>*>(l_param);
  DWORD owner_process = 0;
  GetWindowThreadProcessId(window, &owner_process);
  if (owner_process == state->first && !GetWindow(window, GW_OWNER)) {
    PostMessageW(window, WM_CLOSE, 0, 0);
    state->second = true;
  }
  return TRUE;
}

}  // namespace

bool RunProcessWithTimeout(const std::wstring& command_line, unsigned long& exit_code,
                           unsigned long timeout_ms) {
  std::wstring writable = command_line;
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_HIDE;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                      nullptr, &startup, &process)) {
    exit_code = GetLastError();
    return false;
  }
  CloseHandle(process.hThread);
  bool ok = true;
  if (WaitForSingleObject(process.hProcess, timeout_ms) == WAIT_TIMEOUT) {
    TerminateProcess(process.hProcess, 408);
    exit_code = 408;
    ok = false;
  } else {
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    exit_code = code;
  }
  CloseHandle(process.hProcess);
  return ok;
}

std::wstring ReadMsiLogExcerpt(const std::wstring& log_path) {
  return MsiLogExcerpt(ReadBytes(log_path));
}

bool RunMsiexec(const std::wstring& phase, const std::wstring& arguments,
                unsigned long& exit_code) {
  const std::wstring data_root = DataDirectory();
  CreateDirectoryW((data_root + L"\\logs").c_str(), nullptr);
  const std::wstring log_path =
      MsiLogPath(data_root, phase, GetCurrentProcessId(), GetTickCount64());
  const std::wstring command_line =
      L"msiexec.exe " + arguments + L" /L*V " + QuoteArgument(log_path);
  AppendLog(L"msiexec launch: " + command_line);
  const bool ran = RunProcessWithTimeout(command_line, exit_code, 600000);
  AppendLog(L"msiexec exit=" + DecimalText(exit_code));
  // 3010 asks for a restart; /norestart is given and nothing follows from it.
  if (ran && (exit_code == 0 || exit_code == 3010)) return true;
  RecordMsiFailure(phase, exit_code, log_path, ReadBytes(log_path));
  return false;
}

std::vector<std::wstring> FindRelatedProducts() {
  std::vector<std::wstring> products;
  for (DWORD index = 0;; ++index) {
    wchar_t product[39] = {};
    if (MsiEnumRelatedProductsW(kUpgradeCode, 0, index, product) != ERROR_SUCCESS) break;
    if (product[0] == L'\0') break;
    products.push_back(product);
  }
  return products;
}

bool RemoveExistingProducts() {
  const std::vector<std::wstring> products = FindRelatedProducts();
  if (products.empty()) return true;
  AppendLog(L"removing existing MSI products before install: " + DecimalText(products.size()));
  bool all = true;
  for (const std::wstring& product : products) {
    unsigned long code = 0;
    all = RunMsiexec(L"remove-existing", L"/x " + QuoteArgument(product) + L" /qn /norestart",
                     code) &&
          all;
  }
  return all;
}

bool InstallPackage(const std::wstring& phase, bool start_with_windows, bool desktop_shortcut,
                    const std::wstring& install_dir) {
  std::wstring package;
  if (!PrepareEmbeddedPackage(package)) {
    AppendLog(L"embedded MSI extraction failed");
    return false;
  }
  ForceCloseRunningGuard();
  if (!RemoveExistingProducts()) {
    AppendLog(L"existing MSI product removal failed before " + phase);
    return false;
  }
  std::wstring folder =
      NormalizeInstallFolder(install_dir.empty() ? ResolveInstallFolder() : install_dir);
  if (folder.empty()) folder = DefaultInstallFolder();
  const std::wstring arguments =
      L"/i " + QuoteArgument(package) + L" /qn /norestart INSTALLFOLDER=" + QuoteArgument(folder) +
      (start_with_windows ? L" STARTWITHWINDOWS=1" : L" STARTWITHWINDOWS=0") +
      (desktop_shortcut ? L" DESKTOPSHORTCUT=1" : L" DESKTOPSHORTCUT=0");
  unsigned long code = 0;
  if (!RunMsiexec(phase, arguments, code)) return false;
  // The same message serves a repair through the package too.
  if (!WriteUpdatePolicyStep(phase, false)) return false;
  InstallPaths paths;
  if (ComputeInstallPaths(folder, paths)) RemoveLegacyInstallItems(paths);
  return true;
}

bool WriteUpdatePolicyStep(const std::wstring& phase, bool repair_wording) {
  if (ApplyWindowsUpdatePolicy()) return true;
  if (repair_wording) {
    ReportSetupFailure(phase + L"-windows-update-policy",
                       L"Oprava obnovila aplikaci, ale nemohla zapsat zásady Windows Update. "
                       L"Spusťte instalaci znovu jako správce a opravte instalaci.",
                       L"Repair restored the app, but could not write Windows Update policy. Run "
                       L"setup again as administrator and repair the install.");
  } else {
    ReportSetupFailure(phase + L"-windows-update-policy",
                       L"Instalace aplikaci nainstalovala, ale nemohla zapsat zásady Windows "
                       L"Update. Spusťte instalaci znovu jako správce a opravte instalaci.",
                       L"Setup installed the app, but could not write Windows Update policy. Run "
                       L"setup again as administrator and repair the install.");
  }
  return false;
}

bool UninstallPackages() {
  const std::vector<std::wstring> products = FindRelatedProducts();
  ForceCloseRunningGuard();
  if (products.empty()) return false;
  bool all = true;
  for (const std::wstring& product : products) {
    unsigned long code = 0;
    all =
        RunMsiexec(L"uninstall", L"/x " + QuoteArgument(product) + L" /qn /norestart", code) && all;
  }
  return all;
}

void ForceCloseRunningGuard() {
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (snapshot == INVALID_HANDLE_VALUE) return;
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot, &entry); more;
       more = Process32NextW(snapshot, &entry)) {
    if (!EqualsIgnoringCase(entry.szExeFile, L"Stayhold.exe") ||
        entry.th32ProcessID == GetCurrentProcessId()) {
      continue;
    }
    const DWORD pid = entry.th32ProcessID;
    HANDLE waitable = OpenProcess(SYNCHRONIZE, FALSE, pid);
    std::pair<DWORD, bool> state{pid, false};
    EnumWindows(&CloseTopLevelWindow, reinterpret_cast<LPARAM>(&state));
    if (state.second && waitable && WaitForSingleObject(waitable, 5000) == WAIT_OBJECT_0) {
      CloseHandle(waitable);
      continue;
    }
    if (waitable) CloseHandle(waitable);
    HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, pid);
    if (!process) {
      AppendLog(L"force terminate open failed pid=" + DecimalText(pid));
      continue;
    }
    if (TerminateProcess(process, 0)) {
      AppendLog(L"force terminated guard process pid=" + DecimalText(pid));
      WaitForSingleObject(process, 1500);
    } else {
      AppendLog(L"force terminate failed pid=" + DecimalText(pid));
    }
    CloseHandle(process);
  }
  CloseHandle(snapshot);
}
