// What Windows needs from the two executables at run time: a version block, the application
// manifest and the icon in the smallest and largest size, read through the loader's own APIs.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

class ExecutableTest : public ::testing::TestWithParam<const wchar_t*> {};

TEST_P(ExecutableTest, CarriesVersionManifestAndIcon) {
  // STAYHOLD_BUILD is the Linux path of the build tree; Wine maps / to Z:.
  wchar_t build[MAX_PATH] = {};
  ASSERT_TRUE(GetEnvironmentVariableW(L"STAYHOLD_BUILD", build, MAX_PATH));
  std::wstring path = std::wstring(L"Z:") + build + L"\\" + GetParam();
  std::replace(path.begin(), path.end(), L'/', L'\\');
  DWORD handle = 0;
  std::vector<BYTE> info(GetFileVersionInfoSizeW(path.c_str(), &handle));
  ASSERT_GT(info.size(), 0u) << path;
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
  void* value = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", &value, &length));
  EXPECT_EQ(static_cast<VS_FIXEDFILEINFO*>(value)->dwSignature, 0xFEEF04BDu);

  HMODULE module = LoadLibraryExW(path.c_str(), nullptr,
                                  LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  ASSERT_NE(module, nullptr) << path;
  HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));  // RT_MANIFEST
  ASSERT_NE(found, nullptr);
  const std::string xml(static_cast<const char*>(LockResource(LoadResource(module, found))),
                        SizeofResource(module, found));
  EXPECT_NE(xml.find("asInvoker"), std::string::npos);
  for (int side : {16, 256}) {
    HICON icon =
        static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(101), IMAGE_ICON, side, side, 0));
    EXPECT_NE(icon, nullptr) << side;
    if (icon) DestroyIcon(icon);
  }
  FreeLibrary(module);
}

INSTANTIATE_TEST_SUITE_P(BothPrograms, ExecutableTest,
                         ::testing::Values(L"Stayhold.exe", L"StayholdSetup.exe"));

}  // namespace
