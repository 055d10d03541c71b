#include "tessel/skin/skin_picker.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// The stored id's place, else win11-auto's, else the first skin's; an index out of range picks
// the same way. (The repair of the stored id itself: guard/config_store_test.cpp.)
TEST(SkinChoice, PickerIndexAndIdAtIndex) {
  std::vector<SkinDefinition> catalogue;
  for (const wchar_t* id : {L"a", L"b", L"Win11-Auto"})
    catalogue.emplace_back().id = id;
  EXPECT_EQ(selectedSkinIndex(catalogue, L" B "), 1);
  EXPECT_EQ(selectedSkinIndex(catalogue, L"gone"), 2);
  EXPECT_EQ(skinIdAtIndex(catalogue, 1), L"b");
  for (int outside : {-1, 3})
    EXPECT_EQ(skinIdAtIndex(catalogue, outside), L"Win11-Auto");
  catalogue.pop_back();
  EXPECT_EQ(selectedSkinIndex(catalogue, L"gone"), 0);
  EXPECT_EQ(skinIdAtIndex(catalogue, 2), L"a");
  EXPECT_EQ(skinIdAtIndex({}, 0), L"win11-auto");
  EXPECT_EQ(repairedSkinId(catalogue, L"gone"), L"a");
}

}  // namespace
}  // namespace tessel
