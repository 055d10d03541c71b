#include <gtest/gtest.h>

#include <thread>

#include "update/update_manifest.h"

TEST(AvailableUpdate, StoresCopiesAndClears) {
  UpdateManifest manifest;
  manifest.version = L"1.0.200";
  StoreAvailableUpdate(manifest);
  manifest.version = L"changed after storing";
  EXPECT_EQ(GetAvailableUpdate().value().version, L"1.0.200");
  StoreAvailableUpdate(std::nullopt);
  EXPECT_FALSE(GetAvailableUpdate().has_value());
}

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
