#include "guard/app_skins.h"

#include <gtest/gtest.h>

#include "guard/install_folder.h"
#include "tests/support/fake_platform.h"

namespace {

TEST(AppSkinFolders, SetupCacheThenInstallationThenBesideTheProgram) {
  const struct {
    const char* what;
    const wchar_t* installed;  // the registered folder, or null
    const wchar_t* cache;
    std::vector<std::wstring> folders;
  } cases[] = {
      {"registered installation and a setup cache",
       L"D:\\Tools\\Stayhold\\",
       L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\setup-skin-cache",
       {L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\setup-skin-cache",
        L"D:\\Tools\\Stayhold\\skins", L"C:\\Apps\\Stayhold\\skins"}},
      {"no cache, installation in the default folder",
       nullptr,
       L"",
       {L"", L"C:\\Program Files\\Stayhold\\skins", L"C:\\Apps\\Stayhold\\skins"}},
  };
  for (const auto& c : cases) {
    ResetFakePlatform();
    if (c.installed) Fake().install_locations[kProductKey] = c.installed;
    EXPECT_EQ(AppSkinFolders(c.cache), c.folders) << c.what;
  }
}

}  // namespace
