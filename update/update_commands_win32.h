// What the hidden window asks of the self-update: automatic and manual checks on a worker, the
// reception of a finished check, the result notice, and the install of a known update. The
// workers report by posting WM_UPDATE_* messages to the guard's window; the hub does the rest.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "update/update_check.h"
#include "update/update_install.h"

// False when `window` is null or a check is already running.
bool StartUpdateCheck(HWND window, bool manual);
void StartAutomaticUpdateCheck(HWND window);
void StartManualUpdateCheck(HWND window);
// WM_UPDATE_CHECK_DONE: the finished check's result unless another window took it already; a
// successful check keeps or clears the offered update by it, a failed one leaves it.
std::optional<UpdateCheckResult> ReceiveUpdateCheckResult();
void ShowStayholdUpdateResultNotice(HWND owner, const UpdateCheckResult& result);
void ShowStayholdAutoUpdateDialog(HWND owner, const UpdateManifest& manifest);
// WM_UPDATE_INSTALL_PROGRESS of the install worker.
void HandleUpdateInstallProgress(HWND window);

// The install worker's services on this platform; progress goes to `progress_window`.
class SystemUpdateInstallServices final : public UpdateInstallServices {
 public:
  SystemUpdateInstallServices(HWND progress_window, std::wstring manifest_url)
      : progress_window_(progress_window), manifest_url_(std::move(manifest_url)) {}
  UpdateCheckResult RefreshManifest() override;
  void PublishCheckResult(const UpdateCheckResult& result) override;
  std::wstring TempFolder() override;
  bool DownloadSetup(const std::wstring& url, const std::wstring& target,
                     const std::function<void(int)>& progress, std::wstring& error) override;
  bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error) override;
  bool LaunchSilentSetup(const std::wstring& setup_path, std::wstring& error) override;
  void NotifyProgress() override;

 private:
  HWND progress_window_;
  std::wstring manifest_url_;
};
