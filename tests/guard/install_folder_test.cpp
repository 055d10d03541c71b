#include "guard/install_folder.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

namespace {

TEST(NormalizeInstallFolder, OneCanonicalForm) {
  const struct {
    const wchar_t* in;
    const wchar_t* out;
  } cases[] = {
      {L"C:/Apps/Stayhold/", L"C:\\Apps\\Stayhold"},
      {L"  C:\\  ", L"C:\\"},
      {L"C:/", L"C:\\"},
      {L"C:\\\\..\\..", L"C:\\"},
      {L"C:\\Apps\\Stayhold\\\\\\", L"C:\\Apps\\Stayhold"},
      {L"C:\\Apps\\.\\x\\..\\Stayhold", L"C:\\Apps\\Stayhold"},
      {L"D:\\Tools/Stay hold/", L"D:\\Tools\\Stay hold"},
      {L"relative\\dir", L"C:\\Work\\relative\\dir"},
      {L"\\rooted", L"C:\\rooted"},
      {L"\\\\nas\\apps\\Stayhold\\", L"\\\\nas\\apps\\Stayhold"},
      {L"", L""},
      {L" \t ", L""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(NormalizeInstallFolder(c.in), c.out) << c.in;
}

TEST(NormalizeInstallFolder, FailedAbsolutePathGoesOnWithTheTrimmedText) {
  EXPECT_EQ(NormalizeInstallFolder(L" odd?\\x\\..\\y\\ "), L"odd?\\y");
}

TEST(ResolveInstallFolder, ProductKeyThenUninstallEntryThenDefault) {
  const struct {
    const char* what;
    const wchar_t* product;
    const wchar_t* uninstall;
    const wchar_t* folder;
  } cases[] = {
      {"product key wins", L"D:\\Apps\\Stayhold\\", L"E:\\Other", L"D:\\Apps\\Stayhold"},
      {"uninstall entry when the product key has none", nullptr, L"E:/Other/", L"E:\\Other"},
      {"default without either", nullptr, nullptr, L"C:\\Program Files\\Stayhold"},
      {"blank value normalizes to nothing: default, not the second key", L"   ", L"E:\\Other",
       L"C:\\Program Files\\Stayhold"},
  };
  for (const auto& c : cases) {
    Fake().install_locations.clear();
    if (c.product) Fake().install_locations[kProductKey] = c.product;
    if (c.uninstall) Fake().install_locations[kUninstallKey] = c.uninstall;
    EXPECT_EQ(ResolveInstallFolder(), c.folder) << c.what;
  }
}

}  // namespace
