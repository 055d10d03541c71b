#include "tessel/skin/app_skin_catalogue.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessel {
namespace {

std::vector<SkinDefinition> Catalogue(std::initializer_list<const wchar_t*> ids) {
  std::vector<SkinDefinition> list;
  for (const wchar_t* id : ids) {
    SkinDefinition skin;
    skin.id = id;
    skin.name = id;
    list.push_back(skin);
  }
  return list;
}

struct RepairCase {
  const char* what;
  std::vector<SkinDefinition> catalogue;
  const wchar_t* stored;
  const wchar_t* repaired;
  int index;
};

TEST(SkinChoice, RepairAndPickerIndex) {
  const RepairCase cases[] = {
      {"known id takes the catalogue's spelling", Catalogue({L"a", L"win11-dark", L"win11-auto"}),
       L" Win11-Dark ", L"win11-dark", 1},
      {"unknown id", Catalogue({L"a", L"win11-auto"}), L"gone", L"win11-auto", 1},
      {"unknown id without win11-auto", Catalogue({L"a", L"b"}), L"gone", L"a", 0},
      {"empty catalogue", {}, L"anything", L"win11-auto", 0},
      {"empty id", Catalogue({L"x", L"WIN11-AUTO"}), L"", L"WIN11-AUTO", 1},
  };
  for (const RepairCase& c : cases) {
    EXPECT_EQ(repairedSkinId(c.catalogue, c.stored), c.repaired) << c.what;
    EXPECT_EQ(selectedSkinIndex(c.catalogue, c.stored), c.index) << c.what;
  }
}

TEST(SkinChoice, IdAtIndex) {
  const std::vector<SkinDefinition> catalogue = Catalogue({L"a", L"Win11-Auto", L"c"});
  EXPECT_EQ(skinIdAtIndex(catalogue, 2), L"c");
  EXPECT_EQ(skinIdAtIndex(catalogue, 3), L"Win11-Auto");
  EXPECT_EQ(skinIdAtIndex(catalogue, -1), L"Win11-Auto");
  EXPECT_EQ(skinIdAtIndex(Catalogue({L"a"}), 5), L"a");
  EXPECT_EQ(skinIdAtIndex({}, 0), L"win11-auto");
}

class ThreePlaces : public ::testing::Test {
 protected:
  void SetUp() override {
    root_ = std::filesystem::temp_directory_path() /
            ("stayhold_places_" +
             std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(root_);
    for (const char* folder : {"cache", "installed", "beside"})
      std::filesystem::create_directories(root_ / folder);
  }
  void TearDown() override { std::filesystem::remove_all(root_); }
  void write(const char* folder, const char* file, const std::string& json) {
    std::ofstream(root_ / folder / file, std::ios::binary) << json;
  }
  std::vector<std::wstring> assemble() {
    std::vector<std::wstring> ids;
    for (const SkinDefinition& skin :
         assembleSkinCatalogue((root_ / "cache").wstring(), (root_ / "installed").wstring(),
                               loadSkinFolder((root_ / "beside").wstring()))) {
      ids.push_back(skin.id + L"=" + skin.name);
    }
    return ids;
  }
  std::filesystem::path root_;
};

TEST_F(ThreePlaces, LaterPlacesWinInPlace) {
  write("cache", "00-default.json",
        R"({"skins":[{"id":"win11-auto","name":"Embedded"},{"id":"classic","name":"Classic"}]})");
  write("installed", "00-default.json", R"([{"id":"WIN11-AUTO","name":"Installed"}])");
  write("beside", "90-mine.json",
        R"([{"id":"classic","name":"Mine"},{"id":"extra","name":"Extra"}])");
  EXPECT_EQ(assemble(),
            (std::vector<std::wstring>{L"WIN11-AUTO=Installed", L"classic=Mine", L"extra=Extra"}));
}

TEST_F(ThreePlaces, MissingPlacesAreEmpty) {
  write("beside", "a.json", R"({"id":"only","name":"Only"})");
  EXPECT_EQ(assembleSkinCatalogue(L"", (root_ / "none").wstring(),
                                  loadSkinFolder((root_ / "beside").wstring()))
                .size(),
            1u);
  EXPECT_TRUE(assembleSkinCatalogue(L"", L"", {}).empty());
}

}  // namespace
}  // namespace tessel
