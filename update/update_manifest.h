// What the update manifest says about the newest version, and the process-wide record of an
// update known to be available, shared between the update worker and the user interface under
// one lock.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct UpdateHistoryEntry {
  std::wstring version;
  std::wstring changes;
  std::wstring changes_cs;
  std::wstring changes_en;
};

struct UpdateManifest {
  std::wstring version;
  std::wstring release_url;
  std::wstring setup_url;
  std::wstring sha256;
  std::wstring changes;
  std::wstring changes_cs;
  std::wstring changes_en;
  std::vector<UpdateHistoryEntry> history;
};

void StoreAvailableUpdate(std::optional<UpdateManifest> manifest);
std::optional<UpdateManifest> GetAvailableUpdate();
