#include "guard/install_paths.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

TEST(ComputeInstallPaths, DerivesTheMembersFromTheNormalizedFolderAndKnownFolders) {
  InstallPaths paths;
  ASSERT_TRUE(ComputeInstallPaths(L"D:/Apps/Stayhold/", paths));
  EXPECT_EQ(paths.setup_exe, L"D:\\Apps\\Stayhold\\StayholdSetup.exe");
  EXPECT_EQ(paths.legacy_app_exe, L"C:\\Users\\ada\\AppData\\Local\\Quill\\Stayhold\\Stayhold.exe");
}

TEST(ComputeInstallPaths, FailsWithoutAFolderAKnownFolderOrOnOverflowAnywhere) {
  // 259 characters fit (with the terminating zero); 260 do not.
  const std::wstring fits = L"D:\\" + std::wstring(259 - 3 - 18, L'a');  // + "\StayholdSetup.exe"
  InstallPaths paths;
  EXPECT_TRUE(ComputeInstallPaths(fits, paths));
  EXPECT_EQ(paths.setup_exe.size(), 259u);
  EXPECT_FALSE(ComputeInstallPaths(fits + L"a", paths));
  EXPECT_FALSE(ComputeInstallPaths(L"  ", paths));
  Fake().known_folders[KnownFolder::LocalAppData] = L"C:\\" + std::wstring(240, L'l');
  EXPECT_FALSE(ComputeInstallPaths(L"C:\\Program Files\\Stayhold", paths));
  ResetFakePlatform();
  Fake().known_folders.erase(KnownFolder::CommonPrograms);
  EXPECT_FALSE(ComputeInstallPaths(L"C:\\Program Files\\Stayhold", paths));
}
