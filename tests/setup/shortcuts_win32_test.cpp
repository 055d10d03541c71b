// Shortcuts written by the real shell link objects, loaded back and read field by field.
#include <windows.h>
#include <objbase.h>
#include <propkey.h>
#include <propvarutil.h>
#include <shobjidl.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "setup/shortcuts.h"

namespace {

struct LoadedLink {
  std::wstring path, arguments, working_folder, description, app_id;
};

bool Load(const std::wstring& link, LoadedLink& out) {
  IShellLinkW* shell_link = nullptr;
  IPersistFile* file = nullptr;
  IPropertyStore* store = nullptr;
  bool ok =
      SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                 reinterpret_cast<void**>(&shell_link))) &&
      SUCCEEDED(shell_link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file))) &&
      SUCCEEDED(file->Load(link.c_str(), STGM_READ));
  wchar_t text[MAX_PATH] = {};
  if (ok && SUCCEEDED(shell_link->GetPath(text, MAX_PATH, nullptr, SLGP_RAWPATH))) out.path = text;
  if (ok && SUCCEEDED(shell_link->GetArguments(text, MAX_PATH))) out.arguments = text;
  if (ok && SUCCEEDED(shell_link->GetWorkingDirectory(text, MAX_PATH))) out.working_folder = text;
  if (ok && SUCCEEDED(shell_link->GetDescription(text, MAX_PATH))) out.description = text;
  if (ok &&
      SUCCEEDED(shell_link->QueryInterface(IID_IPropertyStore, reinterpret_cast<void**>(&store)))) {
    PROPVARIANT value;
    PropVariantInit(&value);
    if (SUCCEEDED(store->GetValue(PKEY_AppUserModel_ID, &value)) && value.vt == VT_LPWSTR) {
      out.app_id = value.pwszVal;
    }
    PropVariantClear(&value);
    store->Release();
  }
  if (file) file->Release();
  if (shell_link) shell_link->Release();
  return ok;
}

TEST(CreateShortcut, WritesEveryFieldThatLoadsBack) {
  ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
  wchar_t temp[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temp);
  const std::wstring link = std::wstring(temp) + L"stayhold_test.lnk";
  DeleteFileW(link.c_str());
  EXPECT_EQ(CreateShortcut(link, L"C:\\Apps\\Stayhold\\Stayhold.exe", L"C:\\Apps\\Stayhold",
                           L"Opens Stayhold settings.", L"--settings", kAppUserModelIdApp),
            0);
  LoadedLink loaded;
  ASSERT_TRUE(Load(link, loaded));
  EXPECT_EQ(loaded.path, L"C:\\Apps\\Stayhold\\Stayhold.exe");
  EXPECT_EQ(loaded.arguments, L"--settings");
  EXPECT_EQ(loaded.working_folder, L"C:\\Apps\\Stayhold");
  EXPECT_EQ(loaded.description, L"Opens Stayhold settings.");
  // Wine accepts the AppUserModelID (the calls above succeeded) but does not keep it in the
  // .lnk file, so it can only be read back on Windows itself.
  if (!GetProcAddress(GetModuleHandleW(L"ntdll"), "wine_get_version")) {
    EXPECT_EQ(loaded.app_id, L"Marlowen.Stayhold.App");
  }
  DeleteFileW(link.c_str());
  CoUninitialize();
}

TEST(SetDesktopShortcutEnabled, CreatesAndRemovesAndToleratesAMissingFile) {
  EXPECT_TRUE(SetDesktopShortcutEnabled(false));  // nothing there: still a success
  ASSERT_TRUE(SetDesktopShortcutEnabled(true));
  wchar_t profile[MAX_PATH] = {};
  GetEnvironmentVariableW(L"USERPROFILE", profile, MAX_PATH);
  const std::filesystem::path link = std::filesystem::path(profile) / L"Desktop" / L"Stayhold.lnk";
  EXPECT_TRUE(std::filesystem::exists(link));
  EXPECT_TRUE(SetDesktopShortcutEnabled(false));
  EXPECT_FALSE(std::filesystem::exists(link));
}

}  // namespace
