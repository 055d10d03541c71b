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
