// A console helper that the scenario tests run inside Wine. Wine cuts exit codes to 8 bits on
// the Linux side, and window lookups and messages need the Windows API, so this does both:
//   wintool run TIMEOUT_MS EXE [ARGS...]        prints "exit=N" (full 32 bits) or "timeout"
//   wintool find CLASS                          prints the window's facts; exit 1 when absent
//   wintool send CLASS MSG WPARAM LPARAM [MS]   SendMessageTimeoutW; prints "result=N"
//   wintool post CLASS MSG WPARAM LPARAM        PostMessageW
//   wintool wait-gone CLASS TIMEOUT_MS          exit 0 once no window of the class exists
//   wintool read-link FILE.lnk                   prints the shortcut's target, arguments, folder
//   wintool add-root-cert FILE.der               trusts a certificate for HTTPS (machine ROOT)
//   wintool window TITLE                         exit 0 when a top-level window can be created
//   wintool send-first CLASS MSG WPARAM LPARAM TIMEOUT_MS
//                                               waits for the window, sends at once; prints
//                                               "result=N" and "after_found_ms=N"
#include <windows.h>
#include <wincrypt.h>
#include <objbase.h>
#include <shobjidl.h>

#include <cstdio>
#include <cwchar>
#include <string>

#include "setup/quote_argument.h"

namespace {

unsigned long Number(const wchar_t* text) {
  return std::wcstoul(text, nullptr, 0);
}

int Run(int argc, wchar_t** argv) {
  if (argc < 4) return 2;
  const DWORD timeout = static_cast<DWORD>(Number(argv[2]));
  std::wstring command_line;
  for (int i = 3; i < argc; ++i) {
    if (i > 3) command_line += L' ';
    command_line += QuoteArgument(argv[i]);
  }
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  // Under load Wine sometimes refuses to start a program that an installer has just written,
  // with ERROR_INTERNAL_ERROR; a moment later the same start succeeds. Only that error is tried
  // again: whatever the program itself does is still checked by the caller.
  BOOL started = FALSE;
  for (int attempt = 0; attempt < 4 && !started; ++attempt) {
    if (attempt > 0) Sleep(500);
    started = CreateProcessW(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                             nullptr, &startup, &process);
    if (!started && GetLastError() != ERROR_INTERNAL_ERROR) break;
  }
  if (!started) {
    std::wprintf(L"start-failed=%lu\n", GetLastError());
    return 1;
  }
  CloseHandle(process.hThread);
  if (WaitForSingleObject(process.hProcess, timeout) == WAIT_TIMEOUT) {
    TerminateProcess(process.hProcess, 1);
    CloseHandle(process.hProcess);
    std::wprintf(L"timeout\n");
    return 1;
  }
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hProcess);
  std::wprintf(L"exit=%lu\n", code);
  return 0;
}

int Find(const wchar_t* window_class) {
  HWND window = FindWindowW(window_class, nullptr);
  if (!window) {
    std::wprintf(L"absent\n");
    return 1;
  }
  wchar_t title[256] = {};
  GetWindowTextW(window, title, 256);
  RECT rect = {};
  GetWindowRect(window, &rect);
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  const LONG_PTR ex_style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  const bool top_level = GetAncestor(window, GA_PARENT) == GetDesktopWindow();
  std::wprintf(
      L"title=%ls\nvisible=%d\ntop_level=%d\nowner=%d\nstyle=0x%08llx\n"
      L"ex_style=0x%08llx\nsize=%ldx%ld\n",
      title, IsWindowVisible(window) ? 1 : 0, top_level ? 1 : 0,
      GetWindow(window, GW_OWNER) ? 1 : 0, static_cast<unsigned long long>(style),
      static_cast<unsigned long long>(ex_style), rect.right - rect.left, rect.bottom - rect.top);
  return 0;
}

int Send(int argc, wchar_t** argv, bool post) {
  if (argc < 6) return 2;
  HWND window = FindWindowW(argv[2], nullptr);
  if (!window) {
    std::wprintf(L"absent\n");
    return 1;
  }
  const UINT message = static_cast<UINT>(Number(argv[3]));
  const WPARAM w_param = static_cast<WPARAM>(Number(argv[4]));
  const LPARAM l_param = static_cast<LPARAM>(Number(argv[5]));
  if (post) return PostMessageW(window, message, w_param, l_param) ? 0 : 1;
  const UINT timeout = argc > 6 ? static_cast<UINT>(Number(argv[6])) : 5000;
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, w_param, l_param, SMTO_ABORTIFHUNG, timeout, &result)) {
    std::wprintf(L"send-failed=%lu\n", GetLastError());
    return 1;
  }
  std::wprintf(L"result=%llu\n", static_cast<unsigned long long>(result));
  return 0;
}

