#include "base/win_path.h"

#include <gtest/gtest.h>

TEST(LexicallyNormalPath, ResolvesDotsWithoutClimbingAboveTheRoot) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"C:\\A\\B\\..\\C", L"C:\\A\\C"},
      {L"C:\\..\\..\\X", L"C:\\X"},
      {L"C:\\\\..", L"C:\\"},
      {L"C:/A/B/", L"C:\\A\\B\\"},
      {L"\\\\server\\share\\a\\..\\b", L"\\\\server\\share\\b"},
      {L"\\\\server\\share\\..", L"\\\\server\\share\\"},
      {L"a\\..\\..\\b", L"..\\b"},
      {L"a\\..", L"."}};
  for (const auto& [in, out] : cases)
    EXPECT_EQ(LexicallyNormalPath(in), out) << in;
}

TEST(JoinPath, OneSeparatorBetween) {
  EXPECT_EQ(JoinPath(L"C:\\A", L"b"), L"C:\\A\\b");
  EXPECT_EQ(JoinPath(L"C:\\A\\", L"b"), L"C:\\A\\b");
  EXPECT_EQ(JoinPath(L"", L"b"), L"");
}

TEST(ModuleFolderFromFileName, EmptyOnEveryFailureOfTheCall) {
  const std::tuple<const char*, const wchar_t*, unsigned, const wchar_t*> cases[] = {
      {"normal", L"C:\\Apps\\Stayhold\\Stayhold.exe", 30, L"C:\\Apps\\Stayhold"},
      {"call failed", L"", 0, L""},
      {"buffer full, maybe truncated", L"C:\\x\\y.exe", 260, L""},
      {"no backslash", L"Stayhold.exe", 12, L""},
      {"root", L"C:\\Stayhold.exe", 15, L"C:"}};
  for (const auto& [what, text, copied, folder] : cases)
    EXPECT_EQ(ModuleFolderFromFileName(text, copied, 260), folder) << what;
}
