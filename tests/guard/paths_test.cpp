#include "guard/paths.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

TEST(DataPaths, LiveUnderLocalAppData) {
  EXPECT_EQ(DataDirectory(), L"C:\\Users\\ada\\AppData\\Local\\Stayhold");
  EXPECT_EQ(ConfigFilePath(), L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\config.ini");
  EXPECT_EQ(LogDirectory(), L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\logs");
  EXPECT_EQ(LogFilePath(), L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\logs\\stayhold.log");
}

TEST(DataPaths, FallBackToTheTemporaryFolderWhenKnownFoldersFail) {
  const struct {
    const char* what;
    KnownFolder missing;
  } cases[] = {
      {"no local app data", KnownFolder::LocalAppData},
      {"any other known folder fails the whole computation", KnownFolder::Desktop},
  };
  for (const auto& c : cases) {
    ResetFakePlatform();
    Fake().known_folders.erase(c.missing);
    EXPECT_EQ(DataDirectory(), L"C:\\Users\\ada\\AppData\\Local\\Temp\\Stayhold") << c.what;
  }
}

TEST(DataPaths, FallBackWhenAPathOverflows) {
  Fake().known_folders[KnownFolder::CommonPrograms] = L"C:\\" + std::wstring(240, L'p');
  EXPECT_EQ(DataDirectory(), L"C:\\Users\\ada\\AppData\\Local\\Temp\\Stayhold");
}

TEST(ExecutablePaths, BesideTheRunningFile) {
  EXPECT_EQ(SkinsDirectory(), L"C:\\Apps\\Stayhold\\skins");
  EXPECT_EQ(AssetsDirectory(), L"C:\\Apps\\Stayhold\\assets");
  EXPECT_EQ(SkinGuidePath(), L"C:\\Apps\\Stayhold\\skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt");
}

TEST(ExecutablePaths, EmptyWithoutAModulePath) {
  Fake().module = {L"", 0};
  EXPECT_EQ(SkinsDirectory(), L"");
  EXPECT_EQ(AssetsDirectory(), L"");
  EXPECT_EQ(SkinGuidePath(), L"");
}

TEST(InstalledPaths, FollowTheRegisteredFolder) {
  Fake().install_locations[L"Software\\Marlowen\\Stayhold"] = L"D:\\Apps\\Stayhold\\";
  EXPECT_EQ(InstalledSkinsDirectory(), L"D:\\Apps\\Stayhold\\skins");
  EXPECT_EQ(InstalledSkinGuidePath(), L"D:\\Apps\\Stayhold\\skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt");
}

TEST(OpenLogsFolder, CreatesThenOpens) {
  OpenLogsFolder();
  const std::wstring logs = L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\logs";
  ASSERT_EQ(Fake().created_directories, std::vector<std::wstring>{logs});
  EXPECT_EQ(Fake().opened, std::vector<std::wstring>{logs});
}

TEST(OpenSkinGuide, PrefersTheGuideBesideTheExecutable) {
  const std::wstring beside = L"C:\\Apps\\Stayhold\\skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt";
  const std::wstring installed =
      L"C:\\Program Files\\Stayhold\\skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt";
  const struct {
    const char* what;
    std::vector<std::wstring> files;
    std::vector<std::wstring> directories;
    std::wstring opened;
    bool creates;
  } cases[] = {
      {"guide beside the executable", {beside, installed}, {}, beside, false},
      {"installed guide", {installed}, {}, installed, false},
      {"skin folder beside the executable",
       {},
       {L"C:\\Apps\\Stayhold\\skins"},
       L"C:\\Apps\\Stayhold\\skins",
       true},
      {"installed skin folder, created", {}, {}, L"C:\\Program Files\\Stayhold\\skins", true},
  };
  for (const auto& c : cases) {
    ResetFakePlatform();
    Fake().files.insert(c.files.begin(), c.files.end());
    Fake().directories.insert(c.directories.begin(), c.directories.end());
    OpenSkinGuide();
    EXPECT_EQ(Fake().opened, std::vector<std::wstring>{c.opened}) << c.what;
    EXPECT_EQ(!Fake().created_directories.empty(), c.creates) << c.what;
  }
}

TEST(ShortcutPresence, FilesOnlyAndFalseWhenPathsFail) {
  const std::wstring desktop = L"C:\\Users\\ada\\Desktop\\Stayhold.lnk";
  EXPECT_FALSE(IsDesktopShortcutPresent());
  Fake().files.insert(desktop);
  EXPECT_TRUE(IsDesktopShortcutPresent());
  EXPECT_FALSE(IsStartupShortcutPresent());
  Fake().files.insert(
      L"C:\\Users\\ada\\AppData\\Roaming\\Microsoft\\Windows\\Start "
      L"Menu\\Programs\\Startup\\Stayhold.lnk");
  EXPECT_TRUE(IsStartupShortcutPresent());
  Fake().known_folders.erase(KnownFolder::Startup);
  EXPECT_FALSE(IsDesktopShortcutPresent());
  EXPECT_FALSE(IsStartupShortcutPresent());
}

}  // namespace
