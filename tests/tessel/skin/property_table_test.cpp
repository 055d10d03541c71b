#include "tessel/skin/property_table.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Case, blanks, "_" and "-" don't count in a key; a path drops its empty segments. Arrays become
// comma lists without null and nested values; spellings meet in one key, where the later member
// in key order wins; what was in the table stays.
TEST(PropertyTable, NormalizedKeysAndFlattenedObjects) {
  for (const auto& [text, key] : {std::pair{L" FONT\tFAMILY ", L"fontfamily"},
                                  {L".a. _ .b.", L"a.b"},
                                  {L"Nine_Slice..Left", L"nineslice.left"},
                                  {L"_-", L""},
                                  {L"", L""}})
    EXPECT_EQ(normalizeKeyPath(text), key) << text;
  const struct {
    const wchar_t *json, *prefix;
    PropertyTable expected;
  } kCases[] = {
      {L"{\"a\":[1,null,\"x\",[2]],\"b\":\"\",\"c\":[],\"d\":null}", L"", {{L"a", L"1,x"}}},
      {L"{\"y\":-2.9999999,\"z\":1234567.5}", L"", {{L"y", L"-3"}, {L"z", L"1.23457e+06"}}},
      {L"{\"fontFamily\":\"A\",\"font_family\":\"B\"}", L"", {{L"fontfamily", L"B"}}},
      {L"{\"Nine_Slice\":{\"On\":true}}", L"Style", {{L"style.nineslice.on", L"true"}}},
      {L"5", L"a_b", {{L"ab", L"5"}}}};
  for (const auto& c : kCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(c.json, value)) << c.json;
    PropertyTable table{{L"keep", L"1"}};
    flattenProperties(value, c.prefix, table);
    EXPECT_EQ(table[L"keep"], L"1");
    table.erase(L"keep");
    EXPECT_EQ(table, c.expected) << c.json;
  }
}

}  // namespace
}  // namespace tessel
