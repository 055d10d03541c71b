#include "guard/config_store.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "guard/paths.h"
#include "tests/support/fake_platform.h"
#include "tests/support/memory_profile_store.h"

namespace {

using File = MemoryProfileStore::File;

std::wstring Path() {
  return ConfigFilePath();
}

// The stored value, or "?" for a missing key.
std::wstring ValueOr(const wchar_t* section, const wchar_t* key) {
  const std::wstring* value = MemoryStore().Find(Path(), section, key);
  return value ? *value : L"?";
}

std::vector<tessel::SkinDefinition> Skins(std::initializer_list<const wchar_t*> ids) {
  std::vector<tessel::SkinDefinition> skins(ids.size());
  for (size_t i = 0; i < ids.size(); ++i)
    skins[i].id = ids.begin()[i];
  return skins;
}

ControlUiState Control(const wchar_t* id) {
  ControlUiState control;
  control.id = id;
  return control;
}

bool operator==(const RestartWindow& a, const RestartWindow& b) {
  return a.enabled == b.enabled && a.day == b.day && a.from_minute == b.from_minute &&
         a.to_minute == b.to_minute;
}

TEST(ParseWindowValue, ScansFourNumbersAndClamps) {
  const RestartWindow fallback{true, 0, 780, 1020};
  const std::pair<const wchar_t*, RestartWindow> cases[] = {
      {L"0,6,1380,60", {false, 6, 1380, 60}},
      {L"7,9,9999,-5", {true, 6, 1439, 0}},
      {L"-1,-3,-10,2000", {true, 0, 0, 1439}},
      {L" 1, 2, 3, 4", {true, 2, 3, 4}},  // %d skips white space before a number
      {L"1 ,2,3,4", fallback},            // but a comma must follow at once
      {L"1,2,3", fallback},
      {L"1,2,x,4", fallback},
      {L"0,1,99999999999999,5", {false, 1, 1439, 5}}};
  for (const auto& [text, window] : cases)
    EXPECT_TRUE(ParseWindowValue(text) == window) << text;
}

TEST(NormalizeUiPerformanceProfile, MapsTheSpellingsAfterTrimmingAndLowering) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L" Best_Graphics ", L"best-graphics"}, {L"", L"balanced"}, {L"best graphics", L"balanced"}};
  for (const auto& [in, out] : cases)
    EXPECT_EQ(NormalizeUiPerformanceProfile(in), out) << in;
}

TEST(NormalizeConfig, RepairsEveryField) {
  StayholdConfig config;
  config.language = L"de_at";
  config.skin_id = L"  ";
  config.ui_performance_profile = L"performance";
  config.profiles = {BehaviorProfile{L"  Work  ", {{true, 9, -4, 5000}, {false, 2, 60, 120}}},
                     BehaviorProfile{L"", {}}};
  config.active_profile_index = 5;
  const StayholdConfig normal = NormalizeConfig(config, {});
  EXPECT_EQ(normal.language, L"de-DE");
  EXPECT_EQ(normal.skin_id, L"win11-auto");
  EXPECT_EQ(normal.ui_performance_profile, L"maximum-performance");
  EXPECT_EQ(normal.profiles[0].name, L"Work");
  EXPECT_TRUE(normal.profiles[0].windows[0] == (RestartWindow{true, 6, 0, 1439}));
  EXPECT_TRUE(normal.profiles[0].windows[1] == (RestartWindow{false, 2, 60, 120}));
  EXPECT_EQ(normal.active_profile_index, 1);
  // The save writes a repaired copy and leaves its argument as it was.
  ASSERT_TRUE(SaveConfig(config));
  EXPECT_EQ(ValueOr(L"profile0", L"window0"), L"1,6,0,1439");
  EXPECT_EQ(config.active_profile_index, 5);
  EXPECT_FALSE(MemoryStore().HasSection(Path(), L"ui_state.settings"));
  config.active_profile_index = -2;
  EXPECT_EQ(NormalizeConfig(config, {}).active_profile_index, 0);
}

