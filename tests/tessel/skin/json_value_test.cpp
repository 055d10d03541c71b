#include "tessel/skin/json_value.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// A failure anywhere refuses the whole document and leaves the output alone.
TEST(JsonParse, RefusesMalformedDocuments) {
  for (const wchar_t* text :
       {L"",          L" \t\r\n",       L"{\"a\":1,}", L"[1,]",       L"{\"a\":1} x",
        L"[+1]",      L"[-]",           L"[.]",        L"/* x */ {}", L"[\"\\x41\"]",
        L"\"\\u12",   L"[\"\\u12G4\"]", L"[\"abc",     L"\"abc\\",    L"{a:1}",
        L"{\"a\" 1}", L"[1 2]",         L"{\"a\":1",   L"[trueish]",  L"[tru]"}) {
    JsonValue value;
    value.number = 7;
    EXPECT_FALSE(parseJsonText(text, value)) << text;
    EXPECT_EQ(value.number, 7) << text;
  }
}

// Numbers are scanned wider than JSON; white space may be wide, and one byte order mark leads.
TEST(JsonParse, ReadsNumbersTheWideWay) {
  const std::pair<const wchar_t*, double> kCases[] = {
      {L"\uFEFF[1]", 1}, {L"[1E3]", 1000}, {L"[1e]", 1},        {L"\u3000\f\v[1]\u2003", 1},
      {L"[1.]", 1},      {L"[01]", 1},     {L"[-12E-1]", -1.2}, {L"[.5]", 0.5}};
  for (const auto& [text, number] : kCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(text, value)) << text;
    ASSERT_EQ(value.items.size(), 1u) << text;
    EXPECT_EQ(value.items[0].kind, JsonValue::Kind::Number) << text;
    EXPECT_DOUBLE_EQ(value.items[0].number, number) << text;
  }
}

// A repeated key keeps one place and the last value; keys sort as UTF-16 code units, also where
// wchar_t holds whole code points.
TEST(JsonParse, TheOrderOfKeys) {
  JsonValue value;
  ASSERT_TRUE(parseJsonText(
      L"{\"b\":1,\"B\":2,\"ab\":3,\"a\":4,\"\\uE000\":5,\"\\uD83D\\uDE00\":6,\"b\":7}", value));
  std::vector<std::wstring> keys;
  for (const auto& member : value.members)
    keys.push_back(member.first);
  const std::wstring pair{wchar_t(0xD83D), wchar_t(0xDE00)}, privateUse(1, wchar_t(0xE000));
  EXPECT_EQ(keys, (std::vector<std::wstring>{L"B", L"a", L"ab", L"b", pair, privateUse}));
  EXPECT_EQ(value.members.at(L"b").number, 7);
  // Where wchar_t holds whole code points, an astral key still sorts as its surrogate pair.
  const auto astral = [](wchar_t low) {
    return sizeof(wchar_t) == 2 ? std::wstring{wchar_t(0xD83D), low}
                                : std::wstring(1, wchar_t(0x1F400 + (low - 0xDC00)));
  };
  const Utf16KeyLess less;
  EXPECT_TRUE(less(astral(0xDE00), astral(0xDE01)) && !less(astral(0xDE01), astral(0xDE00)));
  EXPECT_TRUE(less(astral(0xDE00), privateUse) && !less(astral(0xDE00), astral(0xDE00)));
  EXPECT_TRUE(less(std::wstring(1, wchar_t(0xD83D)), astral(0xDE00)));  // a prefix of the pair
  EXPECT_TRUE(less(std::wstring(L"\0a", 2), std::wstring(L"\0b", 2)));  // a unit 0 is no end
}

// Surrogates stay code units, alone or in pairs; raw control characters stay.
TEST(JsonParse, StringsKeepCodeUnits) {
  const std::pair<const wchar_t*, std::vector<unsigned>> kCases[] = {
      {L"\"\\ud83d\\ude00\"", {0xD83D, 0xDE00}},
      {L"\"\\ud83d\"", {0xD83D}},
      {L"\"\\\"\\/\\\\\\b\\f\\n\\r\\t\"", {'"', '/', '\\', 8, 12, 10, 13, 9}},
      {L"\"a\tb\r\n\"", {'a', 9, 'b', 13, 10}}};
  for (const auto& [text, expected] : kCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(text, value)) << text;
    ASSERT_EQ(value.kind, JsonValue::Kind::String) << text;
    EXPECT_EQ(std::vector<unsigned>(value.text.begin(), value.text.end()), expected) << text;
  }
}

}  // namespace
}  // namespace tessel
