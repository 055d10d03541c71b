// One update check: fetch the manifest, read it, compare the version with this build's, log the
// outcome. The background check runs it on a worker and leaves the result in a one-deep slot
// for the user interface thread.
#pragma once

#include <optional>
#include <string>

#include "update/update_manifest.h"

struct UpdateCheckResult {
  bool manual = false;
  bool ok = false;
  bool update_available = false;
  UpdateManifest manifest;
  std::wstring error;  // English technical text; empty on success
};

// Platform seam: GET `url`, the body decoded from UTF-8; false with one of the fixed texts.
bool FetchUpdateManifest(const std::wstring& url, std::wstring& text, std::wstring& error);

// Where the manifest lives and the page for a manual download: build settings.
std::wstring UpdateManifestUrl();
std::wstring DownloadPageUrl();

UpdateCheckResult CheckForUpdate(bool manual);
UpdateCheckResult CheckForUpdateAt(const std::wstring& manifest_url, bool manual);

// The state shared between workers and the user interface thread, under one lock.
// True when a check may start (none is running); marks it running.
bool BeginUpdateCheck();
// Stores the result in the slot (a later one overwrites an unread one); `finished_check`
// clears the running mark.
void StorePendingUpdateResult(UpdateCheckResult result, bool finished_check);
std::optional<UpdateCheckResult> TakePendingUpdateResult();
bool UpdateCheckRunning();
