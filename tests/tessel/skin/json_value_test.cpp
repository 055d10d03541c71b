#include "tessel/skin/json_value.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tessel/skin/json_access.h"

namespace tessel {
namespace {

struct AcceptCase {
  const char* what;
  const wchar_t* text;
  bool accepted;
};

const AcceptCase kAcceptCases[] = {
    {"empty text", L"", false},
    {"only white space", L" \t\r\n", false},
    {"trailing comma in an object", L"{\"a\":1,}", false},
    {"trailing comma in an array", L"[1,]", false},
    {"trailing text", L"{\"a\":1} x", false},
    {"trailing white space", L"{\"a\":1}  \n", true},
    {"wide white space around", L"\u3000\f\v{\"a\":1}\u2003", true},
    {"leading plus", L"{\"a\":+1}", false},
    {"exponent without digits", L"{\"a\":1e}", true},
    {"exponent sign without digits", L"{\"a\":1e+}", true},
    {"bare fraction", L"{\"a\":.5}", true},
    {"negative bare fraction", L"[-.5]", true},
    {"trailing point", L"[1.]", true},
    {"leading zeros", L"{\"a\":01}", true},
    {"minus alone", L"[-]", false},
    {"point alone", L"[.]", false},
    {"line comment", L"{\"a\":1 // no\n}", false},
    {"block comment", L"/* x */ {}", false},
    {"unknown escape", L"[\"\\x41\"]", false},
    {"short unicode escape", L"[\"\\u12\"]", false},
    {"unicode escape cut by the end", L"\"\\u12", false},
    {"unicode escape with a bad digit", L"[\"\\u12G4\"]", false},
    {"unterminated string", L"[\"abc", false},
    {"backslash at the end", L"\"abc\\", false},
    {"raw line break in a string", L"{\"a\":\"x\ny\"}", true},
    {"key that is not a string", L"{a:1}", false},
    {"missing colon", L"{\"a\" 1}", false},
    {"missing comma", L"[1 2]", false},
    {"unclosed object", L"{\"a\":1", false},
    {"unclosed array", L"[1", false},
    {"literal prefix followed by junk", L"[trueish]", false},
    {"truncated literal", L"[tru]", false},
    {"empty object and array", L"{\"a\":{},\"b\":[]}", true},
    {"second byte order mark", L"\uFEFF{}", true},
    {"bare scalar document", L"42", true},
    {"nested documents", L"[[[[{\"a\":[null,true,false]}]]]]", true},
};

TEST(JsonParse, AcceptsAndRefusesDocuments) {
  for (const AcceptCase& c : kAcceptCases) {
    JsonValue value;
    EXPECT_EQ(parseJsonText(c.text, value), c.accepted) << c.what;
  }
}

TEST(JsonParse, RefusalLeavesTheOutputAlone) {
  JsonValue value;
  value.kind = JsonValue::Kind::Number;
  value.number = 7;
  EXPECT_FALSE(parseJsonText(L"{\"a\":[1,]}", value));
  EXPECT_EQ(value.kind, JsonValue::Kind::Number);
  EXPECT_EQ(value.number, 7);
}

struct NumberCase {
  const wchar_t* text;
  double number;
};

const NumberCase kNumberCases[] = {
    {L"1e", 1.0},      {L"1e+", 1.0}, {L".5", 0.5},   {L"-.5", -0.5},
    {L"01", 1.0},      {L"007", 7.0}, {L"1.", 1.0},   {L"2.5e2", 250},
    {L"-12E-1", -1.2}, {L"0", 0.0},   {L"1E3", 1000}, {L"3.25", 3.25},
};

TEST(JsonParse, ReadsNumbersTheWideWay) {
  for (const NumberCase& c : kNumberCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(std::wstring(L"{\"a\":") + c.text + L"}", value)) << c.text;
    const JsonValue* a = findMember(value, {L"a"});
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->kind, JsonValue::Kind::Number) << c.text;
    EXPECT_DOUBLE_EQ(a->number, c.number) << c.text;
  }
}

TEST(JsonParse, DuplicateKeyTakesTheLastValue) {
  JsonValue value;
  ASSERT_TRUE(parseJsonText(L"{\"a\":1,\"b\":0,\"a\":2}", value));
  ASSERT_EQ(value.members.size(), 2u);
  EXPECT_EQ(value.members.at(L"a").number, 2);
}

TEST(JsonParse, MembersAreSortedByCodeUnitNotFileOrder) {
  JsonValue value;
  ASSERT_TRUE(parseJsonText(
      L"{\"b\":1,\"B\":2,\"ab\":3,\"a\":4,\"\\uE000\":5,\"\\uD83D\\uDE00\":6}", value));
  std::vector<std::wstring> keys;
  for (const auto& member : value.members)
    keys.push_back(member.first);
  // Upper case before lower case; a prefix before its extension; a surrogate pair before
  // U+E000, as UTF-16 code units order them.
  ASSERT_EQ(keys.size(), 6u);
  EXPECT_EQ(keys[0], L"B");
  EXPECT_EQ(keys[1], L"a");
  EXPECT_EQ(keys[2], L"ab");
  EXPECT_EQ(keys[3], L"b");
  EXPECT_EQ(keys[4].size(), 2u);
  EXPECT_EQ(keys[5], std::wstring(1, wchar_t(0xE000)));
}

