#include "tessel/skin/skin_catalogue.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessel {
namespace {

class SkinFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        std::filesystem::temp_directory_path() /
        ("stayhold_skins_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
         "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  static std::string skin(const std::string& id, const std::string& name) {
    return "{\"id\":\"" + id + "\",\"name\":\"" + name + "\"}";
  }
  std::vector<std::wstring> names() {
    std::vector<std::wstring> result;
    for (const SkinDefinition& s : loadSkinFolder(folder_.wstring()))
      result.push_back(s.id + L"=" + s.name);
    return result;
  }

  std::filesystem::path folder_;
};

TEST_F(SkinFolder, FilesInOrderOfTheirLowerCasedNames) {
  write("90-my-skin.json", skin("mine", "Mine"));
  write("00-base.json", std::string("[") + skin("a", "A") + "," + skin("b", "B") + "]");
  write("SKIN.JSON", skin("upper", "Upper"));
  write("skin.json.bak", skin("backup", "Backup"));
  write("notes.txt", skin("text", "Text"));
  std::filesystem::create_directories(folder_ / "sub");
  std::ofstream(folder_ / "sub" / "05-sub.json") << skin("sub", "Sub");
  EXPECT_EQ(names(), (std::vector<std::wstring>{L"a=A", L"b=B", L"mine=Mine", L"upper=Upper"}));
}

TEST_F(SkinFolder, LaterFileWinsAtTheEarlierPlace) {
  write("10-first.json", std::string("[") + skin("one", "First") + "," + skin("two", "Two") + "]");
  write("20-second.json", skin("ONE", "Second"));
  EXPECT_EQ(names(), (std::vector<std::wstring>{L"ONE=Second", L"two=Two"}));
}

TEST_F(SkinFolder, SameIdTwiceInOneFile) {
  write("a.json",
        std::string("[") + skin("x", "1") + "," + skin("y", "2") + "," + skin("X", "3") + "]");
  EXPECT_EQ(names(), (std::vector<std::wstring>{L"X=3", L"y=2"}));
}

TEST_F(SkinFolder, BadFilesAndBadSkinsAreSkipped) {
  write("a.json", std::string("{\"skins\":[") + skin("good", "Good") + ",{\"id\":\"bad\"}]}");
  write("b.json", std::string("[") + skin("trailing", "T") + ",]");
  write("c.json", "[{\"id\":\"x\",\"name\":\"\xC3\"}]");
  write("d.json", "");
  write("e.json", std::string("\xEF\xBB\xBF") + skin("bom", "Bom"));
  EXPECT_EQ(names(), (std::vector<std::wstring>{L"good=Good", L"bom=Bom"}));
}

TEST_F(SkinFolder, RecordsRememberTheirFolder) {
  write("a.json", skin("a", "A"));
  const std::vector<SkinDefinition> skins = loadSkinFolder(folder_.wstring());
  ASSERT_EQ(skins.size(), 1u);
  EXPECT_EQ(std::filesystem::path(skins[0].sourceDirectory), folder_);
}

TEST_F(SkinFolder, FoldersAssembleWeakestFirst) {
  for (const char* place : {"cache", "installed", "beside"})
    std::filesystem::create_directories(folder_ / place);
  write("cache/00-default.json",
        R"({"skins":[{"id":"win11-auto","name":"Embedded"},{"id":"classic","name":"Classic"}]})");
  write("installed/00-default.json", R"([{"id":"WIN11-AUTO","name":"Installed"}])");
  write("beside/90-mine.json", R"([{"id":"classic","name":"Mine"},{"id":"extra","name":"Extra"}])");
  std::vector<std::wstring> ids;
  for (const SkinDefinition& s :
       assembleSkinCatalogue({(folder_ / "cache").wstring(), (folder_ / "installed").wstring(),
                              (folder_ / "beside").wstring()}))
    ids.push_back(s.id + L"=" + s.name);
  EXPECT_EQ(ids,
            (std::vector<std::wstring>{L"WIN11-AUTO=Installed", L"classic=Mine", L"extra=Extra"}));

  // Missing and empty folders add nothing.
  EXPECT_EQ(
      assembleSkinCatalogue({L"", (folder_ / "none").wstring(), (folder_ / "installed").wstring()})
          .size(),
      1u);
  EXPECT_TRUE(assembleSkinCatalogue({L"", (folder_ / "none").wstring()}).empty());
}

TEST_F(SkinFolder, MissingOrEmptyFolder) {
  EXPECT_TRUE(loadSkinFolder(L"").empty());
  EXPECT_TRUE(loadSkinFolder((folder_ / "missing").wstring()).empty());
  write("file.json", skin("a", "A"));
  EXPECT_TRUE(loadSkinFolder((folder_ / "file.json").wstring()).empty());
}

std::vector<SkinDefinition> Catalogue(std::initializer_list<const wchar_t*> ids) {
  std::vector<SkinDefinition> list;
  for (const wchar_t* id : ids) {
    SkinDefinition skin;
    skin.id = id;
    skin.name = std::wstring(L"name of ") + id;
    list.push_back(skin);
  }
  return list;
}

TEST(MergeSkins, ReplacesInPlaceKeepingTheNewSpelling) {
  std::vector<SkinDefinition> target = Catalogue({L"quill-forge", L"win11-auto", L"classic"});
  std::vector<SkinDefinition> installed = Catalogue({L"WIN11-AUTO", L"extra"});
  installed[0].name = L"Installed";
  mergeSkins(target, installed);
  ASSERT_EQ(target.size(), 4u);
  EXPECT_EQ(target[1].id, L"WIN11-AUTO");
  EXPECT_EQ(target[1].name, L"Installed");
  EXPECT_EQ(target[3].id, L"extra");
}

struct ResolveCase {
  const char* what;
  std::vector<SkinDefinition> catalogue;
  const wchar_t* id;
  const wchar_t* expected;  // null: none
};

TEST(FindSkinOrDefault, ResolutionOrder) {
  const ResolveCase cases[] = {
      {"trimmed, without case", Catalogue({L"a", L"win11-dark", L"win11-auto"}), L" Win11-Dark ",
       L"win11-dark"},
      {"unknown goes to win11-auto", Catalogue({L"a", L"win11-auto"}), L"gone", L"win11-auto"},
      {"empty goes to win11-auto", Catalogue({L"a", L"win11-auto"}), L"  ", L"win11-auto"},
      {"without win11-auto the first", Catalogue({L"a", L"b"}), L"gone", L"a"},
      {"empty catalogue", {}, L"a", nullptr},
  };
  for (const ResolveCase& c : cases) {
    const SkinDefinition* skin = findSkinOrDefault(c.catalogue, c.id);
    if (c.expected == nullptr) {
      EXPECT_EQ(skin, nullptr) << c.what;
    } else {
      ASSERT_NE(skin, nullptr) << c.what;
      EXPECT_EQ(skin->id, c.expected) << c.what;
    }
  }
}

TEST(FallbackTheme, ControlPressedIsTheAccentAndBorderTheFrame) {
  const Theme theme = fallbackTheme();
  EXPECT_EQ(theme.controlPressed, theme.accent);
  EXPECT_EQ(theme.border, theme.frame);
  EXPECT_EQ(theme.accent, rgbColor(0xFF, 0x9F, 0x1C));
  EXPECT_EQ(theme.uiFont.color, rgbColor(0xE7, 0xEE, 0xF6));
  EXPECT_EQ(theme.monoFont.disabledColor, rgbColor(0x65, 0x71, 0x7D));
}

}  // namespace
}  // namespace tessel
