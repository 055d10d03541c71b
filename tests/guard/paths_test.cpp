#include "guard/paths.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

const std::wstring kData = L"C:\\Users\\ada\\AppData\\Local\\Stayhold";
const std::wstring kBeside = L"C:\\Apps\\Stayhold\\skins";
const std::wstring kGuide = L"\\HOW_TO_CREATE_CUSTOM_SKIN.txt";

TEST(DataPaths, LiveUnderLocalAppDataElseInTheTemporaryFolder) {
  // Any failed known folder or an overflowing path sends the data to the temporary folder.
  const std::wstring temp = L"C:\\Users\\ada\\AppData\\Local\\Temp\\Stayhold";
  Fake().known_folders.erase(KnownFolder::Desktop);
  EXPECT_EQ(DataDirectory(), temp);
  ResetFakePlatform();
  Fake().known_folders[KnownFolder::CommonPrograms] = L"C:\\" + std::wstring(240, L'p');
  EXPECT_EQ(DataDirectory(), temp);
}

TEST(ExecutablePaths, BesideTheRunningFileOrEmpty) {
  EXPECT_EQ(AssetsDirectory(), L"C:\\Apps\\Stayhold\\assets");
  Fake().module = {L"", 0};
  EXPECT_EQ(SkinGuidePath(), L"");
  Fake().install_locations[L"Software\\Marlowen\\Stayhold"] = L"D:\\Apps\\Stayhold\\";
  EXPECT_EQ(InstalledSkinGuidePath(), L"D:\\Apps\\Stayhold\\skins" + kGuide);
}

TEST(OpenLogsFolder, CreatesThenOpens) {
  OpenLogsFolder();
  ASSERT_EQ(Fake().created_directories, std::vector<std::wstring>{kData + L"\\logs"});
  EXPECT_EQ(Fake().opened, std::vector<std::wstring>{kData + L"\\logs"});
}

TEST(OpenSkinGuide, PrefersTheGuideBesideTheExecutable) {
  const std::wstring installed = L"C:\\Program Files\\Stayhold\\skins";
  const auto check = [](const char* what, const std::vector<std::wstring>& files,
                        const std::vector<std::wstring>& directories, const std::wstring& opened,
                        bool creates) {
    ResetFakePlatform();
    Fake().files.insert(files.begin(), files.end());
    Fake().directories.insert(directories.begin(), directories.end());
    OpenSkinGuide();
    EXPECT_EQ(Fake().opened, std::vector<std::wstring>{opened}) << what;
    EXPECT_EQ(!Fake().created_directories.empty(), creates) << what;
  };
  check("guide beside the executable", {kBeside + kGuide, installed + kGuide}, {}, kBeside + kGuide,
        false);
  check("installed guide", {installed + kGuide}, {}, installed + kGuide, false);
  check("skin folder beside the executable", {}, {kBeside}, kBeside, true);
  check("installed skin folder, created", {}, {}, installed, true);
}

TEST(ShortcutPresence, FilesOnlyAndFalseWhenPathsFail) {
  EXPECT_FALSE(IsDesktopShortcutPresent());
  Fake().files.insert(L"C:\\Users\\ada\\Desktop\\Stayhold.lnk");
  EXPECT_TRUE(IsDesktopShortcutPresent());
  Fake().files.insert(Fake().known_folders[KnownFolder::Startup] + L"\\Stayhold.lnk");
  Fake().known_folders.erase(KnownFolder::Startup);
  EXPECT_FALSE(IsDesktopShortcutPresent() || IsStartupShortcutPresent());
}
