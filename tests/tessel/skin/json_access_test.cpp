#include "tessel/skin/json_access.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// intOr: numbers truncate toward zero and saturate, strings give their leading digits (-1: the
// fallback). boolMember: -1 expects the fallback, which also stands for a missing member.
TEST(JsonAccess, IntOrAndBoolMember) {
  const std::pair<const wchar_t*, int32_t> kInts[] = {{L"1e12", INT32_MAX}, {L"-1e12", INT32_MIN},
                                                      {L"-7.9", -7},        {L"[1]", -1},
                                                      {L"\" 42px\"", 42},   {L"\"px\"", -1}};
  for (const auto& [json, expected] : kInts) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(json, value));
    EXPECT_EQ(intOr(&value, -1), expected) << json;
  }
  EXPECT_EQ(intOr(nullptr, 5), 5);
  const std::pair<const wchar_t*, int> kBools[] = {
      {L"true", 1},  {L"0.0", 0},        {L"2", 1},         {L"\" YES \"", 1}, {L"\"On\"", 1},
      {L"\"1\"", 1}, {L"\"true\"", 1},   {L"\"FALSE\"", 0}, {L"\"No\"", 0},    {L"\"off\"", 0},
      {L"\"0\"", 0}, {L"\"maybe\"", -1}, {L"[true]", -1},   {L"{}", -1}};
  JsonValue empty;
  ASSERT_TRUE(parseJsonText(L"{}", empty));
  for (const auto& [json, expected] : kBools) {
    JsonValue object;
    ASSERT_TRUE(parseJsonText(std::wstring(L"{\"k\":") + json + L"}", object));
    for (bool fallback : {false, true}) {
      EXPECT_EQ(boolMember(object, {L"k"}, fallback), expected < 0 ? fallback : expected == 1)
          << json;
      EXPECT_EQ(boolMember(empty, {L"k"}, fallback), fallback);
    }
  }
}

}  // namespace
}  // namespace tessel
