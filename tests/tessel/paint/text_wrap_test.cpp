#include "tessel/paint/text_wrap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessel {
namespace {

// One pixel a code unit, but "W" is three wide: the measure decides, not the character count.
int32_t Measure(const std::wstring& text) {
  int32_t width = 0;
  for (wchar_t c : text)
    width += c == L'W' ? 3 : 1;
  return width;
}

TEST(TextWrap, BreaksLinesToTheWidth) {
  const std::wstring pair{wchar_t(0xD83D), wchar_t(0xDE00)};  // outside the basic plane
  const struct {
    const char* what;
    std::wstring text;
    int32_t width;
    std::vector<std::wstring> lines;
  } kCases[] = {
      {"empty text has no lines", L"", 10, {}},
      {"a run of spaces counts as one", L"a    b", 10, {L"a b"}},
      {"breaks at the last space that fits",
       L"keep the screen on",
       10,
       {L"keep the", L"screen on"}},
      {"a word exactly the width fits", L"abcde fghij", 5, {L"abcde", L"fghij"}},
      {"leading and trailing spaces vanish", L"  ab  ", 10, {L"ab"}},
      {"hard breaks, empty lines, CR dropped", L"one\r\n\ntwo\n", 10, {L"one", L"", L"two", L""}},
      {"a long word is broken by characters", L"abcdefghij", 4, {L"abcd", L"efgh", L"ij"}},
      {"a broken word's rest takes the next", L"ab cdefgh i", 4, {L"ab", L"cdef", L"gh i"}},
      {"a surrogate pair is never cut", L"a" + pair + L"b", 1, {L"a", pair, L"b"}},
      {"a width below 1 keeps the hard lines", L"keep the\nscreen", 0, {L"keep the", L"screen"}},
      {"wide letters by the measure", L"WW ab WWW", 8, {L"WW", L"ab", L"WW", L"W"}},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(wrapText(c.text, c.width, Measure), c.lines) << c.what;
}

}  // namespace
}  // namespace tessel