TEST(NormalizeConfig, UiStateKeepsOnlyTheTableAndItsScrollBar) {
  StayholdConfig config;
  config.has_settings_ui_state = true;
  config.settings_ui_state.minimized = true;
  config.settings_ui_state.show_command = 2;  // minimized comes back as normal
  config.settings_ui_state.controls = {Control(L"settings-window-table"),
                                       Control(L"settings-window-name"),
                                       Control(L"settings-window-scroll")};
  const WindowUiState state = NormalizeConfig(config, {}).settings_ui_state;
  EXPECT_EQ(state.show_command, 1);
  EXPECT_FALSE(state.minimized);
  ASSERT_EQ(state.controls.size(), 2u);
  EXPECT_EQ(state.controls[1].id, L"settings-window-scroll");
  EXPECT_TRUE(state.controls[0].restored_bounds && state.controls[0].restored_values);
}

TEST(LoadConfig, FirstStartCreatesTheFile) {
  const StayholdConfig config = LoadConfig();
  EXPECT_TRUE(config.guard_enabled);
  ASSERT_EQ(config.profiles.size(), 1u);
  // An existing file is not rewritten, even with a negative profile count.
  for (const wchar_t* count : {L"1", L"-1"}) {
    MemoryStore().Put(Path(), File{{L"profiles", {{L"count", count}}}});
    MemoryStore().writes = 0;
    LoadConfig();
    EXPECT_EQ(MemoryStore().writes, 0) << count;
  }
}

TEST(LoadConfig, NewerSwitchWinsOverTheOlderOne) {
  const std::tuple<const wchar_t*, const wchar_t*, bool> cases[] = {
      {nullptr, nullptr, true}, {L"0", nullptr, false}, {L"0", L"1", true},
      {L"1", L"0", false},      {nullptr, L"x", false}, {L"-3", nullptr, true}};
  for (const auto& [legacy, current, enabled] : cases) {
    ResetFakePlatform();
    MemoryProfileStore::Section general;
    if (legacy) general.push_back({L"manual_blocking_enabled", legacy});
    if (current) general.push_back({L"guard_enabled", current});
    MemoryStore().Put(Path(), File{{L"general", general}, {L"profiles", {{L"count", L"1"}}}});
    EXPECT_EQ(LoadConfig().guard_enabled, enabled)
        << (legacy ? "legacy " : "") << (current ? "current" : "");
  }
}

TEST(LoadConfig, TheStoredSkinIsRepairedAmongTheGivenSkinsAndSavedSo) {
  MemoryStore().Put(Path(), File{{L"general", {{L"skin_id", L"CUSTOM-skin"}}}});
  EXPECT_EQ(LoadConfig(MemoryStore(), Skins({L"classic", L"custom-skin"})).skin_id, L"custom-skin");
  // The file had no profiles, so the load rewrote it with the repaired id.
  EXPECT_EQ(ValueOr(L"general", L"skin_id"), L"custom-skin");
  StayholdConfig config;
  config.skin_id = L"custom-skin";
  ASSERT_TRUE(SaveConfig(MemoryStore(), config, Skins({L"classic"})));
  EXPECT_EQ(ValueOr(L"general", L"skin_id"), L"classic");
}

TEST(LoadConfig, WindowValuesBlankAreDroppedBadAreDefaulted) {
  MemoryStore().Put(Path(), File{{L"profiles", {{L"count", L"1"}}},
                                 {L"profile0",
                                  {{L"name", L" " + std::wstring(5000, L'n')},
                                   {L"windows_count", L"4"},
                                   {L"window0", L"garbage"},
                                   {L"window1", L"   "},
                                   {L"window2", L"7,9,9999,-5"}}}});
  const StayholdConfig config = LoadConfig();
  ASSERT_EQ(config.profiles.size(), 1u);
  EXPECT_EQ(config.profiles[0].name, std::wstring(4094, L'n'));  // cut to 4095, then trimmed
  ASSERT_EQ(config.profiles[0].windows.size(), 2u);              // window1 blank, window3 missing
  EXPECT_TRUE(config.profiles[0].windows[0] == (RestartWindow{true, 0, 780, 1020}));
  EXPECT_TRUE(config.profiles[0].windows[1] == (RestartWindow{true, 6, 1439, 0}));
}

