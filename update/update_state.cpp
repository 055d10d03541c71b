#include <mutex>

#include "update/update_manifest.h"

namespace {

std::mutex& UpdateStateLock() {
  static std::mutex lock;
  return lock;
}

std::optional<UpdateManifest>& AvailableUpdate() {
  static std::optional<UpdateManifest> manifest;
  return manifest;
}

}  // namespace

void StoreAvailableUpdate(std::optional<UpdateManifest> manifest) {
  std::lock_guard<std::mutex> hold(UpdateStateLock());
  AvailableUpdate() = std::move(manifest);
}

std::optional<UpdateManifest> GetAvailableUpdate() {
  std::lock_guard<std::mutex> hold(UpdateStateLock());
  return AvailableUpdate();
}
