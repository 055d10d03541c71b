#include "update/manifest_reader.h"

#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "tests/support/fake_platform.h"

TEST(ReadManifestString, TextSearchesWithTheirEffects) {
  const std::tuple<const char*, const wchar_t*, const wchar_t*, std::optional<std::wstring>>
      cases[] = {
          {"first occurrence wins", L"{\"a\":\"1\",\"a\":\"2\"}", L"a", L"1"},
          {"escapes", L"{\"c\":\"x\\ny\\tz\\r\\\"q\\\\\\/\"}", L"c", L"x\ny\tz\r\"q\\/"},
          {"\\u stays literal", L"{\"c\":\"\\u0041\"}", L"c", L"u0041"},
          {"no colon after the key", L"{\"version\" \"1\"}", L"version", std::nullopt},
          {"unterminated value", L"{\"version\":\"1.2", L"version", std::nullopt},
          {"a number runs on to the next quote", L"{\"v\": 1, \"x\": \"y\"}", L"v", L"x"},
          {"key only as a substring does not count", L"{\"my_v\":\"9\"}", L"v", std::nullopt}};
  for (const auto& [what, text, key, value] : cases)
    EXPECT_EQ(ReadManifestString(text, key), value) << what;
}

TEST(ReadManifestArray, BracketDepthIgnoringStringsAndSplitIntoTopLevelObjects) {
  EXPECT_EQ(ReadManifestArray(L"{\"history\": [1, [2], \"]\"] , \"x\":1}", L"history"),
            L"[1, [2], \"]\"]");
  EXPECT_EQ(ReadManifestArray(L"{\"history\": [1, 2", L"history"), std::nullopt);
  // The first '[' behind the colon counts even inside a string value: a text search.
  EXPECT_EQ(ReadManifestArray(L"{\"history\": \"[a]\"}", L"history"), L"[a]");
  EXPECT_EQ(SplitManifestObjects(L"[{\"a\":\"}\"}, 5, {\"b\":{\"c\":1}}, {]"),
            (std::vector<std::wstring>{L"{\"a\":\"}\"}", L"{\"b\":{\"c\":1}}"}));
}

TEST(ParseUpdateManifest, ReadsAllFields) {
  const UpdateManifest m = ParseUpdateManifest(
      L"{\"version\":\"1.0.120\",\"setup_url\":\"https://h/s.exe\",\"sha256\":\"AB\","
      L"\"changes\":\"n\",\"changes_cs\":\"c\",\"changes_en\":\"e\","
      L"\"history\":[{\"version\":\"1.0.115\",\"changes\":\"old\"},{\"changes\":\"no version\"}]}",
      L"https://example.invalid/releases");
  EXPECT_EQ(m.version, L"1.0.120");
  EXPECT_EQ(m.release_url, L"https://example.invalid/releases");  // absent: the given page
  EXPECT_EQ(m.setup_url + m.sha256, L"https://h/s.exeAB");
  ASSERT_EQ(m.history.size(), 2u);  // the entry without a version dropped, the latest appended
  EXPECT_EQ(m.history[0].version, L"1.0.115");
  EXPECT_EQ(m.history[1].version, L"1.0.120");
  EXPECT_EQ(m.history[1].changes_en, L"e");
}

TEST(ParseUpdateManifest, HistoryEffects) {
  const std::tuple<const char*, const wchar_t*, const wchar_t*, size_t> cases[] = {
      {"history before the version: the first entry's version wins",
       L"{\"history\":[{\"version\":\"1.0.200\"}],\"version\":\"1.0.300\"}", L"1.0.200", 1},
      {"versions is the older key", L"{\"version\":\"2\",\"versions\":[{\"version\":\"1.5\"}]}",
       L"2", 1},
      {"history wins over versions",
       L"{\"version\":\"2\",\"versions\":[{\"version\":\"1.5\"}],\"history\":[]}", L"2", 0},
      {"latest already listed (1.0 equals 1.0.0)",
       L"{\"version\":\"1.0\",\"changes\":\"x\",\"history\":[{\"version\":\"1.0.0\"}]}", L"1.0", 1},
      {"latest without a note is not appended", L"{\"version\":\"3\"}", L"3", 0},
      {"no version, nothing appended", L"{\"changes\":\"x\"}", L"", 0}};
  for (const auto& [what, text, version, history] : cases) {
    const UpdateManifest m = ParseUpdateManifest(text, L"");
    EXPECT_EQ(m.version, version) << what;
    EXPECT_EQ(m.history.size(), history) << what;
  }
}

TEST(LocalizedChangeNote, CzechEnglishThenNeutral) {
  // Language, the neutral, Czech and English notes, and the one shown.
  const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*>
      cases[] = {{L"cs-CZ", L"n", L"c", L"e", L"c"},
                 {L"cs-CZ", L"n", L"", L"e", L"n"},
                 {L"en-GB", L"n", L"c", L"e", L"e"},
                 {L"de-DE", L"", L"c", L"", L"c"}};
  for (const auto& [language, neutral, cs, en, shown] : cases) {
    AppConfig().language = language;
    EXPECT_EQ(LocalizedChangeNote(neutral, cs, en), shown)
        << language << " " << neutral << cs << en;
  }
}

TEST(BuildChangeNotesSinceInstalled, NewestFirstBetweenInstalledAndLatest) {
  UpdateManifest m;
  m.version = L"1.0.130";
  m.changes = L"top";
  m.history = {{L"1.0.100", L"too old", L"", L""}, {L"1.0.112", L"installed", L"", L""},
               {L"1.0.120", L"middle", L"", L""},  {L"1.0.140", L"beyond latest", L"", L""},
               {L"1.0.130", L"latest", L"", L""},  {L"1.0.125", L"", L"", L""}};
  EXPECT_EQ(BuildChangeNotesSinceInstalled(m), L"1.0.130\nlatest\n\n1.0.120\nmiddle");
  m.history.clear();
  EXPECT_EQ(BuildChangeNotesSinceInstalled(m), L"top");
}
