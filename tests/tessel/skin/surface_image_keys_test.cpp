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

// The first image key present names the file, even if it fails; a mask sets the mask layout,
// and a geometry mode still wins. What doesn't load keeps the vector look.
TEST(SurfaceImageKeys, ImagesMasksAndTheGeometryTheySet) {
  using G = GeometryMode;
  const std::wstring fixtures = SourceFile("tests/tessel/paint/fixtures").wstring();
  const std::wstring absolute = L"{\"image\": \"" + fixtures + L"/rgb_2x1.pam\"}";
  const Theme theme;
  const struct {
    const wchar_t* json;
    int imageWidth, maskWidth;  // 0: none
    G mode;
    G start = G::FallbackShape;
    const wchar_t* folder = nullptr;  // null: the fixtures
  } kCases[] = {
      {L"{\"image\": {\"path\": \" straight_3x2.pam \"}}", 3, 0, G::SkinAlphaLayout},
      {L"{\"path\": \"straight_3x2.pam\", \"image\": \"rgb_2x1.pam\"}", 2, 0, G::SkinAlphaLayout},
      {L"{\"image\": \"missing.pam\", \"bitmap\": \"straight_3x2.pam\"}", 0, 0, G::FallbackShape},
      {L"{\"image\": \"straight_3x2.pam\"}", 0, 0, G::FallbackShape, G::FallbackShape, L""},
      {absolute.c_str(), 2, 0, G::SkinAlphaLayout, G::FallbackShape, L"/no/such/folder"},
      {L"{\"skin\": \"straight_3x2.pam\"}", 3, 0, G::SkinAlphaHitTest, G::SkinAlphaHitTest},
      {L"{\"mask\": \"missing.pam\"}", 0, 0, G::FallbackShape},
      {L"{\"mask\": {\"path\": \"mask_2x2.pam\"}}", 0, 2, G::MaskAlphaLayout, G::SkinAlphaHitTest},
      {L"{\"image\": \"straight_3x2.pam\", \"mask\": \"mask_2x2.pam\", \"geometryMode\": "
       L"\"alpha_hit\"}",
       3, 2, G::SkinAlphaHitTest}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.json, c.json + std::wcslen(c.json)));
    JsonValue value;
    PropertyTable table;
    ASSERT_TRUE(parseJsonText(c.json, value));
    flattenProperties(value, L"", table);
    SurfaceStyle surface;
    surface.fill = rgbColor(1, 2, 3);
    surface.geometryMode = c.start;
    parseSurfaceStyle(StyleReader(table, L"", StyleContext{&theme, c.folder ? c.folder : fixtures}),
                      surface);
    EXPECT_TRUE(surface.image.width == c.imageWidth && surface.mask.width == c.maskWidth &&
                surface.geometryMode == c.mode && surface.fill == rgbColor(1, 2, 3) &&
                surface.useSkinAlphaHitTest == (c.imageWidth != 0));
  }
}

}  // namespace
}  // namespace tessel
