// The install folder as read from the real registry (Wine runs as administrator, so HKLM is
// writable here).
#include <windows.h>

#include <gtest/gtest.h>

#include "guard/install_folder.h"
#include "guard/paths.h"

namespace {

void Clear() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kUninstallKey);
}

// Writes InstallLocation as `type`: text, or the number 42 for REG_DWORD.
void Write(const wchar_t* key, DWORD type, const std::wstring& text) {
  const DWORD number = 42;
  const bool dword = type == REG_DWORD;
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, L"InstallLocation", type,
                            dword ? static_cast<const void*>(&number) : text.c_str(),
                            dword ? sizeof(number) : static_cast<DWORD>((text.size() + 1) * 2)),
            ERROR_SUCCESS);
}

TEST(ResolveInstallFolder, ReadsTheRealRegistry) {
  const std::wstring overlong = L"C:\\" + std::wstring(400, L'x');
  const struct {
    const char* what;
    DWORD type;
    const wchar_t *product, *uninstall, *folder;
  } cases[] = {
      {"a number is ignored, the uninstall entry serves", REG_DWORD, L"", L"E:\\Tools\\",
       L"E:\\Tools"},
      {"an expandable value is not expanded", REG_EXPAND_SZ, L"C:\\%STAYHOLD_NOT_EXPANDED%\\App",
       nullptr, L"C:\\%STAYHOLD_NOT_EXPANDED%\\App"},
      // The value does not fit the 260-character buffer; the query fails and the next key serves.
      {"an overlong value", REG_SZ, overlong.c_str(), L"F:\\Fallback", L"F:\\Fallback"}};
  for (const auto& c : cases) {
    Clear();
    if (c.product) Write(kProductKey, c.type, c.product);
    if (c.uninstall) Write(kUninstallKey, REG_SZ, c.uninstall);
    EXPECT_EQ(ResolveInstallFolder(), c.folder) << c.what;
  }
  Clear();
}

}  // namespace
