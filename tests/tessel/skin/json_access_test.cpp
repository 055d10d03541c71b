#include "tessel/skin/json_access.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

JsonValue Parse(const std::wstring& text) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(text, value)) << "fixture does not parse";
  return value;
}

// Numbers truncate toward zero and saturate; strings give their leading digits.
TEST(IntOr, TruncatesNumbersAndReadsLeadingDigits) {
  const std::pair<const wchar_t*, int32_t> kCases[] = {
      {L"1e12", INT32_MAX}, {L"[1]", -1},      {L"7.9", 7},   {L"null", -1},
      {L"\"px\"", -1},      {L"\"  -3\"", -3}, {L"\"\"", -1}, {L"\"9999999999\"", INT32_MAX},
      {L"true", -1},        {L"\"+8\"", 8},    {L"-7.9", -7}, {L"-1e12", INT32_MIN},
      {L"\"42px\"", 42}};
  for (const auto& [json, expected] : kCases) {
    const JsonValue value = Parse(json);
    EXPECT_EQ(intOr(&value, -1), expected) << json;
  }
  EXPECT_EQ(intOr(nullptr, 5), 5);
}

// -1 expects the fallback.
TEST(BoolMember, WordsNumbersAndFallback) {
  const std::pair<const wchar_t*, int> kCases[] = {
      {L"true", 1},      {L"false", 0},   {L"2", 1},         {L"0", 0},          {L"0.0", 0},
      {L"\" YES \"", 1}, {L"\"On\"", 1},  {L"\"1\"", 1},     {L"\"true\"", 1},   {L"\"off\"", 0},
      {L"\"No\"", 0},    {L"\"0\"", 0},   {L"\"FALSE\"", 0}, {L"\"maybe\"", -1}, {L"\"\"", -1},
      {L"null", -1},     {L"[true]", -1}, {L"{}", -1}};
  for (const auto& [json, expected] : kCases) {
    const JsonValue object = Parse(std::wstring(L"{\"k\":") + json + L"}");
    for (bool fallback : {false, true})
      EXPECT_EQ(boolMember(object, {L"k"}, fallback), expected < 0 ? fallback : expected == 1)
          << json;
  }
  EXPECT_TRUE(boolMember(Parse(L"{}"), {L"k"}, true));
  EXPECT_FALSE(boolMember(Parse(L"{}"), {L"k"}, false));
}

}  // namespace
}  // namespace tessel
