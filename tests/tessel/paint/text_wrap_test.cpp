#include "tessel/paint/text_wrap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessel {
namespace {

// One pixel a code unit, so widths read as character counts.
int32_t CountUnits(const std::wstring& text) {
  return static_cast<int32_t>(text.size());
}

// A character outside the basic plane as UTF-16 code units, whatever the size of wchar_t.
const std::wstring kPair{wchar_t(0xD83D), wchar_t(0xDE00)};

struct Case {
  const char* what;
  std::wstring text;
  int32_t width;
  std::vector<std::wstring> lines;
};

TEST(TextWrap, BreaksLinesToTheWidth) {
  const Case kCases[] = {
      {"empty text has no lines", L"", 10, {}},
      {"short text stays whole", L"stay awake", 10, {L"stay awake"}},
      {"breaks at the last space that fits",
       L"keep the screen on",
       10,
       {L"keep the", L"screen on"}},
      {"a word exactly the width fits", L"abcde fghij", 5, {L"abcde", L"fghij"}},
      {"a run of spaces counts as one", L"a    b", 10, {L"a b"}},
      {"spaces at a break are dropped", L"abc   def", 4, {L"abc", L"def"}},
      {"leading and trailing spaces vanish", L"  ab  ", 10, {L"ab"}},
      {"hard breaks are kept", L"one\ntwo", 10, {L"one", L"two"}},
      {"empty lines are kept", L"one\n\ntwo", 10, {L"one", L"", L"two"}},
      {"a trailing break ends in an empty line", L"one\n", 10, {L"one", L""}},
      {"a carriage return before a break is dropped", L"one\r\ntwo", 10, {L"one", L"two"}},
      {"a long word is broken by characters", L"abcdefghij", 4, {L"abcd", L"efgh", L"ij"}},
      {"the rest of a broken word takes the next word", L"abcdef g", 4, {L"abcd", L"ef g"}},
      {"a broken word starts on its own line", L"ab cdefgh", 4, {L"ab", L"cdef", L"gh"}},
      {"a width of one character gives one a line", L"abc", 1, {L"a", L"b", L"c"}},
      {"a surrogate pair is never cut", L"a" + kPair + L"b", 1, {L"a", kPair, L"b"}},
      {"a width below 1 keeps the hard lines", L"keep the\nscreen", 0, {L"keep the", L"screen"}},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(wrapText(c.text, c.width, CountUnits), c.lines) << c.what;
  }
}

TEST(TextWrap, FollowsTheMeasureNotTheCharacterCount) {
  // "W" is wide: three units, everything else one.
  const auto measure = [](const std::wstring& text) {
    int32_t width = 0;
    for (wchar_t c : text)
      width += c == L'W' ? 3 : 1;
    return width;
  };
  EXPECT_EQ(wrapText(L"WW ab WWW", 8, measure),
            (std::vector<std::wstring>{L"WW", L"ab", L"WW", L"W"}));
  EXPECT_EQ(wrapText(L"WW ab WWW", 8, CountUnits), (std::vector<std::wstring>{L"WW ab", L"WWW"}));
}

}  // namespace
}  // namespace tessel