TEST(Utf16KeyLess, WholeCodePointsSortAsTheirSurrogates) {
  const Utf16KeyLess less;
  // Where wchar_t is 16 bits the emoji is already its pair; elsewhere one whole code point.
  const std::wstring emoji = sizeof(wchar_t) == 2 ? std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}
                                                  : std::wstring(1, wchar_t(0x1F600));
  const std::wstring privateUse(1, wchar_t(0xE000));
  const std::wstring loneHigh(1, wchar_t(0xD83D));
  EXPECT_TRUE(less(emoji, privateUse));
  EXPECT_FALSE(less(privateUse, emoji));
  EXPECT_TRUE(less(loneHigh, emoji));  // D83D is a prefix of D83D DE00
  EXPECT_FALSE(less(emoji, loneHigh));
}

struct StringCase {
  const char* what;
  const wchar_t* text;
  std::vector<unsigned> units;
};

const StringCase kStringCases[] = {
    {"surrogate pair stays two units", L"\"\\ud83d\\ude00\"", {0xD83D, 0xDE00}},
    {"lone surrogate is kept", L"\"\\ud83d\"", {0xD83D}},
    {"upper-case hex digits", L"\"\\u00E9\"", {0xE9}},
    {"short escapes", L"\"\\\"\\/\\\\\\b\\f\\n\\r\\t\"", {'"', '/', '\\', 8, 12, 10, 13, 9}},
    {"raw tab and line break", L"\"a\tb\r\n\"", {'a', 9, 'b', 13, 10}},
};

TEST(JsonParse, StringsKeepCodeUnits) {
  for (const StringCase& c : kStringCases) {
    JsonValue value;
    ASSERT_TRUE(parseJsonText(c.text, value)) << c.what;
    ASSERT_EQ(value.kind, JsonValue::Kind::String) << c.what;
    std::vector<unsigned> units;
    for (wchar_t unit : value.text)
      units.push_back(static_cast<unsigned>(unit));
    EXPECT_EQ(units, c.units) << c.what;
  }
}

TEST(JsonParse, ArraysKeepFileOrderAndKinds) {
  JsonValue value;
  ASSERT_TRUE(parseJsonText(L"[3, \"x\", null, true, false, {}, []]", value));
  ASSERT_EQ(value.items.size(), 7u);
  EXPECT_EQ(value.items[0].number, 3);
  EXPECT_EQ(value.items[1].text, L"x");
  EXPECT_EQ(value.items[2].kind, JsonValue::Kind::Null);
  EXPECT_TRUE(value.items[3].boolean);
  EXPECT_EQ(value.items[4].kind, JsonValue::Kind::Boolean);
  EXPECT_FALSE(value.items[4].boolean);
  EXPECT_TRUE(value.items[5].isObject());
  EXPECT_TRUE(value.items[6].isArray());
}

class JsonFile : public ::testing::Test {
 protected:
  std::filesystem::path write(const std::string& bytes) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                       ("stayhold_json_" + std::to_string(counter_++) + ".json");
    std::ofstream(path, std::ios::binary) << bytes;
    paths_.push_back(path);
    return path;
  }
  void TearDown() override {
    for (const auto& path : paths_)
      std::filesystem::remove(path);
  }

 private:
  std::vector<std::filesystem::path> paths_;
  int counter_ = 0;
};

TEST_F(JsonFile, DecodesUtf8WithOrWithoutByteOrderMark) {
  EXPECT_EQ(readJsonFileText(write("{\"a\":\"\xC3\xA9\"}")), L"{\"a\":\"\u00E9\"}");
  EXPECT_EQ(readJsonFileText(write("\xEF\xBB\xBF[1]")), L"[1]");
}

TEST_F(JsonFile, RefusesEmptyMissingAndInvalidFiles) {
  EXPECT_EQ(readJsonFileText(write("")), L"");
  EXPECT_EQ(readJsonFileText(write("\xEF\xBB\xBF")), L"");  // only a byte order mark
  // One invalid byte inside one string refuses the whole file.
  EXPECT_EQ(readJsonFileText(write("{\"a\":\"ok\",\"b\":\"x\xC3y\"}")), L"");
  EXPECT_EQ(readJsonFileText(write("[\"\xED\xA0\xBD\"]")), L"");  // an encoded surrogate
  EXPECT_EQ(readJsonFileText(std::filesystem::temp_directory_path() / "stayhold_missing.json"),
            L"");
}

}  // namespace
}  // namespace tessel
