// What the two executables carry: version information, the application manifest and the icon
// with all its sizes. Both are read as data files from the build tree.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

std::wstring BuildFile(const wchar_t* name) {
  // STAYHOLD_BUILD is the Linux path of the build tree; Wine maps / to Z:.
  wchar_t build[MAX_PATH] = {};
  if (!GetEnvironmentVariableW(L"STAYHOLD_BUILD", build, MAX_PATH)) return std::wstring();
  std::wstring path = std::wstring(L"Z:") + build + L"\\" + name;
  std::replace(path.begin(), path.end(), L'/', L'\\');
  return path;
}

#pragma pack(push, 2)
struct IconDirectory {
  WORD reserved, type, count;
  struct {
    BYTE width, height, colors, reserved;
    WORD planes, bit_count;
    DWORD bytes;
    WORD id;
  } entries[6];
};
#pragma pack(pop)

class ExecutableTest : public ::testing::TestWithParam<const wchar_t*> {};

TEST_P(ExecutableTest, CarriesVersionInformationTheManifestAndTheIcon) {
  const std::wstring path = BuildFile(GetParam());
  ASSERT_FALSE(path.empty()) << "STAYHOLD_BUILD is not set";
  DWORD handle = 0;
  std::vector<BYTE> info(GetFileVersionInfoSizeW(path.c_str(), &handle));
  ASSERT_GT(info.size(), 0u) << path;
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
  void* value = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", &value, &length));
  EXPECT_EQ(static_cast<VS_FIXEDFILEINFO*>(value)->dwFileVersionLS, DWORD{MAKELONG(0, 112)});
  ASSERT_TRUE(VerQueryValueW(info.data(), L"\\StringFileInfo\\040904B0\\OriginalFilename", &value,
                             &length));
  EXPECT_STREQ(static_cast<const wchar_t*>(value), GetParam());

  HMODULE module = LoadLibraryExW(path.c_str(), nullptr,
                                  LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  ASSERT_NE(module, nullptr) << path;
  HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));  // RT_MANIFEST
  ASSERT_NE(found, nullptr);
  const std::string xml(static_cast<const char*>(LockResource(LoadResource(module, found))),
                        SizeofResource(module, found));
  for (const char* part : {"level=\"asInvoker\"", "PerMonitorV2"})
    EXPECT_NE(xml.find(part), std::string::npos) << part;
  found = FindResourceW(module, MAKEINTRESOURCEW(101), MAKEINTRESOURCEW(14));  // RT_GROUP_ICON
  ASSERT_NE(found, nullptr);
  const auto* icons = static_cast<const IconDirectory*>(LockResource(LoadResource(module, found)));
  ASSERT_EQ(icons->count, 6);
  std::vector<int> sizes;
  for (const auto& entry : icons->entries) {
    sizes.push_back(entry.width == 0 ? 256 : entry.width);
    EXPECT_EQ(entry.bit_count, 32);
  }
  EXPECT_EQ(sizes, (std::vector<int>{16, 20, 24, 32, 48, 256}));
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