TEST(LoadConfig, DamagedCountsAndIndices) {
  // The profiles read, the active index and the first profile's windows from the file.
  const auto check = [](const char* what, const File& file, size_t profiles, int active,
                        size_t first_windows) {
    ResetFakePlatform();
    MemoryStore().Put(Path(), file);
    const StayholdConfig config = LoadConfig();
    EXPECT_EQ(config.profiles.size(), profiles) << what;
    EXPECT_EQ(config.active_profile_index, active) << what;
    ASSERT_FALSE(config.profiles.empty()) << what;
    EXPECT_EQ(config.profiles[0].windows.size(), first_windows) << what;
  };
  check("count beyond the sections gives unnamed empty profiles",
        {{L"profiles", {{L"count", L"3"}, {L"active_index", L"2"}}},
         {L"profile0", {{L"name", L"A"}, {L"windows_count", L"1"}, {L"window0", L"1,1,1,2"}}}},
        3, 2, 1);
  check("negative profile count takes the legacy branch",
        {{L"profiles", {{L"count", L"-2"}}},
         {L"windows", {{L"count", L"1"}, {L"item0", L"0,3,0,60"}}}},
        1, 0, 1);
}

TEST(SaveConfig, FailsWithoutAFileOrAFolderForIt) {
  Fake().directories.insert(Path());  // a folder in the place of the file
  const StayholdConfig config = LoadConfig();
  EXPECT_TRUE(config.guard_enabled && config.profiles.size() == 1);
  EXPECT_FALSE(SaveConfig(config));
  ResetFakePlatform();
  Fake().directories_fail = true;
  EXPECT_FALSE(SaveConfig(StayholdConfig{}));
  EXPECT_EQ(MemoryStore().writes, 0);
}

TEST(SaveConfig, ShrinkingRemovesStaleSectionsAndKeys) {
  StayholdConfig config;
  const BehaviorProfile two{L"P", {{true, 0, 60, 120}, {true, 1, 60, 120}}};
  config.profiles = {two, two};
  ASSERT_TRUE(SaveConfig(config));
  MemoryStore().WriteString(Path(), L"profile0", L"blocking_enabled", L"1");
  config.profiles.resize(1);
  config.profiles[0].windows.resize(1);
  ASSERT_TRUE(SaveConfig(config));
  EXPECT_EQ(ValueOr(L"profiles", L"count") + ValueOr(L"profile0", L"windows_count"), L"11");
  EXPECT_FALSE(MemoryStore().HasSection(Path(), L"profile1"));
  EXPECT_EQ(ValueOr(L"profile0", L"window0"), L"1,0,60,120");
  for (const wchar_t* gone : {L"window1", L"blocking_enabled"})
    EXPECT_EQ(ValueOr(L"profile0", gone), L"?") << gone;
}

TEST(SaveConfig, RoundTripKeepsEverythingAndReplacesOldControlSections) {
  MemoryStore().Put(Path(), File{{L"ui_state.settings", {{L"control_count", L"2"}}},
                                 {L"ui_state.settings.control1", {{L"id", L"b"}}}});
  StayholdConfig config;
  config.language = L"ja-JP";
  config.ui_performance_profile = L"best-graphics";
  config.active_profile_index = 1;
  config.profiles = {BehaviorProfile{L"P", {}}, BehaviorProfile{L"Q", {}}};
  config.has_settings_ui_state = true;
  config.settings_ui_state = WindowUiState{-20, 30, 900, 640, 3, true, false, {}};
  config.settings_ui_state.controls.push_back(ControlUiState{
      L"settings-window-table", 1, 2, 300, 200, L"table", true, true, {L"120", L"80", L"80"}});
  ASSERT_TRUE(SaveConfig(config));
  const StayholdConfig loaded = LoadConfig();
  EXPECT_EQ(loaded.language + loaded.ui_performance_profile, L"ja-JPbest-graphics");
  EXPECT_EQ(loaded.active_profile_index, 1);
  const WindowUiState& state = loaded.settings_ui_state;
  ASSERT_TRUE(loaded.has_settings_ui_state && state.controls.size() == 1);
  EXPECT_EQ(state.x + state.width + state.show_command, -20 + 900 + 3);
  EXPECT_TRUE(state.maximized);
  EXPECT_EQ(state.controls[0].values, (std::vector<std::wstring>{L"120", L"80", L"80"}));
  EXPECT_EQ(state.controls[0].style_id, L"table");
  EXPECT_FALSE(MemoryStore().HasSection(Path(), L"ui_state.settings.control1"));
}

