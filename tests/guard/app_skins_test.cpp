#include "guard/app_skins.h"

#include <gtest/gtest.h>

#include "guard/install_folder.h"
#include "tests/support/fake_platform.h"

TEST(AppSkinFolders, SetupCacheThenInstallationThenBesideTheProgram) {
  Fake().install_locations[kProductKey] = L"D:\\Tools\\Stayhold\\";
  EXPECT_EQ(AppSkinFolders(L"C:\\cache"),
            (std::vector<std::wstring>{L"C:\\cache", L"D:\\Tools\\Stayhold\\skins",
                                       L"C:\\Apps\\Stayhold\\skins"}));
}
