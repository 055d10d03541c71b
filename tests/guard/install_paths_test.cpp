#include "guard/install_paths.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

TEST(ComputeInstallPaths, DerivesEveryMember) {
  InstallPaths paths;
  ASSERT_TRUE(ComputeInstallPaths(L"D:/Apps/Stayhold/", paths));
  const std::wstring programs = L"C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs";
  EXPECT_EQ(paths.install_dir, L"D:\\Apps\\Stayhold");
  EXPECT_EQ(paths.app_exe, L"D:\\Apps\\Stayhold\\Stayhold.exe");
  EXPECT_EQ(paths.setup_exe, L"D:\\Apps\\Stayhold\\StayholdSetup.exe");
  EXPECT_EQ(paths.skins_dir, L"D:\\Apps\\Stayhold\\skins");
  EXPECT_EQ(paths.assets_dir, L"D:\\Apps\\Stayhold\\assets");
  EXPECT_EQ(paths.program_files, L"C:\\Program Files");
  EXPECT_EQ(paths.start_menu_dir, programs + L"\\Marlowen");
  EXPECT_EQ(paths.start_menu_subdir, programs + L"\\Marlowen\\Stayhold");
  EXPECT_EQ(paths.start_menu_shortcut, programs + L"\\Marlowen\\Stayhold.lnk");
  EXPECT_EQ(paths.desktop_shortcut, L"C:\\Users\\ada\\Desktop\\Stayhold.lnk");
  EXPECT_EQ(paths.legacy_menu_shortcut, programs + L"\\Stayhold\\Stayhold.lnk");
  EXPECT_EQ(paths.legacy_root_shortcut, programs + L"\\Stayhold.lnk");
  EXPECT_EQ(paths.legacy_quill_shortcut, programs + L"\\Quill\\Stayhold.lnk");
  EXPECT_EQ(paths.legacy_app_exe, L"C:\\Users\\ada\\AppData\\Local\\Quill\\Stayhold\\Stayhold.exe");
}

TEST(ComputeInstallPaths, OverflowAnywhereFailsTheWholeComputation) {
  // 259 characters fit (with the terminating zero); 260 do not.
  const std::wstring fits = L"D:\\" + std::wstring(259 - 3 - 18, L'a');  // + "\StayholdSetup.exe"
  InstallPaths paths;
  EXPECT_TRUE(ComputeInstallPaths(fits, paths));
  EXPECT_EQ(paths.setup_exe.size(), 259u);
  EXPECT_FALSE(ComputeInstallPaths(fits + L"a", paths));

  ResetFakePlatform();
  Fake().known_folders[KnownFolder::LocalAppData] = L"C:\\" + std::wstring(240, L'l');
  EXPECT_FALSE(ComputeInstallPaths(L"C:\\Program Files\\Stayhold", paths));
}

TEST(ComputeInstallPaths, FailsWithoutAKnownFolderOrFolder) {
  InstallPaths paths;
  EXPECT_FALSE(ComputeInstallPaths(L"  ", paths));
  Fake().known_folders.erase(KnownFolder::CommonPrograms);
  EXPECT_FALSE(ComputeInstallPaths(L"C:\\Program Files\\Stayhold", paths));
}

}  // namespace