TEST(UiState, ReadRules) {
  // Whether a state is read and its controls, from the window's and the controls' sections.
  const auto check = [](const char* what, bool present, size_t kept,
                        const MemoryProfileStore::Section& window, const File& controls) {
    ResetFakePlatform();
    File file{{L"ui_state.settings", window}};
    file.insert(file.end(), controls.begin(), controls.end());
    MemoryStore().Put(Path(), file);
    const std::optional<WindowUiState> state = ReadUiState(MemoryStore(), Path());
    EXPECT_EQ(state.has_value(), present) << what;
    EXPECT_EQ(state ? state->controls.size() : 0u, kept) << what;
  };
  check("no schema means no state", false, 0, {{L"window_width", L"800"}}, {});
  check("a size makes a state", true, 0, {{L"schema_version", L"1"}, {L"window_height", L"5"}}, {});
  check("nothing positive, no control", false, 0,
        {{L"schema_version", L"1"}, {L"window_width", L"-5"}}, {});
  check("a kept control alone makes a state; others and missing sections are dropped", true, 1,
        {{L"schema_version", L"1"}, {L"control_count", L"4"}},
        {{L"ui_state.settings.control0", {{L"id", L"settings-window-name"}}},
         {L"ui_state.settings.control1", {{L"id", L"settings-window-scroll"}}}});
}

// Random damage of every kind must still load into a configuration the guard can rely on.
TEST(LoadConfig, RandomlyDamagedFilesAlwaysSatisfyTheInvariants) {
  std::mt19937 random(20261122);
  // Words between '|', empty ones kept.
  const auto words = [](const wchar_t* text) {
    std::vector<std::wstring> list;
    std::wistringstream in(text);
    for (std::wstring word; std::getline(in, word, L'|');)
      list.push_back(word);
    return list;
  };
  const std::vector<std::wstring> sections =
      words(L"general|profiles|windows|profile0|profile1|ui_state.settings");
  const std::vector<std::wstring> keys = words(
      L"guard_enabled|manual_blocking_enabled|language|skin_id|count|active_index|name|"
      L"windows_count|window0|window1|item0|schema_version|window_width|control_count|show_"
      L"command");
  const std::vector<std::wstring> values = words(
      L"|0|1|-1|3|99999999999|-2147483648|garbage|1,2,3,4|7,9,9999,-5|1,-8,,|  |auto|sr_latn|"
      L"\x0416\x05D0|2147483647");
  const auto pick = [&](const auto& list) { return list[random() % list.size()]; };
  for (int round = 0; round < 10000; ++round) {
    ResetFakePlatform();
    File file(random() % 6);
    for (auto& [name, section] : file) {
      section.resize(random() % 8);
      for (auto& [key, value] : section) {
        key = pick(keys);
        value = pick(values);
      }
      name = pick(sections);
    }
    MemoryStore().Put(Path(), file);
    const StayholdConfig config = LoadConfig();
    ASSERT_FALSE(config.profiles.empty()) << round;
    ASSERT_GE(config.active_profile_index, 0) << round;
    ASSERT_LT(config.active_profile_index, static_cast<int>(config.profiles.size())) << round;
    for (const BehaviorProfile& profile : config.profiles) {
      for (const RestartWindow& w : profile.windows) {
        ASSERT_TRUE(w.day >= 0 && w.day <= 6) << round;
        ASSERT_TRUE(w.from_minute >= 0 && w.from_minute <= 1439) << round;
        ASSERT_TRUE(w.to_minute >= 0 && w.to_minute <= 1439) << round;
      }
    }
    ASSERT_TRUE(config.language == L"auto" || config.language.find(L'-') != std::wstring::npos)
        << round;
    ASSERT_FALSE(config.settings_ui_state.minimized) << round;
  }
}

}  // namespace
