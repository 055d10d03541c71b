#include "tessel/skin/skin_picker.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

std::vector<SkinDefinition> Catalogue(std::initializer_list<const wchar_t*> ids) {
  std::vector<SkinDefinition> list(ids.size());
  for (size_t i = 0; i < ids.size(); ++i)
    list[i].id = list[i].name = ids.begin()[i];
  return list;
}

// A known id in any case and with blanks, else win11-auto, else the first skin.
TEST(SkinChoice, RepairPickerIndexAndIdAtIndex) {
  const struct {
    std::vector<SkinDefinition> catalogue;
    const wchar_t* stored;
    const wchar_t* repaired;
    int index;
  } kCases[] = {
      {Catalogue({L"a", L"win11-dark", L"win11-auto"}), L" Win11-Dark ", L"win11-dark", 1},
      {Catalogue({L"a", L"win11-auto"}), L"gone", L"win11-auto", 1},
      {Catalogue({L"a", L"b"}), L"gone", L"a", 0},
      {{}, L"anything", L"win11-auto", 0},
      {Catalogue({L"x", L"WIN11-AUTO"}), L"", L"WIN11-AUTO", 1}};
  for (const auto& c : kCases) {
    EXPECT_EQ(repairedSkinId(c.catalogue, c.stored), c.repaired) << c.stored;
    EXPECT_EQ(selectedSkinIndex(c.catalogue, c.stored), c.index) << c.stored;
  }
  const std::vector<SkinDefinition> catalogue = Catalogue({L"a", L"Win11-Auto", L"c"});
  EXPECT_EQ(skinIdAtIndex(catalogue, 2), L"c");
  EXPECT_EQ(skinIdAtIndex(catalogue, 3), L"Win11-Auto");
  EXPECT_EQ(skinIdAtIndex(catalogue, -1), L"Win11-Auto");
  EXPECT_EQ(skinIdAtIndex(Catalogue({L"a"}), 5), L"a");
  EXPECT_EQ(skinIdAtIndex({}, 0), L"win11-auto");
}

}  // namespace
}  // namespace tessel
