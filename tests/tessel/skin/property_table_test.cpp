#include "tessel/skin/property_table.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

struct KeyCase {
  const wchar_t* text;
  const wchar_t* key;
};

const KeyCase kKeyCases[] = {
    {L"font_family", L"fontfamily"},
    {L"fontFamily", L"fontfamily"},
    {L"font-family", L"fontfamily"},
    {L" FONT FAMILY ", L"fontfamily"},
    {L"a\tb", L"ab"},
    {L"", L""},
    {L"_-", L""},
};

TEST(NormalizeKey, OneKeyForEverySpelling) {
  for (const KeyCase& c : kKeyCases)
    EXPECT_EQ(normalizeKey(c.text), c.key) << c.text;
}

const KeyCase kPathCases[] = {
    {L"Nine_Slice..Left", L"nineslice.left"},
    {L"a..b", L"a.b"},
    {L".a.b.", L"a.b"},
    {L"a. _ .b", L"a.b"},
    {L"...", L""},
    {L"Surface.Hot.Border", L"surface.hot.border"},
};

TEST(NormalizeKeyPath, NormalizesSegmentsAndDropsEmptyOnes) {
  for (const KeyCase& c : kPathCases)
    EXPECT_EQ(normalizeKeyPath(c.text), c.key) << c.text;
}

PropertyTable Flatten(const wchar_t* json, const std::wstring& prefix = L"") {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, prefix, table);
  return table;
}

struct FlattenCase {
  const char* what;
  const wchar_t* json;
  PropertyTable expected;
};

const FlattenCase kFlattenCases[] = {
    {"array skips null and nested values", L"{\"a\":[1,null,\"x\",[2]]}", {{L"a", L"1,x"}}},
    {"array of numbers", L"{\"padding\":[18, 14, 18, 18]}", {{L"padding", L"18,14,18,18"}}},
    {"nested object becomes a dotted key",
     L"{\"nine_slice\": {\"left\": 32}}",
     {{L"nineslice.left", L"32"}}},
    {"null and empty text store nothing", L"{\"a\":null,\"b\":\"\",\"c\":[]}", {}},
    {"booleans and fractions", L"{\"On\":true,\"x\":0.25}", {{L"on", L"true"}, {L"x", L"0.25"}}},
    {"spellings meet in one key; the later member in key order wins",
     L"{\"fontFamily\":\"A\",\"font_family\":\"B\"}",
     {{L"fontfamily", L"B"}}},
    {"deep paths",
     L"{\"surface\":{\"hot\":{\"Border\":\"#FFFFFF\"}}}",
     {{L"surface.hot.border", L"#FFFFFF"}}},
};

TEST(FlattenProperties, TurnsObjectsIntoDottedKeys) {
  for (const FlattenCase& c : kFlattenCases)
    EXPECT_EQ(Flatten(c.json), c.expected) << c.what;
}

TEST(FlattenProperties, PrefixAndScalarRoot) {
  EXPECT_EQ(Flatten(L"{\"b\":1}", L"Style"), (PropertyTable{{L"style.b", L"1"}}));
  EXPECT_EQ(Flatten(L"5", L"a_b"), (PropertyTable{{L"ab", L"5"}}));
}

TEST(FlattenProperties, OverwritesAnExistingEntry) {
  PropertyTable table{{L"a", L"old"}, {L"keep", L"1"}};
  JsonValue value;
  ASSERT_TRUE(parseJsonText(L"{\"a\":\"new\"}", value));
  flattenProperties(value, L"", table);
  EXPECT_EQ(table, (PropertyTable{{L"a", L"new"}, {L"keep", L"1"}}));
}

}  // namespace
}  // namespace tessel
