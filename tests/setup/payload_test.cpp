#include "setup/payload.h"

#include <gtest/gtest.h>

namespace {

TEST(PayloadTable, CountingRowsAndThePackage) {
  const PayloadRow table[] = {{3001, L"installer\\Stayhold.MSI"},
                              {-4, L"skins\\ignored.json"},
                              {3002, L""},
                              {3003, L"skins/forward.json"},
                              {0, nullptr}};
  const std::vector<PayloadRow> rows = CountingPayloadRows(table);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].resource_id, 3003);
  const PayloadRow* package = FindPackageRow(table);
  ASSERT_NE(package, nullptr);
  EXPECT_EQ(package->resource_id, 3001);  // the extension compares without case

  const PayloadRow skins_only[] = {{3002, L"skins\\a.json"}, {0, nullptr}};
  EXPECT_EQ(FindPackageRow(skins_only), nullptr);  // a setup without package
  const PayloadRow empty[] = {{0, nullptr}};
  EXPECT_TRUE(CountingPayloadRows(empty).empty());
}

TEST(PayloadTable, TheApplicationCarriesNoPayload) {
  EXPECT_FALSE(HasEmbeddedPayload());
}

TEST(PackageCachePath, VersionAndFileName) {
  EXPECT_EQ(PackageCachePath(L"C:\\D\\Stayhold", L"1.0.112", L"installer\\Stayhold.msi"),
            L"C:\\D\\Stayhold\\setup-msi-cache\\1.0.112-Stayhold.msi");
  EXPECT_EQ(PackageCachePath(L"C:\\D\\Stayhold", L"1.0.112", L"installer/x/"),
            L"C:\\D\\Stayhold\\setup-msi-cache\\1.0.112-Stayhold.msi");
  EXPECT_EQ(PayloadFileName(L"a/b\\c.json"), L"c.json");
  EXPECT_EQ(PayloadFileName(L"plain.msi"), L"plain.msi");
}

}  // namespace

#include "setup/setup_skins.h"
#include "tests/support/fake_platform.h"

namespace {

TEST(SetupSkinRows, JsonFilesInASkinsFolderOnly) {
  const PayloadRow table[] = {{3001, L"installer\\Stayhold.msi"},
                              {3002, L"skins\\00-tessel-default-skins.json"},
                              {3003, L"Skins/upper.JSON"},
                              {3004, L"other\\x.json"},
                              {3005, L"skins\\guide.txt"},
                              {3006, L"a.json"},
                              {0, nullptr}};
  const std::vector<PayloadRow> rows = SetupSkinRows(table);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].resource_id, 3002);
  EXPECT_EQ(rows[1].resource_id, 3003);
}

TEST(SetupSkinCacheFolder, LocalAppDataElseTemporaryFolder) {
  EXPECT_EQ(SetupSkinCacheFolder(), L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\setup-skin-cache");
  Fake().known_folders.erase(KnownFolder::LocalAppData);
  EXPECT_EQ(SetupSkinCacheFolder(),
            L"C:\\Users\\ada\\AppData\\Local\\Temp\\Stayhold-setup-skin-cache");
}

}  // namespace
