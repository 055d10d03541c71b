// The install folder as read from the real registry (Wine runs as administrator, so HKLM is
// writable here).
#include <windows.h>

#include <gtest/gtest.h>

#include "guard/install_folder.h"
#include "guard/paths.h"

namespace {

class InstallLocationTest : public ::testing::Test {
 protected:
  void SetUp() override { Clear(); }
  void TearDown() override { Clear(); }

  static void Clear() {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, kUninstallKey);
  }

  static void Write(const wchar_t* key, DWORD type, const void* data, DWORD size) {
    HKEY handle = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                              &handle, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(
        RegSetValueExW(handle, L"InstallLocation", 0, type, static_cast<const BYTE*>(data), size),
        ERROR_SUCCESS);
    RegCloseKey(handle);
  }

  static void WriteText(const wchar_t* key, const std::wstring& text, DWORD type = REG_SZ) {
    Write(key, type, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }
};

TEST_F(InstallLocationTest, DefaultWithoutKeys) {
  EXPECT_EQ(ResolveInstallFolder(), L"C:\\Program Files\\Stayhold");
}

TEST_F(InstallLocationTest, ProductKeyIsNormalized) {
  WriteText(kProductKey, L"D:/Apps/Stayhold/");
  EXPECT_EQ(ResolveInstallFolder(), L"D:\\Apps\\Stayhold");
}

TEST_F(InstallLocationTest, DwordValueIsIgnoredAndTheUninstallEntryServes) {
  const DWORD number = 42;
  Write(kProductKey, REG_DWORD, &number, sizeof(number));
  WriteText(kUninstallKey, L"E:\\Tools\\Stayhold\\");
  EXPECT_EQ(ResolveInstallFolder(), L"E:\\Tools\\Stayhold");
}

TEST_F(InstallLocationTest, EmptyValueDoesNotCount) {
  WriteText(kProductKey, L"");
  EXPECT_EQ(ResolveInstallFolder(), L"C:\\Program Files\\Stayhold");
}

TEST_F(InstallLocationTest, ExpandableValueIsNotExpanded) {
  WriteText(kProductKey, L"C:\\%STAYHOLD_NOT_EXPANDED%\\App", REG_EXPAND_SZ);
  EXPECT_EQ(ResolveInstallFolder(), L"C:\\%STAYHOLD_NOT_EXPANDED%\\App");
}

TEST_F(InstallLocationTest, OverlongValueDoesNotFitAndTheNextKeyServes) {
  const std::wstring long_path = L"C:\\" + std::wstring(400, L'x');
  WriteText(kProductKey, long_path);
  // The value does not fit the 260-character buffer; the query fails and the next key serves.
  WriteText(kUninstallKey, L"F:\\Fallback");
  EXPECT_EQ(ResolveInstallFolder(), L"F:\\Fallback");
}

TEST_F(InstallLocationTest, InstalledSkinsFollowTheRegistry) {
  WriteText(kProductKey, L"D:\\Apps\\Stayhold");
  EXPECT_EQ(InstalledSkinsDirectory(), L"D:\\Apps\\Stayhold\\skins");
}

}  // namespace
