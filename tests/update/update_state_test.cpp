#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "update/update_manifest.h"

namespace {

TEST(AvailableUpdate, StoresCopiesAndClears) {
  StoreAvailableUpdate(std::nullopt);
  EXPECT_FALSE(GetAvailableUpdate().has_value());
  UpdateManifest manifest;
  manifest.version = L"1.0.200";
  StoreAvailableUpdate(manifest);
  manifest.version = L"changed after storing";
  ASSERT_TRUE(GetAvailableUpdate().has_value());
  EXPECT_EQ(GetAvailableUpdate()->version, L"1.0.200");
  StoreAvailableUpdate(std::nullopt);
  EXPECT_FALSE(GetAvailableUpdate().has_value());
}

TEST(AvailableUpdate, WriterAndReaderThreadsSeeWholeRecords) {
  std::vector<std::thread> threads;
  threads.emplace_back([] {
    for (int i = 0; i < 2000; ++i) {
      UpdateManifest manifest;
      manifest.version = std::wstring(40, i % 2 ? L'a' : L'b');
      manifest.sha256 = manifest.version;
      StoreAvailableUpdate(manifest);
    }
  });
  bool torn = false;
  threads.emplace_back([&torn] {
    for (int i = 0; i < 2000; ++i) {
      if (auto seen = GetAvailableUpdate()) torn = torn || seen->version != seen->sha256;
    }
  });
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_FALSE(torn);
  StoreAvailableUpdate(std::nullopt);
}

}  // namespace
