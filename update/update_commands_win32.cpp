#include "update/update_commands_win32.h"

#include <process.h>

#include "base/file_system.h"
#include "guard/guard_messages.h"
#include "guard/guard_state.h"
#include "guard/log.h"
#include "guard/version.h"
#include "i18n/localized.h"
#include "update/manifest_reader.h"
#include "update/update_fetch_win32.h"

namespace {

struct CheckJob {
  HWND window;
  bool manual;
};

unsigned __stdcall CheckWorker(void* parameter) {
  std::unique_ptr<CheckJob> job(static_cast<CheckJob*>(parameter));
  StorePendingUpdateResult(CheckForUpdate(job->manual), true);
  PostMessageW(job->window, kWmUpdateCheckDone, 0, 0);
  return 0;
}

struct InstallJob {
  std::shared_ptr<UpdateInstallState> state;
  UpdateManifest manifest;
  HWND window;
};

// The install currently followed by the hidden window (the progress dialog's stand-in).
std::shared_ptr<UpdateInstallState>& FollowedInstall() {
  static std::shared_ptr<UpdateInstallState> state;
  return state;
}

unsigned __stdcall InstallWorker(void* parameter) {
  std::unique_ptr<InstallJob> job(static_cast<InstallJob*>(parameter));
  SystemUpdateInstallServices services(job->window, UpdateManifestUrl());
  RunStayholdAutoUpdate(services, job->state, std::move(job->manifest));
  return 0;
}

void StartThread(unsigned(__stdcall* body)(void*), void* parameter) {
  const uintptr_t thread = _beginthreadex(nullptr, 0, body, parameter, 0, nullptr);
  if (thread == 0) std::terminate();  // the runtime cannot go on without its workers
  CloseHandle(reinterpret_cast<HANDLE>(thread));
}

int Notice(HWND owner, const std::wstring& title, const std::wstring& text, UINT style) {
  return MessageBoxW(owner, text.c_str(), title.c_str(), style | MB_SETFOREGROUND);
}

}  // namespace

bool StartUpdateCheck(HWND window, bool manual) {
  if (!window || !BeginUpdateCheck()) return false;
  AppendLog(manual ? L"manual update check started" : L"automatic update check started");
  StartThread(&CheckWorker, new CheckJob{window, manual});
  return true;
}

void StartAutomaticUpdateCheck(HWND window) {
  StartUpdateCheck(window, false);
}

void StartManualUpdateCheck(HWND window) {
  if (StartUpdateCheck(window, true)) return;
  UpdateCheckResult busy;
  busy.manual = true;
  busy.error =
      Localized(L"Kontrola aktualizací už probíhá.", L"An update check is already running.");
  ShowStayholdUpdateResultNotice(window, busy);
}

std::optional<UpdateCheckResult> ReceiveUpdateCheckResult() {
  std::optional<UpdateCheckResult> result = TakePendingUpdateResult();
  if (result && result->ok) {
    // A failed check keeps what was offered, so an update stays offered while offline.
    StoreAvailableUpdate(result->update_available ? std::optional<UpdateManifest>(result->manifest)
                                                  : std::nullopt);
  }
  return result;
}

