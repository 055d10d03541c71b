// A console helper the scenarios run inside Wine, which cuts exit codes to 8 bits on the Linux
// side; window lookups and messages need the Windows API. Verbs:
//   run MS EXE [ARGS]: "exit=N" (32 bits) or "timeout"   find CLASS: the window's facts
//   send CLASS MSG W L [WAIT_MS]: "result=N", "after_found_ms=N"    post CLASS MSG W L [WAIT_MS]
//   read-link FILE.lnk; add-root-cert FILE.der (machine ROOT); window TITLE (can one be made)
#include <windows.h>
#include <wincrypt.h>
#include <objbase.h>
#include <shobjidl.h>

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <iterator>
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
  for (int i = 3; i < argc; ++i)
    command_line += (i > 3 ? L" " : L"") + QuoteArgument(argv[i]);
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  // Under load Wine at times refuses to start a program an installer has just written, with
  // ERROR_INTERNAL_ERROR, and a moment later starts it; only that error is tried again.
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
  DWORD code = 0;
  const bool finished = WaitForSingleObject(process.hProcess, timeout) != WAIT_TIMEOUT;
  if (finished)
    GetExitCodeProcess(process.hProcess, &code);
  else
    TerminateProcess(process.hProcess, 1);
  CloseHandle(process.hProcess);
  std::wprintf(finished ? L"exit=%lu\n" : L"timeout\n", code);
  return finished ? 0 : 1;
}

int Find(const wchar_t* window_class) {
  HWND window = FindWindowW(window_class, nullptr);
  if (!window) return 1;
  wchar_t title[256] = {};
  GetWindowTextW(window, title, 256);
  RECT rect = {};
  GetWindowRect(window, &rect);
  std::wprintf(
      L"title=%ls\nvisible=%d\ntop_level=%d\nowner=%d\nstyle=0x%08llx\n"
      L"ex_style=0x%08llx\nsize=%ldx%ld\n",
      title, IsWindowVisible(window) ? 1 : 0,
      GetAncestor(window, GA_PARENT) == GetDesktopWindow() ? 1 : 0,
      GetWindow(window, GW_OWNER) ? 1 : 0,
      static_cast<unsigned long long>(GetWindowLongPtrW(window, GWL_STYLE)),
      static_cast<unsigned long long>(GetWindowLongPtrW(window, GWL_EXSTYLE)),
      rect.right - rect.left, rect.bottom - rect.top);
  return 0;
}

// Waits up to WAIT_MS for the window, for what happens in its first moments.
int Send(int argc, wchar_t** argv, bool post) {
  if (argc < 6) return 2;
  const ULONGLONG end = GetTickCount64() + (argc > 6 ? Number(argv[6]) : 0);
  while (!FindWindowW(argv[2], nullptr) && GetTickCount64() <= end)
    Sleep(1);
  HWND window = FindWindowW(argv[2], nullptr);
  if (!window) return 1;
  const ULONGLONG found = GetTickCount64();
  const UINT message = static_cast<UINT>(Number(argv[3]));
  const WPARAM w_param = static_cast<WPARAM>(Number(argv[4]));
  const LPARAM l_param = static_cast<LPARAM>(Number(argv[5]));
  if (post) return PostMessageW(window, message, w_param, l_param) ? 0 : 1;
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, w_param, l_param, SMTO_ABORTIFHUNG, 5000, &result))
    return 1;
  std::wprintf(L"result=%llu\nafter_found_ms=%llu\n", static_cast<unsigned long long>(result),
               GetTickCount64() - found);
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
    wchar_t target[MAX_PATH] = {}, arguments[MAX_PATH] = {}, folder[MAX_PATH] = {};
    link->GetPath(target, MAX_PATH, nullptr, SLGP_RAWPATH);
    link->GetArguments(arguments, MAX_PATH);
    link->GetWorkingDirectory(folder, MAX_PATH);
    std::wprintf(L"target=%ls\narguments=%ls\nfolder=%ls\n", target, arguments, folder);
    result = 0;
  }
  if (file) file->Release();
  if (link) link->Release();
  CoUninitialize();
  return result;
}

int AddRootCertificate(const wchar_t* path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  const std::string der((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  const BOOL ok = CertAddEncodedCertificateToSystemStoreW(
      L"ROOT", reinterpret_cast<const BYTE*>(der.data()), static_cast<DWORD>(der.size()));
  std::wprintf(ok ? L"added\n" : L"failed=%lu\n", GetLastError());
  return ok ? 0 : 1;
}

// Creating a window needs the display driver and the desktop: the harness's readiness check.
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
  if (verb == L"run") return Run(argc, argv);
  if (verb == L"find") return Find(argv[2]);
  if (verb == L"send" || verb == L"post") return Send(argc, argv, verb == L"post");
  if (verb == L"read-link") return ReadLink(argv[2]);
  if (verb == L"add-root-cert") return AddRootCertificate(argv[2]);
  if (verb == L"window") return ProbeWindow(argv[2]);
  return 2;
}
