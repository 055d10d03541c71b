// The self-update's install worker: refresh the manifest, download the setup, check its SHA-256
// and start it elevated and silent, reporting each step through a state the dialog reads.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "update/update_check.h"

struct UpdateInstallState {
  std::mutex mutex;
  int progress = 0;  // 0..100, clamped on every write
  bool finished = false;
  bool succeeded = false;
  bool close_app = false;
  std::wstring status;
  std::wstring detail;
};

// What the worker needs of the platform and of the running application.
class UpdateInstallServices {
 public:
  virtual ~UpdateInstallServices() = default;
  virtual UpdateCheckResult RefreshManifest() = 0;
  // Hands the refreshed result to the hidden window like a finished check.
  virtual void PublishCheckResult(const UpdateCheckResult& result) = 0;
  virtual std::wstring TempFolder() = 0;
  virtual bool DownloadSetup(const std::wstring& url, const std::wstring& target,
                             const std::function<void(int)>& progress, std::wstring& error) = 0;
  virtual bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error) = 0;
  virtual bool LaunchSilentSetup(const std::wstring& setup_path, std::wstring& error) = 0;
  // Tells the dialog that the state changed (outside the state's lock).
  virtual void NotifyProgress() = 0;
};

void SetUpdateProgress(UpdateInstallState& state, UpdateInstallServices& services, int percent,
                       const std::wstring& status);
void FinishUpdate(UpdateInstallState& state, UpdateInstallServices& services, bool succeeded,
                  bool close_app, const std::wstring& status, const std::wstring& detail);

void RunStayholdAutoUpdate(UpdateInstallServices& services,
                           const std::shared_ptr<UpdateInstallState>& state,
                           UpdateManifest manifest);

// The download's share of the progress: 10 at the start to 80 at the announced length.
int DownloadPercent(uint32_t bytes_so_far, uint64_t content_length);

// "--install --quiet --preserve-options --restart-app --settings" and the folder, quoted.
std::wstring SilentSetupParameters(const std::wstring& install_folder);

// "StayholdSetup-<version>.exe" in the temporary folder; the version as it stands.
std::wstring DownloadedSetupPath(const std::wstring& temp_folder, const std::wstring& version);