// System message boxes stand in for the skinned update dialogs; texts and flow are final.
void ShowStayholdUpdateResultNotice(HWND owner, const UpdateCheckResult& result) {
  if (!result.manual) return;  // automatic checks never speak
  if (!result.ok) {
    std::wstring text =
        Localized(L"Manifest aktualizací se nepodařilo načíst z veřejného repozitáře ke stažení.",
                  L"The update manifest could not be loaded from the public download repository.");
    if (!result.error.empty()) text += L"\n\n" + result.error;
    Notice(owner, Localized(L"Kontrola aktualizací selhala", L"Update check failed"), text,
           MB_OK | MB_ICONWARNING);
    return;
  }
  if (!result.update_available) {
    Notice(owner, Localized(L"Aplikace je aktuální", L"The app is up to date"),
           Localized(L"Nainstalovaná verze odpovídá veřejnému manifestu aktualizací.",
                     L"The installed version matches the public update manifest.") +
               L"\n" + Localized(L"Verze:", L"Version:") + L" " + kStayholdVersion,
           MB_OK | MB_ICONINFORMATION);
    return;
  }
  const UpdateManifest& manifest = result.manifest;
  std::wstring text = Localized(L"Současná verze:", L"Current version:") + L" " + kStayholdVersion +
                      L"\n" + Localized(L"Nová verze:", L"New version:") + L" " + manifest.version;
  if (!manifest.sha256.empty()) text += L"\nSHA-256: " + manifest.sha256;
  text += L"\n" + Localized(
                      L"Aplikace stáhne instalaci, ověří SHA-256, tiše ji spustí a po "
                      L"dokončení se znovu otevře.",
                      L"The app will download the setup, verify SHA-256, run it silently, "
                      L"and reopen after completion.");
  std::wstring notes = BuildChangeNotesSinceInstalled(manifest);
  if (notes.empty()) {
    notes = Localized(L"Manifest neobsahuje poznámky ke změnám.",
                      L"The manifest does not contain change notes.");
  }
  text += L"\n\n" +
          Localized(L"Změny od nainstalované verze", L"Changes since the installed version") +
          L"\n" + notes;
  if (Notice(owner, Localized(L"Je k dispozici nová verze", L"A new version is available"), text,
             MB_OKCANCEL | MB_ICONINFORMATION) == IDOK) {
    ShowStayholdAutoUpdateDialog(owner, manifest);
  }
}

void ShowStayholdAutoUpdateDialog(HWND, const UpdateManifest& manifest) {
  // The hidden window follows the worker in place of the progress dialog.
  FollowedInstall() = std::make_shared<UpdateInstallState>();
  StartThread(&InstallWorker, new InstallJob{FollowedInstall(), manifest, GuardWindow()});
}

void HandleUpdateInstallProgress(HWND window) {
  const std::shared_ptr<UpdateInstallState> state = FollowedInstall();
  if (!state) return;
  bool finished, succeeded, close_app;
  std::wstring status, detail;
  {
    std::lock_guard<std::mutex> hold(state->mutex);
    finished = state->finished;
    succeeded = state->succeeded;
    close_app = state->close_app;
    status = state->status;
    detail = state->detail;
  }
  if (!finished) return;
  FollowedInstall().reset();
  if (succeeded && close_app) {
    // The setup now runs; it ends any guard still there and brings the new copy back.
    PostMessageW(window, WM_CLOSE, 0, 0);
    return;
  }
  Notice(window, Localized(L"Aktualizace Stayhold", L"Stayhold Update"),
         detail.empty() ? status : status + L"\n" + detail,
         MB_OK | (succeeded ? MB_ICONINFORMATION : MB_ICONWARNING));
}

UpdateCheckResult SystemUpdateInstallServices::RefreshManifest() {
  return CheckForUpdateAt(manifest_url_, false);
}

void SystemUpdateInstallServices::PublishCheckResult(const UpdateCheckResult& result) {
  StorePendingUpdateResult(result, false);
  if (HWND window = GuardWindow()) PostMessageW(window, kWmUpdateCheckDone, 0, 0);
}

std::wstring SystemUpdateInstallServices::TempFolder() {
  return ::TempFolder();
}

bool SystemUpdateInstallServices::DownloadSetup(const std::wstring& url, const std::wstring& target,
                                                const std::function<void(int)>& progress,
                                                std::wstring& error) {
  return DownloadSetupFile(url, target, progress, error);
}

bool SystemUpdateInstallServices::HashFileSha256(const std::wstring& path, std::wstring& hex,
                                                 std::wstring& error) {
  return ::HashFileSha256(path, hex, error);
}

bool SystemUpdateInstallServices::LaunchSilentSetup(const std::wstring& setup_path,
                                                    std::wstring& error) {
  return ::LaunchSilentSetup(setup_path, error);
}

void SystemUpdateInstallServices::NotifyProgress() {
  if (progress_window_) PostMessageW(progress_window_, kWmUpdateInstallProgress, 0, 0);
}
