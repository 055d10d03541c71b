#include "setup/payload.h"

#include <gtest/gtest.h>

#include "setup/setup_skins.h"
#include "tests/support/fake_platform.h"

TEST(PayloadTable, CountingRowsThePackageAndTheSkins) {
  const PayloadRow table[] = {{3001, L"installer\\Stayhold.MSI"},  // the extension without case
                              {-4, L"skins\\ignored.json"},
                              {3002, L""},
                              {3003, L"skins/forward.json"},
                              {3004, L"Skins\\upper.JSON"},
                              {3005, L"other\\x.json"},
                              {3006, L"skins\\guide.txt"},
                              {3007, L"a.json"},
                              {0, nullptr}};
  const auto ids = [](const std::vector<PayloadRow>& rows) {
    std::vector<int> ids;
    for (const PayloadRow& row : rows)
      ids.push_back(row.resource_id);
    return ids;
  };
  EXPECT_EQ(ids(CountingPayloadRows(table)),
            (std::vector<int>{3001, 3003, 3004, 3005, 3006, 3007}));
  EXPECT_EQ(ids(SetupSkinRows(table)), (std::vector<int>{3003, 3004}));
  ASSERT_NE(FindPackageRow(table), nullptr);
  EXPECT_EQ(FindPackageRow(table)->resource_id, 3001);
  EXPECT_EQ(FindPackageRow(table + 1), nullptr);  // a setup without package
  EXPECT_TRUE(CountingPayloadRows(table + 8).empty());
  EXPECT_FALSE(HasEmbeddedPayload());  // the application carries none
}

TEST(PackageCachePath, VersionAndFileName) {
  EXPECT_EQ(PackageCachePath(L"C:\\D\\Stayhold", L"1.0.112", L"installer\\Stayhold.msi"),
            L"C:\\D\\Stayhold\\setup-msi-cache\\1.0.112-Stayhold.msi");
  EXPECT_EQ(PackageCachePath(L"C:\\D\\Stayhold", L"1.0.112", L"installer/x/"),
            L"C:\\D\\Stayhold\\setup-msi-cache\\1.0.112-Stayhold.msi");
  EXPECT_EQ(PayloadFileName(L"a/b\\c.json"), L"c.json");
}

TEST(SetupSkinCacheFolder, TheTemporaryFolderWithoutLocalAppData) {
  Fake().known_folders.erase(KnownFolder::LocalAppData);
  EXPECT_EQ(SetupSkinCacheFolder(),
            L"C:\\Users\\ada\\AppData\\Local\\Temp\\Stayhold-setup-skin-cache");
}
