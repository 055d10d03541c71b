#include "setup/quote_argument.h"

#include <gtest/gtest.h>

namespace {

// The argument rules of CommandLineToArgvW for one argument that starts with a quote: 2n
// backslashes before a quote give n and toggle quoting, 2n+1 give n and a literal quote,
// backslashes elsewhere stand for themselves.
std::wstring ParseFirstArgument(const std::wstring& line) {
  std::wstring out;
  bool quoted = false;
  size_t backslashes = 0;
  for (size_t i = 0; i < line.size(); ++i) {
    const wchar_t c = line[i];
    if (c == L'\\') {
      ++backslashes;
      continue;
    }
    if (c == L'"') {
      out.append(backslashes / 2, L'\\');
      if (backslashes % 2) {
        out += L'"';
      } else if (quoted && i + 1 < line.size() && line[i + 1] == L'"') {
        out += L'"';  // "" inside quotes
        ++i;
      } else {
        quoted = !quoted;
      }
      backslashes = 0;
      continue;
    }
    out.append(backslashes, L'\\');
    backslashes = 0;
    if (!quoted && (c == L' ' || c == L'\t')) break;
    out += c;
  }
  out.append(backslashes, L'\\');
  return out;
}

TEST(QuoteArgument, RoundTripsThroughTheArgumentRules) {
  for (const wchar_t* text : {L"", L"a b", L"\\", L"\\\\", L"\"", L"a\\\\\"b", L"tab\there",
                              L"x\\\\y\\", L"\"\"\"", L"\\\\server\\share\\dir\\", L"ends\""}) {
    EXPECT_EQ(ParseFirstArgument(QuoteArgument(text) + L" next"), text) << text;
  }
}

}  // namespace
