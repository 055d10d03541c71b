// What the two executables carry: version information, the application manifest and the icon
// with all its sizes. Both are read as data files from the build tree.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::wstring BuildFile(const wchar_t* name) {
  // STAYHOLD_BUILD is the Linux path of the build tree; Wine maps / to Z:.
  wchar_t build[MAX_PATH] = {};
  if (!GetEnvironmentVariableW(L"STAYHOLD_BUILD", build, MAX_PATH)) return std::wstring();
  std::wstring path = std::wstring(L"Z:") + build + L"\\" + name;
  for (wchar_t& c : path) {
    if (c == L'/') c = L'\\';
  }
  return path;
}

std::wstring VersionString(const std::vector<BYTE>& info, const wchar_t* name) {
  wchar_t* value = nullptr;
  UINT length = 0;
  const std::wstring query = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
  if (!VerQueryValueW(info.data(), query.c_str(), reinterpret_cast<void**>(&value), &length)) {
    return std::wstring();
  }
  return std::wstring(value);
}

#pragma pack(push, 2)
struct IconDirectoryEntry {
  BYTE width, height, colors, reserved;
  WORD planes, bit_count;
  DWORD bytes;
  WORD id;
};
struct IconDirectory {
  WORD reserved, type, count;
  IconDirectoryEntry entries[1];
};
#pragma pack(pop)

class ExecutableTest : public ::testing::TestWithParam<const wchar_t*> {};

TEST_P(ExecutableTest, CarriesVersionInformation) {
  const std::wstring path = BuildFile(GetParam());
  ASSERT_FALSE(path.empty()) << "STAYHOLD_BUILD is not set";
  DWORD handle = 0;
  const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &handle);
  ASSERT_GT(size, 0u) << path;
  std::vector<BYTE> info(size);
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, size, info.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
  EXPECT_EQ(fixed->dwFileVersionMS, static_cast<DWORD>(MAKELONG(0, 1)));
  EXPECT_EQ(fixed->dwFileVersionLS, static_cast<DWORD>(MAKELONG(0, 112)));
  EXPECT_EQ(VersionString(info, L"ProductVersion"), L"1.0.112");
  EXPECT_EQ(VersionString(info, L"FileVersion"), L"1.0.112");
  EXPECT_EQ(VersionString(info, L"ProductName"), L"Stayhold");
  EXPECT_EQ(VersionString(info, L"CompanyName"), L"Marlowen");
  EXPECT_EQ(VersionString(info, L"OriginalFilename"), GetParam());
}

TEST_P(ExecutableTest, CarriesTheManifestAndTheIcon) {
  const std::wstring path = BuildFile(GetParam());
  HMODULE module = LoadLibraryExW(path.c_str(), nullptr,
                                  LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  ASSERT_NE(module, nullptr) << path;

  HRSRC manifest = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
  ASSERT_NE(manifest, nullptr);
  const char* text = static_cast<const char*>(LockResource(LoadResource(module, manifest)));
  const std::string xml(text, SizeofResource(module, manifest));
  EXPECT_NE(xml.find("level=\"asInvoker\""), std::string::npos);
  EXPECT_NE(xml.find("PerMonitorV2"), std::string::npos);
  EXPECT_NE(xml.find("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"), std::string::npos);

  HRSRC group = FindResourceW(module, MAKEINTRESOURCEW(101), MAKEINTRESOURCEW(14));
  ASSERT_NE(group, nullptr);
  const auto* icons = static_cast<const IconDirectory*>(LockResource(LoadResource(module, group)));
  ASSERT_EQ(icons->count, 6);
  std::vector<int> sizes;
  for (int i = 0; i < icons->count; ++i) {
    sizes.push_back(icons->entries[i].width == 0 ? 256 : icons->entries[i].width);
    EXPECT_EQ(icons->entries[i].bit_count, 32);
  }
  EXPECT_EQ(sizes, (std::vector<int>{16, 20, 24, 32, 48, 256}));
  for (int size : {16, 32, 256}) {
    HICON icon =
        static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(101), IMAGE_ICON, size, size, 0));
    EXPECT_NE(icon, nullptr) << size;
    if (icon) DestroyIcon(icon);
  }
  FreeLibrary(module);
}

INSTANTIATE_TEST_SUITE_P(BothPrograms, ExecutableTest,
                         ::testing::Values(L"Stayhold.exe", L"StayholdSetup.exe"));

}  // namespace
