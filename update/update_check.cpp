#include "update/update_check.h"

#include <mutex>

#include "guard/log.h"
#include "guard/version.h"
#include "update/manifest_reader.h"
#include "update/update_urls.h"
#include "update/version_compare.h"

std::wstring UpdateManifestUrl() {
  return kUpdateManifestUrl;
}
std::wstring DownloadPageUrl() {
  return kDownloadPageUrl;
}

UpdateCheckResult CheckForUpdateAt(const std::wstring& manifest_url, bool manual) {
  UpdateCheckResult result;
  result.manual = manual;
  std::wstring text;
  if (!FetchUpdateManifest(manifest_url, text, result.error)) {
    AppendLog(L"update check failed: " + result.error);
    return result;
  }
  result.manifest = ParseUpdateManifest(text, DownloadPageUrl());
  if (result.manifest.version.empty()) {
    result.error = L"Update manifest does not contain a version.";
    AppendLog(L"update check failed: missing version");
    return result;
  }
  result.ok = true;
  result.update_available = CompareVersions(result.manifest.version, kStayholdVersion) > 0;
  AppendLog(std::wstring(L"update check ok: current=") + kStayholdVersion + L" latest=" +
            result.manifest.version + (result.update_available ? L" available" : L" current"));
  return result;
}

UpdateCheckResult CheckForUpdate(bool manual) {
  return CheckForUpdateAt(UpdateManifestUrl(), manual);
}

namespace {

struct CheckState {
  std::mutex lock;
  bool running = false;
  std::optional<UpdateCheckResult> pending;
};

CheckState& State() {
  static CheckState state;
  return state;
}

}  // namespace

bool BeginUpdateCheck() {
  std::lock_guard<std::mutex> hold(State().lock);
  if (State().running) return false;
  State().running = true;
  return true;
}

void StorePendingUpdateResult(UpdateCheckResult result, bool finished_check) {
  std::lock_guard<std::mutex> hold(State().lock);
  State().pending = std::move(result);
  if (finished_check) State().running = false;
}

std::optional<UpdateCheckResult> TakePendingUpdateResult() {
  std::lock_guard<std::mutex> hold(State().lock);
  std::optional<UpdateCheckResult> result = std::move(State().pending);
  State().pending.reset();
  return result;
}

bool UpdateCheckRunning() {
  std::lock_guard<std::mutex> hold(State().lock);
  return State().running;
}
