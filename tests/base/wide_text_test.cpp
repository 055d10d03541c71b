#include "base/wide_text.h"

#include <gtest/gtest.h>

namespace {

std::wstring FromUnits(std::initializer_list<unsigned> units) {
  std::wstring text;
  for (unsigned unit : units)
    text += static_cast<wchar_t>(unit);
  return text;
}

TEST(Utf8FromWide, EncodesEveryRange) {
  EXPECT_EQ(Utf8FromWide(L""), "");
  EXPECT_EQ(Utf8FromWide(L"A~"), "A~");
  EXPECT_EQ(Utf8FromWide(FromUnits({0xE9})), "\xC3\xA9");
  EXPECT_EQ(Utf8FromWide(FromUnits({0x20AC})), "\xE2\x82\xAC");
  EXPECT_EQ(Utf8FromWide(FromUnits({0xFFFF})), "\xEF\xBF\xBF");
}

TEST(Utf8FromWide, SurrogatesAsWindowsConvertsThem) {
  if (sizeof(wchar_t) == 2) {
    EXPECT_EQ(Utf8FromWide(FromUnits({0xD83D, 0xDE00})), "\xF0\x9F\x98\x80");  // emoji pair
  } else {
    EXPECT_EQ(Utf8FromWide(FromUnits({0x1F600})), "\xF0\x9F\x98\x80");
  }
  EXPECT_EQ(Utf8FromWide(FromUnits({0xD83D, 0x41})),
            "\xEF\xBF\xBD"
            "A");                                                       // lone high
  EXPECT_EQ(Utf8FromWide(FromUnits({0xDE00})), "\xEF\xBF\xBD");         // lone low
  EXPECT_EQ(Utf8FromWide(FromUnits({0x41, 0xD83D})), "A\xEF\xBF\xBD");  // high at the end
}

TEST(TrimWhiteSpace, BothEnds) {
  EXPECT_EQ(TrimWhiteSpace(L"  a b \t\r\n"), L"a b");
  EXPECT_EQ(TrimWhiteSpace(L" \t "), L"");
  EXPECT_EQ(TrimWhiteSpace(L""), L"");
  EXPECT_EQ(TrimWhiteSpace(L"x"), L"x");
  // Unicode spaces count too, whatever the C library's locale.
  EXPECT_EQ(TrimWhiteSpace(FromUnits({0x3000, 'a', 0xA0, 0x2003})), L"a");
  EXPECT_EQ(TrimWhiteSpace(FromUnits({0x200B, 'a'})), FromUnits({0x200B, 'a'}));  // zero width
}

TEST(HexDigitValue, EitherCaseAndNothingElse) {
  const std::pair<wchar_t, int> cases[] = {{L'0', 0},  {L'9', 9},  {L'a', 10},           {L'F', 15},
                                           {L'g', -1}, {L' ', -1}, {wchar_t(0xFF10), -1}};
  for (const auto& [c, value] : cases)
    EXPECT_EQ(HexDigitValue(c), value) << int(c);
}

TEST(DecimalText, Digits) {
  EXPECT_EQ(DecimalText(0), L"0");
  EXPECT_EQ(DecimalText(600000), L"600000");
  EXPECT_EQ(DecimalText(18446744073709551615ull), L"18446744073709551615");
  EXPECT_EQ(SignedDecimalText(-2), L"-2");
  EXPECT_EQ(SignedDecimalText(-9223372036854775807ll - 1), L"-9223372036854775808");
  EXPECT_EQ(SignedDecimalText(7), L"7");
}

}  // namespace

namespace {

TEST(WideFromUtf8Strict, AcceptsValidAndRefusesEveryMalformation) {
  std::wstring text;
  ASSERT_TRUE(WideFromUtf8Strict("A\xC3\xA9\xE2\x82\xAC", text));
  EXPECT_EQ(text, std::wstring(L"A\u00E9\u20AC"));
  ASSERT_TRUE(WideFromUtf8Strict("\xF0\x9F\x98\x80", text));
  EXPECT_EQ(Utf8FromWide(text), "\xF0\x9F\x98\x80");  // one code point either way
  ASSERT_TRUE(WideFromUtf8Strict("", text));
  EXPECT_TRUE(text.empty());
  const char* bad[] = {
      "\x80",              // lone continuation
      "\xC3",              // truncated
      "\xC0\xAF",          // overlong
      "\xE0\x80\xAF",      // overlong
      "\xED\xA0\x80",      // surrogate
      "\xF4\x90\x80\x80",  // above U+10FFFF
      "\xFF",              // invalid lead
      "ok\xE2\x82",        // truncated at the end
  };
  for (const char* bytes : bad) {
    text = L"unchanged";
    EXPECT_FALSE(WideFromUtf8Strict(bytes, text)) << bytes;
    EXPECT_EQ(text, L"unchanged");
  }
}

TEST(ParseLeadingInt32, ReadsTheLeadingNumberAndSaturates) {
  struct Case {
    const wchar_t* text;
    bool found;
    int32_t value;
  };
  const Case cases[] = {
      {L"12abc", true, 12},
      {L"  -7", true, -7},
      {L"+5", true, 5},
      {L"99999999999", true, INT32_MAX},
      {L"-99999999999", true, INT32_MIN},
      {L"2147483647", true, INT32_MAX},
      {L"x1", false, 42},
      {L"", false, 42},
      {L"-", false, 42},
  };
  for (const Case& c : cases) {
    int32_t value = 42;
    EXPECT_EQ(ParseLeadingInt32(c.text, value), c.found) << Utf8FromWide(c.text);
    EXPECT_EQ(value, c.value) << Utf8FromWide(c.text);
  }
}

}  // namespace
