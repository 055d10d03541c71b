// The file-copy installation, used by a setup without an embedded package: this test program
// carries none, and finds Stayhold.exe beside itself (copied there by the build).
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "guard/install_folder.h"
#include "setup/registration.h"
#include "setup/setup_actions.h"

namespace {

namespace fs = std::filesystem;

std::wstring ReadString(const wchar_t* key, const wchar_t* name) {
  wchar_t value[1024] = {};
  DWORD size = sizeof(value);
  return RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, value, &size) ==
                 ERROR_SUCCESS
             ? value
             : L"<missing>";
}

fs::path KnownPath(const wchar_t* variable, const wchar_t* tail) {
  wchar_t base[MAX_PATH] = {};
  GetEnvironmentVariableW(variable, base, MAX_PATH);
  return fs::path(base) / tail;
}

TEST(FileCopySetup, InstallRepairAndUninstall) {
  const fs::path folder = L"C:\\CopyInstall";
  const fs::path startup =
      KnownPath(L"APPDATA", L"Microsoft\\Windows\\Start Menu\\Programs\\Startup\\Stayhold.lnk");
  const fs::path desktop = KnownPath(L"USERPROFILE", L"Desktop\\Stayhold.lnk");
  ASSERT_TRUE(RunInstall(true, true, folder.c_str()));
  EXPECT_TRUE(fs::is_regular_file(folder / L"Stayhold.exe"));
  EXPECT_TRUE(fs::exists(startup)) << startup;
  EXPECT_TRUE(fs::exists(desktop)) << desktop;

  EXPECT_EQ(ReadString(kUninstallKey, L"QuietUninstallString"),
            L"\"C:\\CopyInstall\\StayholdSetup.exe\" --uninstall --quiet");
  EXPECT_TRUE(IsInstalled());

  // A repair follows the given choices: the Startup shortcut goes, the desktop one stays.
  ASSERT_TRUE(RunRepair(false, true));
  EXPECT_FALSE(fs::exists(startup));
  EXPECT_TRUE(fs::exists(desktop));

  EXPECT_EQ(RunUninstall(), 0);
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_FALSE(fs::exists(desktop));
  EXPECT_FALSE(IsInstalled());
}

TEST(Registration, KilobytesRoundUpAndStopBelowTheLimit) {
  const std::pair<uint64_t, uint32_t> cases[] = {
      {0, 0}, {1024, 1}, {1025, 2}, {0xFFFFFFFFFFFFull, 0xFFFFFFFEu}};
  for (const auto& [bytes, kilobytes] : cases)
    EXPECT_EQ(KilobytesOf(bytes), kilobytes) << bytes;
}

}  // namespace
