#include "update/version_compare.h"

#include <gtest/gtest.h>

TEST(CompareVersions, NumbersSeparatorsPaddingAndWrapping) {
  const std::tuple<const wchar_t*, const wchar_t*, int> cases[] = {
      {L"1.0", L"1.0.0", 0},
      {L"1.0.10", L"1.0.9", 1},
      {L"v2", L"1.9.9", 1},
      {L"1.0.112-beta", L"1.0.112", 0},
      {L"1.2.0-rc1", L"1.2.0", 1},  // no notion of pre-release
      {L"1-2_3", L"1.2.3", 0},      // every non-digit separates
      {L"4294967297", L"1", 0},     // wraps at 32 bits
      {L"2147483648", L"1", -1},    // into the negative half as signed
      {L"3000000000", L"2000000000", -1}};
  for (const auto& [a, b, order] : cases) {
    EXPECT_EQ(CompareVersions(a, b), order) << a << " vs " << b;
    EXPECT_EQ(CompareVersions(b, a), -order) << b << " vs " << a;
  }
}
