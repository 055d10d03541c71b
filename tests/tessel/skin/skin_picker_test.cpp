#include "tessel/skin/skin_picker.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tessel
