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

using namespace tessel;

namespace {

// A gallery of few colours means surfaces failed to paint; a translucent pixel means the
// window's ground didn't cover it. No gallery outlives its skin.
TEST(SkinGallery, EverySkinMatchesItsReviewedGallery) {
  ASSERT_GE(ShippedSkins().size(), 50u);
  std::set<std::string> expected, present;
  for (const SkinDefinition& skin : ShippedSkins()) {
    const std::string id = Utf8FromWide(skin.id);
    expected.insert(id + ".png");
    const Image gallery = DrawSkinGallery(skin);
    std::set<uint32_t> colours;
    bool opaque = true;
    for (size_t i = 0; i < gallery.pixels->size(); i += 4) {
      const uint8_t* p = gallery.pixels->data() + i;
      colours.insert(uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16);
      opaque = opaque && p[3] == 255;
    }
    EXPECT_TRUE(opaque) << id;
    EXPECT_GE(colours.size(), 8u) << id;
    EXPECT_TRUE(MatchesGoldenPng(gallery, "tests/skins/gallery/" + id + ".png", 1));
  }
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("tests/skins/gallery")))
    present.insert(entry.path().filename().string());
  EXPECT_EQ(present, expected);
}

}  // namespace
