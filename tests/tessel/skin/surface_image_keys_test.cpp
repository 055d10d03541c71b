// Surface keys that load image files. Native only: the fixtures are PAM files, which the native
// loader reads and the Windows one doesn't.
#include <string>

#include <gtest/gtest.h>

#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

const std::wstring kFixtures = SourceFile("tests/tessel/paint/fixtures").wstring();

SurfaceStyle parse(const std::wstring& json, SurfaceStyle surface = SurfaceStyle(),
                   const std::wstring& folder = kFixtures) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, folder};
  parseSurfaceStyle(StyleReader(table, L"", context), surface);
  return surface;
}

Size sizeOf(const Image& image) {
  return {image.width, image.height};
}

TEST(SurfaceImageKeys, EveryImageKeyLoadsAndSwitchesToTheBitmapOutline) {
  for (const wchar_t* json : {
           L"{\"image\": \"straight_3x2.pam\"}",
           L"{\"bitmap\": \"straight_3x2.pam\"}",
           L"{\"skin\": \"straight_3x2.pam\"}",
           L"{\"source\": \"straight_3x2.pam\"}",
           L"{\"path\": \"straight_3x2.pam\"}",
           L"{\"skin\": {\"path\": \"straight_3x2.pam\"}}",
           L"{\"image\": {\"path\": \" straight_3x2.pam \"}}",
       }) {
    const SurfaceStyle surface = parse(json);
    EXPECT_EQ(sizeOf(surface.image), (Size{3, 2})) << json;
    EXPECT_TRUE(surface.useSkinAlphaHitTest) << json;
    EXPECT_EQ(surface.geometryMode, GeometryMode::SkinAlphaLayout) << json;
    EXPECT_TRUE(surface.mask.empty()) << json;
  }
}

TEST(SurfaceImageKeys, TheFirstKeyPresentIsThePathEvenIfItFails) {
  EXPECT_EQ(sizeOf(parse(L"{\"path\": \"straight_3x2.pam\", \"image\": \"rgb_2x1.pam\"}").image),
            (Size{2, 1}));
  EXPECT_EQ(sizeOf(parse(L"{\"source\": \"straight_3x2.pam\", \"skin\": \"rgb_2x1.pam\"}").image),
            (Size{2, 1}));
  const SurfaceStyle surface =
      parse(L"{\"image\": \"missing.pam\", \"bitmap\": \"straight_3x2.pam\"}");
  EXPECT_TRUE(surface.image.empty());
}

TEST(SurfaceImageKeys, AnImageThatDoesNotLoadKeepsTheVectorLook) {
  SurfaceStyle base;
  base.fill = rgbColor(1, 2, 3);
  for (const wchar_t* json :
       {L"{\"image\": \"missing.pam\"}", L"{\"image\": \"   \"}", L"{\"mask\": \"missing.pam\"}"}) {
    const SurfaceStyle surface = parse(json, base);
    EXPECT_TRUE(surface.image.empty()) << json;
    EXPECT_TRUE(surface.mask.empty()) << json;
    EXPECT_FALSE(surface.useSkinAlphaHitTest) << json;
    EXPECT_EQ(surface.geometryMode, GeometryMode::FallbackShape) << json;
    EXPECT_EQ(surface.fill, rgbColor(1, 2, 3)) << json;
  }
  // Relative names need the skin's folder.
  EXPECT_TRUE(parse(L"{\"image\": \"straight_3x2.pam\"}", SurfaceStyle(), L"").image.empty());
}

TEST(SurfaceImageKeys, AnAbsolutePathIgnoresTheSkinFolder) {
  const std::wstring path = kFixtures + L"/rgb_2x1.pam";
  const SurfaceStyle surface =
      parse(L"{\"image\": \"" + path + L"\"}", SurfaceStyle(), L"/no/such/folder");
  EXPECT_EQ(sizeOf(surface.image), (Size{2, 1}));
}

TEST(SurfaceImageKeys, OnlyTheFallbackModeTurnsIntoTheAlphaLayout) {
  SurfaceStyle hitOnly;
  hitOnly.geometryMode = GeometryMode::SkinAlphaHitTest;
  EXPECT_EQ(parse(L"{\"image\": \"straight_3x2.pam\"}", hitOnly).geometryMode,
            GeometryMode::SkinAlphaHitTest);
}

