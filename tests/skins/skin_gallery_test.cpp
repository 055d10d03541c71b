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
#include "tests/support/source_files.h"

using namespace tessel;

namespace {

std::string GalleryName(const SkinDefinition& skin) {
  return "tests/skins/gallery/" + Utf8FromWide(skin.id) + ".png";
}

// A gallery of few colours means surfaces failed to paint; a translucent pixel means the
// window's ground didn't cover it.
TEST(SkinGallery, EverySkinMatchesItsReviewedGallery) {
  ASSERT_GE(ShippedSkins().size(), 50u);
  for (const SkinDefinition& skin : ShippedSkins()) {
    const Image gallery = DrawSkinGallery(skin);
    std::set<uint32_t> colours;
    bool opaque = true;
    for (int32_t y = 0; y < gallery.height; ++y)
      for (int32_t x = 0; x < gallery.width; ++x) {
        const uint8_t* p = gallery.pixel(x, y);
        colours.insert(uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16);
        opaque = opaque && p[3] == 255;
      }
    EXPECT_TRUE(opaque) << Utf8FromWide(skin.id);
    EXPECT_GE(colours.size(), 8u) << Utf8FromWide(skin.id);
    EXPECT_TRUE(MatchesGoldenPng(gallery, GalleryName(skin), 1));
  }
}

TEST(SkinGallery, NoGalleryOutlivesItsSkin) {
  std::set<std::string> expected;
  for (const SkinDefinition& skin : ShippedSkins())
    expected.insert(Utf8FromWide(skin.id) + ".png");
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("tests/skins/gallery")))
    present.insert(entry.path().filename().string());
  EXPECT_EQ(present, expected);
}

}  // namespace
