#include <gtest/gtest.h>

#include "tessel/skin/style_builders.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"

namespace tessel {
namespace {

// The record after reading the JSON's keys under `prefix` over it.
template <typename Record>
Record Parsed(const std::wstring& json, Record record = Record(), const wchar_t* prefix = L"") {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, L""};
  const StyleReader reader(table, prefix, context);
  if constexpr (std::is_same_v<Record, SurfaceStyle>) {
    parseSurfaceStyle(reader, record);
  } else if constexpr (std::is_same_v<Record, TextStyle>) {
    parseTextStyle(reader, record);
  } else {
    parseStyle(reader, record);
  }
  return record;
}

SurfaceStyle Surface(const std::wstring& json, SurfaceStyle start = SurfaceStyle()) {
  return Parsed(json, start);
}

// Values in every form a skin writes them; what doesn't read keeps the value.
TEST(SurfaceParser, WeightsColoursAndBytes) {
  const std::pair<const wchar_t*, int32_t> kWeights[] = {
      {L"\"bold\"", 700},  {L"650", 650},     {L"\" heavy \"", 900},
      {L"\"black\"", 900}, {L"\"fat\"", 123}, {L"\"550px\"", 550}};
  for (const auto& [json, weight] : kWeights) {
    TextStyle text;
    text.weight = 123;
    EXPECT_EQ(Parsed(std::wstring(L"{\"weight\":") + json + L"}", text).weight, weight) << json;
  }
  const Color kKept = rgbColor(1, 2, 3), kGiven = rgbColor(10, 20, 30),
              kClamped = rgbColor(255, 0, 7);
  const std::pair<const wchar_t*, Color> kColors[] = {
      {L"\"300,-5,7\"", kClamped}, {L"12", kKept},           {L"\"a,b,c\"", kKept},
      {L"\"1,2,3,4\"", kKept},     {L"\"1,2\"", kKept},      {L"\"#0A141\"", kKept},
      {L"\" #0a141e \"", kGiven},  {L"\"0A141E\"", kGiven},  {L"\"#ZZZZZZ\"", kKept},
      {L"[10, 20, 30]", kGiven},   {L"\"10,20,30\"", kGiven}};
  for (const auto& [json, fill] : kColors) {
    SurfaceStyle start;
    start.fill = kKept;
    EXPECT_EQ(Surface(std::wstring(L"{\"fill\":") + json + L"}", start).fill, fill) << json;
  }
  const std::pair<const wchar_t*, int> kBytes[] = {
      {L"999", 255}, {L"-1", 0}, {L"\"128\"", 128}, {L"\"none\"", 255}, {L"12.9", 12}};
  for (const auto& [json, opacity] : kBytes)
    EXPECT_EQ(Surface(std::wstring(L"{\"opacity\":") + json + L"}").opacity, opacity) << json;
}

// The later alias in the table wins; a nine-slice member or a mid colour switches its part on.
TEST(SurfaceParser, AliasesSwitchesAndEnumerations) {
  EXPECT_EQ(Surface(L"{\"bumpDepth\": 20, \"materialDepth\": 10}").materialDepth, 20);
  EXPECT_EQ(Surface(L"{\"shine\": 5, \"specular\": 9}").specular, 5);
  const SurfaceStyle surface = Surface(
      L"{\"drawFill\": \"off\", \"drawBorder\": \"maybe\", \"show_shadow\": true, "
      L"\"useNoise\": 1, \"useGradient\": \"maybe\", \"gradientDirection\": \"diagonal\", "
      L"\"uv_mapping\": \"global\", \"gradientType\": \"radial\", \"nine_slice\": {\"top\": 7}, "
      L"\"gradient_mid\": \"#112233\"}");
  // drawFill, drawBorder, showShadow, useNoise, useGradient, gradient direction and kind,
  // uvMapping, useNineSlice, its top, gradientMid, useGradientMid.
  EXPECT_EQ(
      (std::vector<int64_t>{surface.drawFill, surface.drawBorder, surface.showShadow,
                            surface.useNoise, surface.useGradient, surface.gradientDirection,
                            surface.gradientKind, surface.uvMapping, surface.useNineSlice,
                            surface.nineSlice.top, surface.gradientMid, surface.useGradientMid}),
      (std::vector<int64_t>{0, 1, 1, 1, 0, 4, 2, 1, 1, 7, rgbColor(0x11, 0x22, 0x33), 1}));
  const SurfaceStyle plain = Surface(L"{\"gradient_mid\": \"#1122\", \"uvMapping\": \"local\"}");
  EXPECT_EQ((std::vector<int64_t>{plain.useGradientMid, plain.useNineSlice, plain.uvMapping}),
            (std::vector<int64_t>{0, 0, 0}));
}

// The first material key present counts, not the first valid one; a kind without a strength
// gets 150; the seed and the finishes apply over a preset.
TEST(SurfaceParser, MaterialPresetSeedFinishAndStrength) {
  SurfaceStyle granite, both;
  applyMaterialPreset(granite, *findMaterialPreset(L"granite"));
  applyFinish(both, Finish::Polished);
  applyFinish(both, Finish::Matte);
  const SurfaceStyle parsed = Surface(L"{\"material\": \"granite\"}");
  EXPECT_EQ(
      (std::vector<int64_t>{parsed.materialTint, parsed.specular, parsed.materialStrength}),
      (std::vector<int64_t>{granite.materialTint, granite.specular, granite.materialStrength}));
  EXPECT_EQ(Surface(L"{\"preset\": \"granite\", \"noiseSeed\": 5}").noiseSeed, 5u);
  EXPECT_EQ(Surface(L"{\"noiseSeed\": \"4000000000\"}").noiseSeed, 4000000000u);
  const SurfaceStyle glass = Surface(L"{\"material\": \"frosted\"}");
  EXPECT_EQ(
      (std::vector<int64_t>{int64_t(glass.material), glass.materialStrength, glass.materialTint}),
      (std::vector<int64_t>{int64_t(MaterialKind::FrostedGlass), 150,
                            SurfaceStyle().materialTint}));
  EXPECT_EQ(Surface(L"{\"material\": \"glass\", \"materialStrength\": 40}").materialStrength, 40);
  const SurfaceStyle unknown = Surface(L"{\"material\": \"cheese\", \"preset\": \"glass\"}");
  EXPECT_EQ(unknown.material, MaterialKind::None);
  EXPECT_EQ(unknown.materialStrength, 0);
  EXPECT_EQ(Surface(L"{\"surfaceMaterial\": \"paper\", \"preset\": \"glass\"}").material,
            MaterialKind::Paper);
  EXPECT_EQ(Surface(L"{\"material\": \"metal\", \"finish\": \"brushed\"}").material,
            MaterialKind::BrushedMetal);
  const SurfaceStyle parsedBoth =
      Surface(L"{\"finish\": \"polished\", \"materialFinish\": \"matte\"}");
  EXPECT_EQ(parsedBoth.finish, Finish::Matte);
  EXPECT_EQ(parsedBoth.roughness, both.roughness);
}

// Insets take one, two or four numbers, or sides; the specific key and `geometry` win.
TEST(SurfaceParser, InsetsAndShapes) {
  const Insets kStart{9, 9, 9, 9};
  const std::pair<const wchar_t*, Insets> kCases[] = {
      {L"{\"textInsets\": 4}", {4, 4, 4, 4}},
      {L"{\"textInsets\": [4, 2]}", {4, 2, 4, 2}},
      {L"{\"textInsets\": [1, 2, 3, 4]}", {1, 2, 3, 4}},
      {L"{\"textInsets\": [1, 2, 3]}", kStart},
      {L"{\"textInsets\": {\"left\": 5, \"bottom\": 6}}", {5, 9, 9, 6}},
      {L"{\"safeInsets\": 3, \"text_insets\": 1}", {1, 1, 1, 1}},
      {L"{\"textInsets\": 2, \"geometry\": {\"textInsets\": 8}}", {8, 8, 8, 8}},
      {L"{\"textInsets\": \"wide\"}", kStart}};
  for (const auto& [json, insets] : kCases) {
    SurfaceStyle start;
    start.textInsets = kStart;
    EXPECT_EQ(Surface(json, start).textInsets, insets) << json;
  }
  const SurfaceStyle all = Surface(L"{\"insets\": 3, \"hitInsets\": 1, \"layout_insets\": 6}");
  EXPECT_EQ((std::vector<Insets>{all.scrollTrackInsets, all.hitInsets, all.childLayoutInsets}),
            (std::vector<Insets>{{3, 3, 3, 3}, {1, 1, 1, 1}, {6, 6, 6, 6}}));
  EXPECT_EQ(Surface(L"{\"shape\": {\"value\": \"pill\"}}").shape, ShapeKind::Capsule);
  EXPECT_EQ(Surface(L"{\"shape\": {\"surface\": {\"shape\": \"gem\"}}}").shape, ShapeKind::Diamond);
  SurfaceStyle octagon;
  octagon.shape = ShapeKind::Octagon;
  EXPECT_EQ(Surface(L"{\"shape\": \"blob\"}", octagon).shape, ShapeKind::Octagon);
}

// A colour or role without a mode turns the tint on; `hover`, `down`, `checked` are states.
TEST(TintParser, RolesPaletteModesAndStateAliases) {
  const SurfaceStyle surface = Surface(
      L"{\"image\": {\"tint\": {\"role\": \"accent_hot\"}, \"maskChannel\": \"luminance\", "
      L"\"tintAmount\": 300}, \"bitmap\": {\"palette\": [\"#000000\", \"text_hot\", "
      L"\"#FFFFFF\"]}}");
  EXPECT_EQ((std::vector<int64_t>{int64_t(surface.tint.mode), surface.tint.color,
                                  int64_t(surface.tint.maskChannel), surface.tint.amount,
                                  surface.tint.paletteCount, surface.tint.palette[1]}),
            (std::vector<int64_t>{int64_t(TintMode::Tint), Theme().accentHot,
                                  int64_t(MaskChannel::Luma), 255, 3, Theme().textHot}));
  const SurfaceStyle mono = Surface(L"{\"skin\": {\"mode\": \"mono\", \"color\": \"bogus\"}}");
  EXPECT_EQ(mono.tint.mode, TintMode::Mono);
  EXPECT_EQ(mono.tint.color, BitmapTint().color);
  const BitmapButtonStyle style = Parsed<BitmapButtonStyle>(
      L"{\"tint\": {\"color\": \"#101010\", \"hover\": {\"color\": \"#202020\"}, \"down\": "
      L"{\"color\": \"#303030\"}, \"checked\": {\"color\": \"#404040\"}}}");
  EXPECT_EQ((std::vector<Color>{style.tints.disabled.color, style.tints.hot.color,
                                style.tints.pressed.color, style.tints.active.color}),
            (std::vector<Color>{0x101010, 0x202020, 0x303030, 0x404040}));
}

// Sub-surfaces, shapes and metrics under a prefix; absent keys keep the base record.
TEST(ControlParsers, SubRecordsUnderAPrefix) {
  const TableListStyle before = buildTableListStyle(Theme(), SurfaceMode::Flat2d);
  const TableListStyle table = Parsed(
      L"{\"table\": {\"header_shape\": \"bevel\", \"header\": {\"fill\": \"#010203\"}, "
      L"\"row_height\": \"31\", \"rowText\": {\"weight\": \"medium\"}}}",
      before, L"table");
  EXPECT_EQ((std::vector<int64_t>{int64_t(table.header.shape), table.header.fill, table.rowHeight,
                                  table.rowText.weight, table.row.fill, table.headerHeight}),
            (std::vector<int64_t>{int64_t(ShapeKind::Bevel), rgbColor(1, 2, 3), 31, 500,
                                  before.row.fill, before.headerHeight}));
}

}  // namespace
}  // namespace tessel
