#include "tessel/skin/json_access.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

JsonValue Parse(const wchar_t* text) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(text, value)) << "fixture does not parse";
  return value;
}

TEST(FindMember, FirstAliasThatExistsWins) {
  const JsonValue object = Parse(L"{\"b\":2,\"a\":1,\"C\":3}");
  EXPECT_EQ(findMember(object, {L"a", L"b"})->number, 1);
  EXPECT_EQ(findMember(object, {L"b", L"a"})->number, 2);
  EXPECT_EQ(findMember(object, {L"x", L"b"})->number, 2);
  EXPECT_EQ(findMember(object, {L"c"}), nullptr);  // case-sensitive
  EXPECT_EQ(findMember(Parse(L"[1]"), {L"0"}), nullptr);
}

TEST(StringOr, OnlyStringsConvert) {
  EXPECT_EQ(stringOr(nullptr, L"f"), L"f");
  const JsonValue value = Parse(L"[\"x\", 5, true, null]");
  EXPECT_EQ(stringOr(&value.items[0], L"f"), L"x");
  EXPECT_EQ(stringOr(&value.items[1], L"f"), L"f");
  EXPECT_EQ(stringOr(&value.items[2], L"f"), L"f");
  EXPECT_EQ(stringOr(&value.items[3], L"f"), L"f");
}

struct IntCase {
  const wchar_t* json;
  int32_t expected;
};

const IntCase kIntCases[] = {
    {L"7.9", 7},          {L"-7.9", -7},         {L"\"42px\"", 42}, {L"\"  -3\"", -3},
    {L"\"+8\"", 8},       {L"\"px\"", -1},       {L"\"\"", -1},     {L"\"9999999999\"", INT32_MAX},
    {L"1e12", INT32_MAX}, {L"-1e12", INT32_MIN}, {L"true", -1},     {L"null", -1},
    {L"[1]", -1},
};

TEST(IntOr, TruncatesNumbersAndReadsLeadingDigits) {
  for (const IntCase& c : kIntCases) {
    const JsonValue value = Parse(c.json);
    EXPECT_EQ(intOr(&value, -1), c.expected) << c.json;
  }
  EXPECT_EQ(intOr(nullptr, 5), 5);
}

struct BoolCase {
  const wchar_t* json;
  int expected;  // -1: the fallback
};

const BoolCase kBoolCases[] = {
    {L"true", 1},      {L"false", 0},   {L"2", 1},         {L"0", 0},          {L"0.0", 0},
    {L"\" YES \"", 1}, {L"\"On\"", 1},  {L"\"1\"", 1},     {L"\"true\"", 1},   {L"\"off\"", 0},
    {L"\"No\"", 0},    {L"\"0\"", 0},   {L"\"FALSE\"", 0}, {L"\"maybe\"", -1}, {L"\"\"", -1},
    {L"null", -1},     {L"[true]", -1}, {L"{}", -1},
};

TEST(BoolMember, WordsNumbersAndFallback) {
  for (const BoolCase& c : kBoolCases) {
    const JsonValue object = Parse((std::wstring(L"{\"k\":") + c.json + L"}").c_str());
    for (bool fallback : {false, true}) {
      const bool expected = c.expected < 0 ? fallback : c.expected == 1;
      EXPECT_EQ(boolMember(object, {L"k"}, fallback), expected) << c.json;
    }
  }
  EXPECT_TRUE(boolMember(Parse(L"{}"), {L"k"}, true));
  EXPECT_FALSE(boolMember(Parse(L"{}"), {L"k"}, false));
}

struct ScalarCase {
  const wchar_t* json;
  const wchar_t* text;
};

const ScalarCase kScalarCases[] = {
    {L"2.0000001", L"2"},
    {L"2.5", L"2.5"},
    {L"-3", L"-3"},
    {L"-2.9999999", L"-3"},
    {L"0.1234567", L"0.123457"},
    {L"1234567.5", L"1.23457e+06"},
    {L"true", L"true"},
    {L"false", L"false"},
    {L"\"x y\"", L"x y"},
    {L"null", L""},
    {L"[1]", L""},
    {L"{}", L""},
    {L"0", L"0"},
};

TEST(ScalarText, FormatsLikeTheSkinTableExpects) {
  for (const ScalarCase& c : kScalarCases) {
    EXPECT_EQ(scalarText(Parse(c.json)), c.text) << c.json;
  }
}

}  // namespace
}  // namespace tessel
