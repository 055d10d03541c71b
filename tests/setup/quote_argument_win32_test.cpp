// Quoting checked against the platform's own argument parser, the reference for every rule of
// backslashes and quotes.
#include <windows.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include "setup/quote_argument.h"

TEST(QuoteArgument, CommandLineToArgvWReadsBackEveryArgument) {
  for (const std::wstring text :
       {L"", L"plain", L"C:\\Program Files\\Stayhold", L"C:\\X\\", L"say \"hi\"", L"a\\\\\"b",
        L"\\\\nas\\", L"tab\there", L"\"\"\"", L"trailing\\\\", L"\\", L"x\\\\y\\", L"ends\"",
        L"\u010Cesk\u00E1 slo\u017Eka"}) {
    const std::wstring line = L"setup.exe " + QuoteArgument(text) + L" --next";
    int count = 0;
    LPWSTR* argv = CommandLineToArgvW(line.c_str(), &count);
    ASSERT_NE(argv, nullptr);
    ASSERT_EQ(count, 3) << line;
    EXPECT_EQ(std::wstring(argv[1]), text) << line;
    EXPECT_EQ(std::wstring(argv[2]), L"--next") << line;
    LocalFree(argv);
  }
}
