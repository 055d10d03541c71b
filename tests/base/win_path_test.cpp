#include "base/win_path.h"

#include <gtest/gtest.h>

namespace {

TEST(LexicallyNormalPath, ResolvesDotsWithoutClimbingAboveTheRoot) {
  const struct {
    const wchar_t* in;
    const wchar_t* out;
  } cases[] = {
      {L"C:\\A\\B\\..\\C", L"C:\\A\\C"},
      {L"C:\\A\\.\\B\\.", L"C:\\A\\B"},
      {L"C:\\A\\\\B", L"C:\\A\\B"},
      {L"C:\\..\\..\\X", L"C:\\X"},
      {L"C:\\\\..", L"C:\\"},
      {L"C:\\", L"C:\\"},
      {L"C:/A/B/", L"C:\\A\\B\\"},
      {L"\\\\server\\share\\a\\..\\b", L"\\\\server\\share\\b"},
      {L"\\\\server\\share\\..", L"\\\\server\\share\\"},
      {L"a\\..\\..\\b", L"..\\b"},
      {L"a\\..", L"."},
  };
  for (const auto& c : cases)
    EXPECT_EQ(LexicallyNormalPath(c.in), c.out) << c.in;
}

TEST(JoinPath, OneSeparatorBetween) {
  EXPECT_EQ(JoinPath(L"C:\\A", L"b"), L"C:\\A\\b");
  EXPECT_EQ(JoinPath(L"C:\\A\\", L"b"), L"C:\\A\\b");
  EXPECT_EQ(JoinPath(L"C:\\", L"b"), L"C:\\b");
  EXPECT_EQ(JoinPath(L"", L"b"), L"");
}

TEST(ModuleFolderFromFileName, EmptyOnEveryFailureOfTheCall) {
  const struct {
    const char* what;
    const wchar_t* text;
    unsigned copied;
    const wchar_t* folder;
  } cases[] = {
      {"normal", L"C:\\Apps\\Stayhold\\Stayhold.exe", 30, L"C:\\Apps\\Stayhold"},
      {"call failed", L"", 0, L""},
      {"buffer full, maybe truncated", L"C:\\x\\y.exe", 260, L""},
      {"no backslash", L"Stayhold.exe", 12, L""},
      {"root", L"C:\\Stayhold.exe", 15, L"C:"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ModuleFolderFromFileName(c.text, c.copied, 260), c.folder) << c.what;
  }
}

}  // namespace
