#include <gtest/gtest.h>

#include <thread>

#include "update/update_manifest.h"

// Storing and clearing are seen by the hidden window's Wine test; here only the locking.
TEST(AvailableUpdate, WriterAndReaderThreadsSeeWholeRecords) {
  std::thread writer([] {
    for (int i = 0; i < 2000; ++i) {
      UpdateManifest manifest;
      manifest.version = manifest.sha256 = std::wstring(40, i % 2 ? L'a' : L'b');
      StoreAvailableUpdate(manifest);
    }
  });
  bool torn = false;
  for (int i = 0; i < 2000; ++i) {
    if (auto seen = GetAvailableUpdate()) torn = torn || seen->version != seen->sha256;
  }
  writer.join();
  EXPECT_FALSE(torn);
  StoreAvailableUpdate(std::nullopt);
}
