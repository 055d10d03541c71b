#include "tessel/skin/property_table.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Case, blanks, "_" and "-" don't count in a key; a path drops its empty segments.
TEST(NormalizeKeyPath, OneKeyForEverySpellingAndNoEmptySegments) {
  const std::pair<const wchar_t*, const wchar_t*> kPaths[] = {
      {L"a\tb", L"ab"},     {L" FONT FAMILY ", L"fontfamily"},
      {L".a.b.", L"a.b"},   {L"Surface.Hot.Border", L"surface.hot.border"},
      {L"a. _ .b", L"a.b"}, {L"Nine_Slice..Left", L"nineslice.left"},
      {L"_-", L""},         {L"font_family", L"fontfamily"},
      {L"...", L""},        {L"", L""},
      {L"a..b", L"a.b"}};
  for (const auto& [text, key] : kPaths)
    EXPECT_EQ(normalizeKeyPath(text), key) << text;
}

// Arrays become comma lists without null and nested values; spellings meet in one key, where the
// later member in key order wins.
TEST(FlattenProperties, TurnsObjectsIntoDottedKeys) {
  const struct {
    const wchar_t* json;
    const wchar_t* prefix;
    PropertyTable expected;
  } kCases[] = {{L"{\"a\":[1,null,\"x\",[2]]}", L"", {{L"a", L"1,x"}}},
                {L"{\"nine_slice\": {\"left\": 32}}", L"", {{L"nineslice.left", L"32"}}},
                {L"{\"a\":null,\"b\":\"\",\"c\":[]}", L"", {}},
                {L"{\"On\":true,\"x\":0.25,\"y\":-2.9999999,\"z\":1234567.5}",
                 L"",
                 {{L"on", L"true"}, {L"x", L"0.25"}, {L"y", L"-3"}, {L"z", L"1.23457e+06"}}},
                {L"{\"fontFamily\":\"A\",\"font_family\":\"B\"}", L"", {{L"fontfamily", L"B"}}},
                {L"{\"b\":1}", L"Style", {{L"style.b", L"1"}}},
                {L"5", L"a_b", {{L"ab", L"5"}}},
                {L"{\"a\":\"new\"}", L"", {{L"a", L"new"}, {L"keep", L"1"}}}};
  for (const auto& c : kCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(c.json, value)) << c.json;
    PropertyTable table;
    if (c.expected.contains(L"keep")) table = {{L"a", L"old"}, {L"keep", L"1"}};
    flattenProperties(value, c.prefix, table);
    EXPECT_EQ(table, c.expected) << c.json;
  }
}

}  // namespace
}  // namespace tessel
