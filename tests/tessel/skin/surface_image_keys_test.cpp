// Surface keys that load image files. Native only: the fixtures are PAM files, which the native
// loader reads and the Windows one doesn't.
#include <cwchar>
#include <string>

#include <gtest/gtest.h>

#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/surface_parser.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

const std::wstring kFixtures = SourceFile("tests/tessel/paint/fixtures").wstring();

// A surface read from the JSON with `folder` as the skin's folder.
SurfaceStyle Parse(const std::wstring& json, SurfaceStyle surface, const std::wstring& folder) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, folder};
  parseSurfaceStyle(StyleReader(table, L"", context), surface);
  return surface;
}

Size SizeOf(const Image& image) {
  return {image.width, image.height};
}

// The first image key present names the file, even if it fails; a mask sets the mask layout,
// and a geometry mode still wins. What doesn't load keeps the vector look.
TEST(SurfaceImageKeys, ImagesMasksAndTheGeometryTheySet) {
  using G = GeometryMode;
  const Size k3x2{3, 2}, k2x1{2, 1}, kMask{2, 2}, kNone{};
  const std::wstring absolute = L"{\"image\": \"" + kFixtures + L"/rgb_2x1.pam\"}";
  const struct {
    const wchar_t* json;
    Size image, mask;
    G mode;
    G start = G::FallbackShape;
    const wchar_t* folder = nullptr;  // null: the fixtures
  } kCases[] = {
      {L"{\"image\": {\"path\": \" straight_3x2.pam \"}}", k3x2, kNone, G::SkinAlphaLayout},
      {L"{\"path\": \"straight_3x2.pam\", \"image\": \"rgb_2x1.pam\"}", k2x1, kNone,
       G::SkinAlphaLayout},
      {L"{\"image\": \"missing.pam\", \"bitmap\": \"straight_3x2.pam\"}", kNone, kNone,
       G::FallbackShape},
      {L"{\"image\": \"straight_3x2.pam\"}", kNone, kNone, G::FallbackShape, G::FallbackShape, L""},
      {absolute.c_str(), k2x1, kNone, G::SkinAlphaLayout, G::FallbackShape, L"/no/such/folder"},
      {L"{\"skin\": \"straight_3x2.pam\"}", k3x2, kNone, G::SkinAlphaHitTest, G::SkinAlphaHitTest},
      {L"{\"image\": \"straight_3x2.pam\", \"geometry\": {\"mode\": \"fallback_shape\"}}", k3x2,
       kNone, G::FallbackShape},
      {L"{\"mask\": \"missing.pam\"}", kNone, kNone, G::FallbackShape},
      {L"{\"mask\": {\"path\": \"mask_2x2.pam\"}}", kNone, kMask, G::MaskAlphaLayout,
       G::SkinAlphaHitTest},
      {L"{\"image\": \"straight_3x2.pam\", \"mask\": \"mask_2x2.pam\"}", k3x2, kMask,
       G::MaskAlphaLayout},
      {L"{\"mask\": \"mask_2x2.pam\", \"geometryMode\": \"alpha_hit\"}", kNone, kMask,
       G::SkinAlphaHitTest}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.json, c.json + std::wcslen(c.json)));
    SurfaceStyle start;
    start.fill = rgbColor(1, 2, 3);
    start.geometryMode = c.start;
    const SurfaceStyle surface = Parse(c.json, start, c.folder ? c.folder : kFixtures);
    EXPECT_EQ(SizeOf(surface.image), c.image);
    EXPECT_EQ(SizeOf(surface.mask), c.mask);
    EXPECT_EQ(surface.geometryMode, c.mode);
    EXPECT_EQ(surface.useSkinAlphaHitTest, c.image != kNone);
    EXPECT_EQ(surface.fill, rgbColor(1, 2, 3));
  }
}

}  // namespace
}  // namespace tessel
