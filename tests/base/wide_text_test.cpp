#include "base/wide_text.h"

#include <gtest/gtest.h>

namespace {

std::wstring FromUnits(std::initializer_list<unsigned> units) {
  std::wstring text;
  for (unsigned unit : units)
    text += static_cast<wchar_t>(unit);
  return text;
}

TEST(Utf8FromWide, EncodesEveryRangeAndSurrogatesAsWindowsConvertsThem) {
  EXPECT_EQ(Utf8FromWide(L""), "");
  EXPECT_EQ(Utf8FromWide(FromUnits({'~', 0xE9, 0x20AC, 0xFFFF})),
            "~\xC3\xA9\xE2\x82\xAC\xEF\xBF\xBF");
  const std::wstring emoji =
      sizeof(wchar_t) == 2 ? FromUnits({0xD83D, 0xDE00}) : FromUnits({0x1F600});
  EXPECT_EQ(Utf8FromWide(emoji), "\xF0\x9F\x98\x80");
  // A lone high, a lone low and a high at the end each become U+FFFD.
  EXPECT_EQ(Utf8FromWide(FromUnits({0xD83D, 'A', 0xDE00, 0xD83D})),
            "\xEF\xBF\xBD"
            "A\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(WideFromUtf8Strict, AcceptsValidAndRefusesEveryMalformation) {
  std::wstring text;
  ASSERT_TRUE(WideFromUtf8Strict("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", text));
  EXPECT_EQ(Utf8FromWide(text), "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(text.substr(0, 3), std::wstring(L"A\u00E9\u20AC"));
  ASSERT_TRUE(WideFromUtf8Strict("", text));
  EXPECT_TRUE(text.empty());
  for (const char* bad : {"\x80" /* lone continuation */, "\xC3" /* truncated */,
                          "\xC0\xAF" /* overlong */, "\xE0\x80\xAF" /* overlong */,
                          "\xED\xA0\x80" /* surrogate */, "\xF4\x90\x80\x80" /* above U+10FFFF */,
                          "\xFF" /* invalid lead */, "ok\xE2\x82" /* truncated at the end */}) {
    text = L"unchanged";
    EXPECT_FALSE(WideFromUtf8Strict(bad, text)) << bad;
    EXPECT_EQ(text, L"unchanged");
  }
}

TEST(TrimWhiteSpace, BothEndsWithTheUnicodeSpaces) {
  EXPECT_EQ(TrimWhiteSpace(L"  a b \t\r\n"), L"a b");
  EXPECT_EQ(TrimWhiteSpace(L" \t "), L"");
  EXPECT_EQ(TrimWhiteSpace(L""), L"");
  // Unicode spaces count too, whatever the C library's locale; the zero-width space does not.
  EXPECT_EQ(TrimWhiteSpace(FromUnits({0x3000, 'a', 0xA0, 0x2003})), L"a");
  EXPECT_EQ(TrimWhiteSpace(FromUnits({0x200B, 'a'})), FromUnits({0x200B, 'a'}));
}

TEST(Numbers, HexDigitsDecimalTextAndTheLeadingInt32) {
  const std::pair<wchar_t, int> hex[] = {{L'0', 0},  {L'9', 9},  {L'a', 10},
                                         {L'F', 15}, {L'g', -1}, {wchar_t(0xFF10), -1}};
  for (const auto& [c, value] : hex)
    EXPECT_EQ(HexDigitValue(c), value) << int(c);
  EXPECT_EQ(DecimalText(0), L"0");
  EXPECT_EQ(DecimalText(18446744073709551615ull), L"18446744073709551615");
  EXPECT_EQ(SignedDecimalText(-9223372036854775807ll - 1), L"-9223372036854775808");
  EXPECT_EQ(SignedDecimalText(7), L"7");
  const std::tuple<const wchar_t*, bool, int32_t> leading[] = {{L"12abc", true, 12},
                                                               {L"  -7", true, -7},
                                                               {L"+5", true, 5},
                                                               {L"", false, 42},
                                                               {L"99999999999", true, INT32_MAX},
                                                               {L"-99999999999", true, INT32_MIN},
                                                               {L"-", false, 42}};
  for (const auto& [text, found, expected] : leading) {
    int32_t value = 42;
    EXPECT_EQ(ParseLeadingInt32(text, value), found) << Utf8FromWide(text);
    EXPECT_EQ(value, expected) << Utf8FromWide(text);
  }
}

}  // namespace
