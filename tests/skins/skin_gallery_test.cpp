// Each shipped skin's gallery against its reviewed PNG (tests/skins/gallery/<id>.png). After a
// deliberate change, regenerate from the project root and look at every changed file:
//   STAYHOLD_REGENERATE_GOLDEN=1 build/native/tests/stayhold_tests --gtest_filter='SkinGallery*'
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "base/wide_text.h"
#include "tests/skins/skin_gallery.h"
#include "tests/support/golden_image.h"
#include "tests/support/shipped_skins.h"

namespace {

// No gallery outlives its skin; a skin that goes missing leaves its gallery behind.
TEST(SkinGallery, EverySkinMatchesItsReviewedGallery) {
  ASSERT_GE(ShippedSkins().size(), 50u);
  std::set<std::string> expected, present;
  for (const tessel::SkinDefinition& skin : ShippedSkins()) {
    const std::string id = Utf8FromWide(skin.id);
    expected.insert(id + ".png");
    EXPECT_TRUE(MatchesGoldenPng(DrawSkinGallery(skin), "tests/skins/gallery/" + id + ".png", 1));
  }
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("tests/skins/gallery")))
    present.insert(entry.path().filename().string());
  EXPECT_EQ(present, expected);
}

}  // namespace
