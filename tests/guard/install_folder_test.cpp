#include "guard/install_folder.h"

#include <gtest/gtest.h>

#include "tests/support/fake_platform.h"

TEST(NormalizeInstallFolder, OneCanonicalForm) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"C:/Apps/Stayhold/", L"C:\\Apps\\Stayhold"},
      {L"  C:/  ", L"C:\\"},
      {L"C:\\Apps\\.\\x\\..\\Stayhold\\\\", L"C:\\Apps\\Stayhold"},
      {L"relative\\dir", L"C:\\Work\\relative\\dir"},
      {L"\\\\nas\\apps\\Stayhold\\", L"\\\\nas\\apps\\Stayhold"},
      {L" \t ", L""},
      {L" odd?\\x\\..\\y\\ ", L"odd?\\y"}};  // no absolute path: on with the trimmed text
  for (const auto& [in, out] : cases)
    EXPECT_EQ(NormalizeInstallFolder(in), out) << in;
}

TEST(ResolveInstallFolder, ProductKeyThenUninstallEntryThenDefault) {
  const std::tuple<const char*, const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
      {"product key wins", L"D:\\Apps\\Stayhold\\", L"E:\\Other", L"D:\\Apps\\Stayhold"},
      {"uninstall entry when the product key has none", nullptr, L"E:/Other/", L"E:\\Other"},
      {"default without either", nullptr, nullptr, L"C:\\Program Files\\Stayhold"},
      {"blank value normalizes to nothing: default, not the second key", L"   ", L"E:\\Other",
       L"C:\\Program Files\\Stayhold"}};
  for (const auto& [what, product, uninstall, folder] : cases) {
    Fake().install_locations.clear();
    if (product) Fake().install_locations[kProductKey] = product;
    if (uninstall) Fake().install_locations[kUninstallKey] = uninstall;
    EXPECT_EQ(ResolveInstallFolder(), folder) << what;
  }
}
