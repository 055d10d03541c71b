#include <gtest/gtest.h>

#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"

namespace tessel {
namespace {

// The record after reading the JSON's keys over it.
template <typename Record>
Record Parsed(const std::wstring& json, Record record = Record()) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, L""};  // the reader keeps a reference to it
  const StyleReader reader(table, L"", context);
  if constexpr (std::is_same_v<Record, SurfaceStyle>) {
    parseSurfaceStyle(reader, record);
  } else if constexpr (std::is_same_v<Record, TextStyle>) {
    parseTextStyle(reader, record);
  } else {
    parseStyle(reader, record);
  }
  return record;
}

// Values in every form a skin writes them; what doesn't read keeps the value.
TEST(SurfaceParser, WeightsColoursBytesAndInsets) {
  const std::pair<const wchar_t*, int32_t> kWeights[] = {{L"\"bold\"", 700},
                                                         {L"\" heavy \"", 900},
                                                         {L"\"black\"", 900},
                                                         {L"\"fat\"", 123},
                                                         {L"\"550px\"", 550}};
  for (const auto& [json, weight] : kWeights) {
    TextStyle text;
    text.weight = 123;
    EXPECT_EQ(Parsed(std::wstring(L"{\"weight\":") + json + L"}", text).weight, weight) << json;
  }
  const Color kKept = rgbColor(1, 2, 3), kGiven = rgbColor(10, 20, 30);
  const Color kClamped = rgbColor(255, 0, 7);
  const std::pair<const wchar_t*, Color> kColors[] = {
      {L"\"300,-5,7\"", kClamped}, {L"12", kKept},
      {L"\"1,2,3,4\"", kKept},     {L"\"#0A141\"", kKept},
      {L"\" #0a141e \"", kGiven},  {L"\"0A141E\"", kGiven}};
  SurfaceStyle start;
  start.fill = kKept;
  start.textInsets = {9, 9, 9, 9};
  for (const auto& [json, fill] : kColors)
    EXPECT_EQ(Parsed(std::wstring(L"{\"fill\":") + json + L"}", start).fill, fill) << json;
  const std::pair<const wchar_t*, int> kBytes[] = {{L"999", 255}, {L"-1", 0}, {L"\"none\"", 255}};
  for (const auto& [json, opacity] : kBytes)
    EXPECT_EQ(Parsed<SurfaceStyle>(std::wstring(L"{\"opacity\":") + json + L"}").opacity, opacity);
  // One, two or four numbers, or sides; the later key and `geometry` win.
  const std::pair<const wchar_t*, Insets> kInsets[] = {
      {L"{\"textInsets\": [4, 2]}", {4, 2, 4, 2}},
      {L"{\"textInsets\": [1, 2, 3]}", start.textInsets},
      {L"{\"textInsets\": {\"left\": 5, \"bottom\": 6}}", {5, 9, 9, 6}},
      {L"{\"safeInsets\": 3, \"text_insets\": 1}", {1, 1, 1, 1}},
      {L"{\"textInsets\": 2, \"geometry\": {\"textInsets\": 8}}", {8, 8, 8, 8}}};
  for (const auto& [json, insets] : kInsets)
    EXPECT_EQ(Parsed(json, start).textInsets, insets) << json;
}

// The later alias in the table wins; a nine-slice member or a mid colour switches its part on.
TEST(SurfaceParser, AliasesSwitchesAndEnumerations) {
  EXPECT_EQ(Parsed<SurfaceStyle>(L"{\"bumpDepth\": 20, \"materialDepth\": 10}").materialDepth, 20);
  const SurfaceStyle surface = Parsed<SurfaceStyle>(
      L"{\"drawFill\": \"off\", \"drawBorder\": \"maybe\", \"show_shadow\": true, "
      L"\"useNoise\": 1, \"useGradient\": \"maybe\", \"gradientDirection\": \"diagonal\", "
      L"\"uv_mapping\": \"global\", \"gradientType\": \"radial\", \"nine_slice\": {\"top\": 7}, "
      L"\"gradient_mid\": \"#112233\", \"image\": {\"maskChannel\": \"luminance\"}}");
  // drawFill, drawBorder, showShadow, useNoise, useGradient, gradient direction and kind,
  // uvMapping, useNineSlice, its top, gradientMid, useGradientMid, the tint's mask channel.
  EXPECT_EQ((std::vector<int64_t>{surface.drawFill, surface.drawBorder, surface.showShadow,
                                  surface.useNoise, surface.useGradient, surface.gradientDirection,
                                  surface.gradientKind, surface.uvMapping, surface.useNineSlice,
                                  surface.nineSlice.top, surface.gradientMid,
                                  surface.useGradientMid, int64_t(surface.tint.maskChannel)}),
            (std::vector<int64_t>{0, 1, 1, 1, 0, 4, 2, 1, 1, 7, rgbColor(0x11, 0x22, 0x33), 1,
                                  int64_t(MaskChannel::Luma)}));
  const SurfaceStyle plain = Parsed<SurfaceStyle>(L"{\"gradient_mid\": \"#1122\"}");
  EXPECT_FALSE(plain.useGradientMid || plain.useNineSlice);
}

// The first material key present counts, not the first valid one; a kind without a strength
// gets 150.
TEST(SurfaceParser, MaterialKeys) {
  const SurfaceStyle glass =
      Parsed<SurfaceStyle>(L"{\"material\": \"frosted\", \"noiseSeed\": \"4000000000\"}");
  EXPECT_TRUE(glass.material == MaterialKind::FrostedGlass && glass.materialStrength == 150 &&
              glass.noiseSeed == 4000000000u);
  const SurfaceStyle unknown =
      Parsed<SurfaceStyle>(L"{\"material\": \"cheese\", \"preset\": \"glass\"}");
  EXPECT_TRUE(unknown.material == MaterialKind::None && unknown.materialStrength == 0);
}

// A colour or role without a mode turns the tint on; `hover`, `down`, `checked` are states.
TEST(TintParser, RolesModesAndStateAliases) {
  const SurfaceStyle role = Parsed<SurfaceStyle>(
      L"{\"image\": {\"tint\": {\"role\": \"accent_hot\"}, \"tintAmount\": 300}}");
  EXPECT_TRUE(role.tint.mode == TintMode::Tint && role.tint.color == Theme().accentHot &&
              role.tint.amount == 255);
  const BitmapButtonStyle style = Parsed<BitmapButtonStyle>(
      L"{\"tint\": {\"color\": \"#101010\", \"hover\": {\"color\": \"#202020\"}, \"down\": "
      L"{\"color\": \"#303030\"}, \"checked\": {\"color\": \"#404040\"}}}");
  EXPECT_EQ((std::vector<Color>{style.tints.disabled.color, style.tints.hot.color,
                                style.tints.pressed.color, style.tints.active.color}),
            (std::vector<Color>{0x101010, 0x202020, 0x303030, 0x404040}));
}

}  // namespace
}  // namespace tessel