TEST(SurfaceImageKeys, AFallbackShapeGeometryModeKeepsTheImageVisualOnly) {
  const SurfaceStyle surface =
      parse(L"{\"image\": \"straight_3x2.pam\", \"geometry\": {\"mode\": \"fallback_shape\"}}");
  EXPECT_EQ(sizeOf(surface.image), (Size{3, 2}));
  EXPECT_EQ(surface.geometryMode, GeometryMode::FallbackShape);
  EXPECT_EQ(
      parse(L"{\"image\": \"straight_3x2.pam\", \"layoutMode\": \"visual only\"}").geometryMode,
      GeometryMode::FallbackShape);
}

TEST(SurfaceImageKeys, AMaskSetsTheMaskLayoutAtOnce) {
  for (const wchar_t* json : {
           L"{\"mask\": \"mask_2x2.pam\"}",
           L"{\"alphaMask\": \"mask_2x2.pam\"}",
           L"{\"layout_mask\": \"mask_2x2.pam\"}",
           L"{\"mask\": {\"path\": \"mask_2x2.pam\"}}",
           L"{\"image\": \"straight_3x2.pam\", \"mask\": \"mask_2x2.pam\"}",
       }) {
    const SurfaceStyle surface = parse(json);
    EXPECT_EQ(sizeOf(surface.mask), (Size{2, 2})) << json;
    EXPECT_EQ(surface.geometryMode, GeometryMode::MaskAlphaLayout) << json;
  }
  SurfaceStyle hitOnly;
  hitOnly.geometryMode = GeometryMode::SkinAlphaHitTest;
  EXPECT_EQ(parse(L"{\"mask\": \"mask_2x2.pam\"}", hitOnly).geometryMode,
            GeometryMode::MaskAlphaLayout);
}

TEST(SurfaceImageKeys, AGeometryModeStillWinsOverTheMask) {
  EXPECT_EQ(
      parse(L"{\"mask\": \"mask_2x2.pam\", \"geometry\": {\"mode\": \"alpha\"}}").geometryMode,
      GeometryMode::SkinAlphaLayout);
  EXPECT_EQ(parse(L"{\"mask\": \"mask_2x2.pam\", \"geometryMode\": \"alpha_hit\"}").geometryMode,
            GeometryMode::SkinAlphaHitTest);
}

TEST(SurfaceImageKeys, TintAndNineSliceAlongsideTheImage) {
  const SurfaceStyle surface = parse(
      L"{\"image\": {\"path\": \"straight_3x2.pam\", \"tint\": {\"mode\": \"multiply\"}}, "
      L"\"nine_slice\": {\"bottom\": 1}}");
  EXPECT_EQ(sizeOf(surface.image), (Size{3, 2}));
  EXPECT_EQ(surface.tint.mode, TintMode::Multiply);
  EXPECT_TRUE(surface.useNineSlice);
  EXPECT_EQ(surface.nineSlice, (NineSlice{0, 0, 0, 1}));
}

TEST(SurfaceImageKeys, LoadedPixelsArePremultiplied) {
  const SurfaceStyle surface = parse(L"{\"image\": \"straight_3x2.pam\"}");
  const uint8_t* p = surface.image.pixel(0, 1);  // straight (200, 100, 50) at alpha 128
  EXPECT_EQ(p[0], 25);
  EXPECT_EQ(p[1], 50);
  EXPECT_EQ(p[2], 100);
  EXPECT_EQ(p[3], 128);
}

TEST(SurfaceImageKeys, AWholeStateObjectGivesEveryStateTheImage) {
  JsonValue value;
  ASSERT_TRUE(
      parseJsonText(L"{\"image\": \"rgb_2x1.pam\", \"hot\": {\"image\": "
                    L"\"straight_3x2.pam\"}}",
                    value));
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, kFixtures};
  ControlStates states;
  parseControlStates(StyleReader(table, L"", context), states);
  EXPECT_EQ(sizeOf(states.normal.image), (Size{2, 1}));
  EXPECT_EQ(sizeOf(states.disabled.image), (Size{2, 1}));
  EXPECT_EQ(sizeOf(states.hot.image), (Size{3, 2}));
}

}  // namespace
}  // namespace tessel