int ReadLink(const wchar_t* path) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  IShellLinkW* link = nullptr;
  IPersistFile* file = nullptr;
  int result = 1;
  if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                 reinterpret_cast<void**>(&link))) &&
      SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file))) &&
      SUCCEEDED(file->Load(path, STGM_READ))) {
    wchar_t text[MAX_PATH] = {};
    link->GetPath(text, MAX_PATH, nullptr, SLGP_RAWPATH);
    std::wprintf(L"target=%ls\n", text);
    text[0] = 0;
    link->GetArguments(text, MAX_PATH);
    std::wprintf(L"arguments=%ls\n", text);
    text[0] = 0;
    link->GetWorkingDirectory(text, MAX_PATH);
    std::wprintf(L"folder=%ls\n", text);
    result = 0;
  }
  if (file) file->Release();
  if (link) link->Release();
  CoUninitialize();
  return result;
}

int AddRootCertificate(const wchar_t* path) {
  FILE* file = _wfopen(path, L"rb");
  if (!file) return 1;
  std::string der;
  char buffer[4096];
  size_t read;
  while ((read = std::fread(buffer, 1, sizeof(buffer), file)) > 0)
    der.append(buffer, read);
  std::fclose(file);
  const BOOL ok = CertAddEncodedCertificateToSystemStoreW(
      L"ROOT", reinterpret_cast<const BYTE*>(der.data()), static_cast<DWORD>(der.size()));
  std::wprintf(ok ? L"added\n" : L"failed=%lu\n", GetLastError());
  return ok ? 0 : 1;
}

// Sends as soon as the window exists, for what happens in its first moments.
int SendFirst(int argc, wchar_t** argv) {
  if (argc < 7) return 2;
  const ULONGLONG end = GetTickCount64() + Number(argv[6]);
  HWND window = nullptr;
  while (!(window = FindWindowW(argv[2], nullptr))) {
    if (GetTickCount64() > end) {
      std::wprintf(L"absent\n");
      return 1;
    }
    Sleep(1);
  }
  const ULONGLONG found = GetTickCount64();
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, static_cast<UINT>(Number(argv[3])),
                           static_cast<WPARAM>(Number(argv[4])),
                           static_cast<LPARAM>(Number(argv[5])), SMTO_ABORTIFHUNG, 5000, &result)) {
    std::wprintf(L"send-failed=%lu\n", GetLastError());
    return 1;
  }
  std::wprintf(L"result=%llu\nafter_found_ms=%llu\n", static_cast<unsigned long long>(result),
               GetTickCount64() - found);
  return 0;
}

int WaitGone(const wchar_t* window_class, DWORD timeout) {
  const ULONGLONG end = GetTickCount64() + timeout;
  while (FindWindowW(window_class, nullptr)) {
    if (GetTickCount64() > end) return 1;
    Sleep(50);
  }
  return 0;
}

// Creating a window needs the display driver and the desktop; the harness checks both this way
// before a suite runs, so a display that is not ready fails loudly instead of as test failures.
int ProbeWindow(const wchar_t* title) {
  HWND window = CreateWindowExW(0, L"STATIC", title, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
  if (!window) return 1;
  DestroyWindow(window);
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) return 2;
  const std::wstring verb = argv[1];
  int result = 2;
  if (verb == L"run")
    result = Run(argc, argv);
  else if (verb == L"find")
    result = Find(argv[2]);
  else if (verb == L"send")
    result = Send(argc, argv, false);
  else if (verb == L"post")
    result = Send(argc, argv, true);
  else if (verb == L"send-first")
    result = SendFirst(argc, argv);
  else if (verb == L"read-link")
    result = ReadLink(argv[2]);
  else if (verb == L"add-root-cert")
    result = AddRootCertificate(argv[2]);
  else if (verb == L"window")
    result = ProbeWindow(argv[2]);
  else if (verb == L"wait-gone" && argc > 3)
    result = WaitGone(argv[2], Number(argv[3]));
  std::fflush(stdout);
  return result;
}
