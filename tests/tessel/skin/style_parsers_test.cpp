#include <gtest/gtest.h>

#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"
#include "tessel/skin/style_builders.h"

namespace tessel {
namespace {

PropertyTable Properties(const wchar_t* json) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  PropertyTable table;
  flattenProperties(value, L"", table);
  return table;
}

SurfaceStyle ParseSurface(const wchar_t* json, SurfaceStyle surface = SurfaceStyle()) {
  const PropertyTable table = Properties(json);
  const Theme theme;
  const StyleContext context{&theme, L""};
  parseSurfaceStyle(StyleReader(table, L"", context), surface);
  return surface;
}

TEST(ButtonParser, WholeObjectAppliesToEveryStateThenTheStateOwnMember) {
  const PropertyTable table =
      Properties(L"{\"surface\": {\"border\": \"#E2AA58\", \"hot\": {\"border\": \"#F6EECF\"}}}");
  const Theme theme;
  const StyleContext context{&theme, L""};
  ButtonStyle button = buildButtonStyle(theme, SurfaceMode::Flat2d, ButtonTone::Default);
  parseStyle(StyleReader(table, L"", context), button);
  EXPECT_EQ(button.surface.normal.border, rgbColor(0xE2, 0xAA, 0x58));
  EXPECT_EQ(button.surface.pressed.border, rgbColor(0xE2, 0xAA, 0x58));
  EXPECT_EQ(button.surface.disabled.border, rgbColor(0xE2, 0xAA, 0x58));
  EXPECT_EQ(button.surface.active.border, rgbColor(0xE2, 0xAA, 0x58));
  EXPECT_EQ(button.surface.hot.border, rgbColor(0xF6, 0xEE, 0xCF));
}

TEST(ButtonParser, ShapeSetsAllStatesAndHitShapeOnlyTheClickOutline) {
  const PropertyTable table = Properties(
      L"{\"shape\": \"pill\", \"hitShape\": \"diamond\", \"surface\": {\"pressed\": "
      L"{\"shape\": \"hexagon\"}}, \"use_surface_hit_testing\": \"yes\"}");
  const Theme theme;
  const StyleContext context{&theme, L""};
  ButtonStyle button = buildButtonStyle(theme, SurfaceMode::Flat2d, ButtonTone::Default);
  parseStyle(StyleReader(table, L"", context), button);
  EXPECT_EQ(button.surface.normal.shape, ShapeKind::Capsule);
  EXPECT_EQ(button.surface.active.shape, ShapeKind::Capsule);
  EXPECT_EQ(button.surface.pressed.shape, ShapeKind::Hexagon);  // the state's own key is later
  EXPECT_TRUE(button.hitShape.present);
  EXPECT_EQ(button.hitShape.kind, ShapeKind::Diamond);
  EXPECT_TRUE(button.useSurfaceHitTesting);
}

TEST(ButtonParser, TextFromOwnLevelThenTextMember) {
  const PropertyTable table = Properties(
      L"{\"weight\": \"bold\", \"pointSize\": 12, \"text\": {\"pointSize\": 14, \"color\": "
      L"\"#102030\"}}");
  const Theme theme;
  const StyleContext context{&theme, L""};
  ButtonStyle button;
  parseStyle(StyleReader(table, L"", context), button);
  EXPECT_EQ(button.text.weight, 700);
  EXPECT_EQ(button.text.pointSize, 14);
  EXPECT_EQ(button.text.color, rgbColor(0x10, 0x20, 0x30));
}

struct WeightCase {
  const wchar_t* json;
  int32_t weight;
};

const WeightCase kWeightCases[] = {
    {L"\"bold\"", 700},     {L"650", 650},         {L"\"Thin\"", 100},   {L"\"light\"", 300},
    {L"\"normal\"", 400},   {L"\"regular\"", 400}, {L"\"medium\"", 500}, {L"\"semibold\"", 600},
    {L"\"demibold\"", 600}, {L"\" heavy \"", 900}, {L"\"black\"", 900},  {L"\"fat\"", 123},
    {L"\"550px\"", 550},
};

TEST(TextParser, WeightWordsAndNumbers) {
  for (const WeightCase& c : kWeightCases) {
    const PropertyTable table = Properties((std::wstring(L"{\"weight\":") + c.json + L"}").c_str());
    const Theme theme;
    const StyleContext context{&theme, L""};
    TextStyle text;
    text.weight = 123;
    parseTextStyle(StyleReader(table, L"", context), text);
    EXPECT_EQ(text.weight, c.weight) << c.json;
  }
}

struct ColorCase {
  const wchar_t* json;
  Color fill;
};

const Color kKept = rgbColor(1, 2, 3);

const ColorCase kColorCases[] = {
    {L"\"10,20,30\"", rgbColor(0x0A, 0x14, 0x1E)},
    {L"[10, 20, 30]", rgbColor(0x0A, 0x14, 0x1E)},
    {L"\"#ZZZZZZ\"", kKept},
    {L"\"0A141E\"", rgbColor(0x0A, 0x14, 0x1E)},
    {L"\" #0a141e \"", rgbColor(0x0A, 0x14, 0x1E)},
    {L"\"#0A141\"", kKept},
    {L"\"300,-5,7\"", rgbColor(255, 0, 7)},
    {L"\"1,2\"", kKept},
    {L"\"1,2,3,4\"", kKept},
    {L"\"a,b,c\"", kKept},
    {L"12", kKept},
};

TEST(SurfaceParser, ColoursInEveryForm) {
  for (const ColorCase& c : kColorCases) {
    SurfaceStyle start;
    start.fill = kKept;
    const SurfaceStyle surface =
        ParseSurface((std::wstring(L"{\"fill\":") + c.json + L"}").c_str(), start);
    EXPECT_EQ(surface.fill, c.fill) << c.json;
  }
}

struct ByteCase {
  const wchar_t* json;
  uint8_t opacity;
};

const ByteCase kByteCases[] = {
    {L"999", 255}, {L"-1", 0}, {L"\"128\"", 128}, {L"\"none\"", 255}, {L"12.9", 12},
};

TEST(SurfaceParser, BytesAreClamped) {
  for (const ByteCase& c : kByteCases) {
    const SurfaceStyle surface =
        ParseSurface((std::wstring(L"{\"opacity\":") + c.json + L"}").c_str());
    EXPECT_EQ(surface.opacity, c.opacity) << c.json;
  }
}

TEST(SurfaceParser, GradientMidAlsoSwitchesItOn) {
  const SurfaceStyle surface = ParseSurface(L"{\"gradient_mid\": \"#112233\"}");
  EXPECT_EQ(surface.gradientMid, rgbColor(0x11, 0x22, 0x33));
  EXPECT_TRUE(surface.useGradientMid);
  EXPECT_FALSE(ParseSurface(L"{\"gradient_mid\": \"#1122\"}").useGradientMid);
}

TEST(SurfaceParser, LaterAliasInTableOrderWins) {
  // materialDepth, depth, relief, bumpDepth are read in that order.
  EXPECT_EQ(ParseSurface(L"{\"bumpDepth\": 20, \"materialDepth\": 10}").materialDepth, 20);
  EXPECT_EQ(ParseSurface(L"{\"relief\": 30, \"depth\": 40}").materialDepth, 30);
  EXPECT_EQ(ParseSurface(L"{\"shine\": 5, \"specular\": 9}").specular, 5);
  EXPECT_EQ(ParseSurface(L"{\"shadow_offset_x\": 4, \"shadow-offset-y\": -3}").shadowOffsetX, 4);
  EXPECT_EQ(ParseSurface(L"{\"shadow_offset_x\": 4, \"shadow-offset-y\": -3}").shadowOffsetY, -3);
}

TEST(SurfaceParser, MaterialPresetSeedFinishAndStrength) {
  const SurfaceStyle granite = ParseSurface(L"{\"material\": \"granite\"}");
  EXPECT_EQ(granite.material, MaterialKind::Granite);
  EXPECT_EQ(granite.materialTint, rgbColor(0x70, 0x6C, 0x68));
  EXPECT_EQ(granite.noiseSeed, 0x6772616Eu);
  EXPECT_EQ(granite.finish, 1);
  EXPECT_EQ(granite.specular, 156);
  EXPECT_EQ(granite.roughness, 62);
  EXPECT_EQ(granite.materialStrength, 178);

  // The seed key comes after the preset and replaces its seed.
  EXPECT_EQ(ParseSurface(L"{\"preset\": \"granite\", \"noiseSeed\": 5}").noiseSeed, 5u);
  EXPECT_EQ(ParseSurface(L"{\"noiseSeed\": \"4000000000\"}").noiseSeed, 4000000000u);

  // A kind word sets only the kind, and a strength of 0 becomes 150 at the end.
  const SurfaceStyle glass = ParseSurface(L"{\"material\": \"frosted\"}");
  EXPECT_EQ(glass.material, MaterialKind::FrostedGlass);
  EXPECT_EQ(glass.materialStrength, 150);
  EXPECT_EQ(glass.materialTint, SurfaceStyle().materialTint);
  EXPECT_EQ(ParseSurface(L"{\"material\": \"glass\", \"materialStrength\": 40}").materialStrength,
            40);

  // Unknown words leave everything and force nothing.
  const SurfaceStyle unknown = ParseSurface(L"{\"material\": \"cheese\"}");
  EXPECT_EQ(unknown.material, MaterialKind::None);
  EXPECT_EQ(unknown.materialStrength, 0);
  // The first present key counts, not the first that is valid.
  EXPECT_EQ(ParseSurface(L"{\"material\": \"cheese\", \"preset\": \"glass\"}").material,
            MaterialKind::None);
  EXPECT_EQ(ParseSurface(L"{\"surfaceMaterial\": \"paper\", \"preset\": \"glass\"}").material,
            MaterialKind::Paper);
}

TEST(SurfaceParser, FinishKeysApplyOneAfterTheOther) {
  const SurfaceStyle metal = ParseSurface(L"{\"material\": \"metal\", \"finish\": \"brushed\"}");
  EXPECT_EQ(metal.material, MaterialKind::BrushedMetal);
  EXPECT_EQ(metal.finish, 2);
  const SurfaceStyle both =
      ParseSurface(L"{\"finish\": \"polished\", \"materialFinish\": \"matte\"}");
  EXPECT_EQ(both.finish, 4);
  EXPECT_EQ(both.roughness, 168);  // polished lowered it to 62, matte raised it again
  EXPECT_EQ(ParseSurface(L"{\"finish\": \"none\"}").finish, 0);
}

TEST(SurfaceParser, SwitchesAndEnumerations) {
  const SurfaceStyle surface = ParseSurface(
      L"{\"drawFill\": \"off\", \"show_shadow\": true, \"useNoise\": 1, \"useGradient\": "
      L"\"maybe\", \"gradientDirection\": \"diagonal\", \"gradientType\": \"radial\", "
      L"\"uv_mapping\": \"global\"}");
  EXPECT_FALSE(surface.drawFill);
  EXPECT_TRUE(surface.showShadow);
  EXPECT_TRUE(surface.useNoise);
  EXPECT_FALSE(surface.useGradient);
  EXPECT_EQ(surface.gradientDirection, 4);
  EXPECT_EQ(surface.gradientKind, 2);
  EXPECT_EQ(surface.uvMapping, 1);
  EXPECT_EQ(ParseSurface(L"{\"gradientKind\": \"spiral\"}").gradientKind, 0);
}

TEST(SurfaceParser, AnyNineSliceMemberSwitchesItOn) {
  const SurfaceStyle surface = ParseSurface(L"{\"nine_slice\": {\"top\": 7}}");
  EXPECT_TRUE(surface.useNineSlice);
  EXPECT_EQ(surface.nineSlice, (NineSlice{0, 7, 0, 0}));
  EXPECT_FALSE(ParseSurface(L"{\"opacity\": 3}").useNineSlice);
}

struct InsetsCase {
  const char* what;
  const wchar_t* json;
  Insets text;
};

const Insets kStart{9, 9, 9, 9};

const InsetsCase kInsetsCases[] = {
    {"one number", L"{\"textInsets\": 4}", {4, 4, 4, 4}},
    {"two numbers", L"{\"textInsets\": [4, 2]}", {4, 2, 4, 2}},
    {"four numbers", L"{\"textInsets\": [1, 2, 3, 4]}", {1, 2, 3, 4}},
    {"three numbers set nothing", L"{\"textInsets\": [1, 2, 3]}", kStart},
    {"object members", L"{\"textInsets\": {\"left\": 5, \"bottom\": 6}}", {5, 9, 9, 6}},
    {"safe insets for all, specific key wins",
     L"{\"safeInsets\": 3, \"text_insets\": 1}",
     {1, 1, 1, 1}},
    {"inside geometry beats the surface level",
     L"{\"textInsets\": 2, \"geometry\": {\"textInsets\": 8}}",
     {8, 8, 8, 8}},
    {"text that is no number", L"{\"textInsets\": \"wide\"}", kStart},
};

TEST(SurfaceParser, InsetsForms) {
  for (const InsetsCase& c : kInsetsCases) {
    SurfaceStyle start;
    start.textInsets = kStart;
    EXPECT_EQ(ParseSurface(c.json, start).textInsets, c.text) << c.what;
  }
  const SurfaceStyle all = ParseSurface(L"{\"insets\": 3, \"hitInsets\": 1}");
  EXPECT_EQ(all.paintInsets, (Insets{3, 3, 3, 3}));
  EXPECT_EQ(all.scrollTrackInsets, (Insets{3, 3, 3, 3}));
  EXPECT_EQ(all.hitInsets, (Insets{1, 1, 1, 1}));
  EXPECT_EQ(ParseSurface(L"{\"layout_insets\": 6}").childLayoutInsets, (Insets{6, 6, 6, 6}));
  EXPECT_EQ(ParseSurface(L"{\"actionInsets\": 6}").actionRowInsets, (Insets{6, 6, 6, 6}));
}

TEST(SurfaceParser, GeometryModeOnTheSurfaceThenInsideGeometry) {
  EXPECT_EQ(ParseSurface(L"{\"geometryMode\": \"skin_alpha_hit_test\"}").geometryMode,
            GeometryMode::SkinAlphaHitTest);
  EXPECT_EQ(ParseSurface(L"{\"layoutMode\": \"alpha\", \"geometry\": {\"mode\": "
                         L"\"fallback_shape\"}}")
                .geometryMode,
            GeometryMode::FallbackShape);
  EXPECT_EQ(ParseSurface(L"{\"geometry\": {\"mode\": \"bogus\"}}").geometryMode,
            GeometryMode::FallbackShape);
}

TEST(SurfaceParser, ShapeWordsAndObjectForm) {
  EXPECT_EQ(ParseSurface(L"{\"shape\": \" Cut-Corner \"}").shape, ShapeKind::Bevel);
  EXPECT_EQ(ParseSurface(L"{\"shape\": {\"value\": \"pill\"}}").shape, ShapeKind::Capsule);
  EXPECT_EQ(ParseSurface(L"{\"shape\": {\"surface\": {\"shape\": \"gem\"}}}").shape,
            ShapeKind::Diamond);
  SurfaceStyle start;
  start.shape = ShapeKind::Octagon;
  EXPECT_EQ(ParseSurface(L"{\"shape\": \"blob\"}", start).shape, ShapeKind::Octagon);
}

TEST(TintParser, RolesPaletteAndModeSwitchOn) {
  Theme theme;
  theme.accentHot = rgbColor(0xE2, 0xAA, 0x58);
  const StyleContext context{&theme, L""};
  const PropertyTable table = Properties(
      L"{\"image\": {\"tint\": {\"role\": \"accent_hot\"}, \"maskChannel\": \"luminance\", "
      L"\"tintAmount\": 300}, \"bitmap\": {\"palette\": [\"#000000\", \"text_hot\", "
      L"\"#FFFFFF\"]}}");
  SurfaceStyle surface;
  parseSurfaceStyle(StyleReader(table, L"", context), surface);
  EXPECT_EQ(surface.tint.mode, TintMode::Tint);  // a colour without a mode turns the tint on
  EXPECT_EQ(surface.tint.color, rgbColor(0xE2, 0xAA, 0x58));
  EXPECT_EQ(surface.tint.maskChannel, MaskChannel::Luma);
  EXPECT_EQ(surface.tint.amount, 255);
  ASSERT_EQ(surface.tint.paletteCount, 3);
  EXPECT_EQ(surface.tint.palette[1], theme.textHot);
  EXPECT_EQ(surface.tint.palette[2], rgbColor(0xFF, 0xFF, 0xFF));

  const PropertyTable mono = Properties(L"{\"skin\": {\"mode\": \"mono\", \"color\": \"bogus\"}}");
  SurfaceStyle monoSurface;
  parseSurfaceStyle(StyleReader(mono, L"", context), monoSurface);
  EXPECT_EQ(monoSurface.tint.mode, TintMode::Mono);
  EXPECT_EQ(monoSurface.tint.color, BitmapTint().color);
}

TEST(TintParser, BitmapButtonStatesWithAliases) {
  const Theme theme;
  const StyleContext context{&theme, L""};
  const PropertyTable table = Properties(
      L"{\"tint\": {\"color\": \"#101010\", \"hover\": {\"color\": \"#202020\"}, \"down\": "
      L"{\"color\": \"#303030\"}, \"checked\": {\"color\": \"#404040\"}}}");
  BitmapButtonStyle style = buildBitmapButtonStyle(theme);
  parseStyle(StyleReader(table, L"", context), style);
  EXPECT_EQ(style.tints.normal.color, rgbColor(0x10, 0x10, 0x10));
  EXPECT_EQ(style.tints.disabled.color, rgbColor(0x10, 0x10, 0x10));
  EXPECT_EQ(style.tints.hot.color, rgbColor(0x20, 0x20, 0x20));
  EXPECT_EQ(style.tints.pressed.color, rgbColor(0x30, 0x30, 0x30));
  EXPECT_EQ(style.tints.active.color, rgbColor(0x40, 0x40, 0x40));
}

struct AccelerationCase {
  const wchar_t* json;
  float strength, maxMultiplier;
  int32_t fastIntervalMs, resetMs;
  bool enabled;
};

const AccelerationCase kAccelerationCases[] = {
    {L"{}", 0.45f, 4.0f, 42, 180, true},
    {L"{\"strength\": -2, \"maxMultiplier\": 0.5}", 0.0f, 1.0f, 42, 180, true},
    {L"{\"factor\": 0.8, \"maximum_multiplier\": 6, \"enable\": \"no\"}", 0.8f, 6.0f, 42, 180,
     false},
    {L"{\"fastIntervalMs\": 0, \"resetMs\": 9000}", 0.45f, 4.0f, 1, 5000, true},
    {L"{\"referenceIntervalMs\": 5000, \"burst_reset_ms\": -4}", 0.45f, 4.0f, 1000, 1, true},
};

TEST(ScrollAccelerationParser, ReadsAndClamps) {
  for (const AccelerationCase& c : kAccelerationCases) {
    const PropertyTable table = Properties(c.json);
    const Theme theme;
    const StyleContext context{&theme, L""};
    ScrollAcceleration acceleration;
    parseStyle(StyleReader(table, L"", context), acceleration);
    EXPECT_FLOAT_EQ(acceleration.strength, c.strength) << c.json;
    EXPECT_FLOAT_EQ(acceleration.maxMultiplier, c.maxMultiplier) << c.json;
    EXPECT_EQ(acceleration.fastIntervalMs, c.fastIntervalMs) << c.json;
    EXPECT_EQ(acceleration.resetMs, c.resetMs) << c.json;
    EXPECT_EQ(acceleration.enabled, c.enabled) << c.json;
  }
}

TEST(ControlParsers, SubSurfacesShapesAndMetricsUnderAPrefix) {
  const PropertyTable table = Properties(
      L"{\"table\": {\"header_shape\": \"bevel\", \"header\": {\"fill\": \"#010203\"}, "
      L"\"row_height\": \"31\", \"rowText\": {\"weight\": \"medium\"}, \"separator\": "
      L"\"#0A0B0C\", \"scrollAcceleration\": {\"strength\": 2}}}");
  const Theme theme;
  const StyleContext context{&theme, L""};
  TableListStyle style = buildTableListStyle(theme, SurfaceMode::Flat2d);
  const TableListStyle before = style;
  parseStyle(StyleReader(table, L"table", context), style);
  EXPECT_EQ(style.header.shape, ShapeKind::Bevel);
  EXPECT_EQ(style.header.fill, rgbColor(1, 2, 3));
  EXPECT_EQ(style.rowHeight, 31);
  EXPECT_EQ(style.rowText.weight, 500);
  EXPECT_EQ(style.separator, rgbColor(10, 11, 12));
  EXPECT_FLOAT_EQ(style.scrollAcceleration.strength, 2.0f);
  // Nothing is reset: absent keys keep the base record.
  EXPECT_EQ(style.row.fill, before.row.fill);
  EXPECT_EQ(style.headerHeight, before.headerHeight);
  EXPECT_EQ(style.surface.shape, before.surface.shape);
}

TEST(ControlParsers, NestedButtonStylesAndScrollBars) {
  const PropertyTable table = Properties(
      L"{\"primaryAction\": {\"shape\": \"capsule\"}, \"scrollBar\": {\"thumbShape\": "
      L"\"rect\", \"thumb\": {\"hot\": {\"fill\": \"#445566\"}}, \"showButtons\": true}}");
  const Theme theme;
  const StyleContext context{&theme, L""};
  PopupStyle popup = buildPopupStyle(theme, SurfaceMode::Sculpted3d);
  parseStyle(StyleReader(table, L"", context), popup);
  EXPECT_EQ(popup.primaryAction.surface.hot.shape, ShapeKind::Capsule);
  EXPECT_EQ(popup.secondaryAction.surface.hot.shape, ShapeKind::RoundedRect);
  SelectBoxStyle select = buildSelectBoxStyle(theme, SurfaceMode::Sculpted3d);
  parseStyle(StyleReader(table, L"", context), select);
  EXPECT_EQ(select.scrollBar.thumb.normal.shape, ShapeKind::Rectangle);
  EXPECT_EQ(select.scrollBar.thumb.hot.fill, rgbColor(0x44, 0x55, 0x66));
  EXPECT_TRUE(select.scrollBar.showButtons);
}

TEST(StyleBuilders, ButtonStatesFollowThePalette) {
  const Theme theme;
  const ButtonStyle button = buildButtonStyle(theme, SurfaceMode::Flat2d, ButtonTone::Default);
  EXPECT_EQ(button.surface.normal.fill, mixColor(theme.control, theme.border, 0.18));
  EXPECT_EQ(button.surface.hot.fill, theme.controlHot);
  EXPECT_EQ(button.surface.pressed.fill, theme.controlPressed);
  EXPECT_EQ(button.surface.disabled.fill, theme.disabledFill);
  EXPECT_EQ(button.text.disabledColor, theme.disabledText);
  EXPECT_EQ(button.text.pointSize, 9);
  EXPECT_EQ(button.text.weight, 700);
  EXPECT_EQ(button.text.fontFamily, theme.uiFont.fontFamily);
  const ButtonStyle primary = buildButtonStyle(theme, SurfaceMode::Flat2d, ButtonTone::Primary);
  EXPECT_EQ(primary.surface.normal.fill, theme.accent);
  EXPECT_EQ(primary.surface.hot.fill, theme.accentHot);
  EXPECT_NE(primary.surface.hot.fill, primary.surface.pressed.fill);
  EXPECT_NE(primary.surface.pressed.fill, primary.surface.disabled.fill);
}

TEST(StyleBuilders, TextToneSizesAndColours) {
  const Theme theme;
  const TextStyle title = buildTextStyle(theme, TextTone::Title);
  EXPECT_EQ(title.pointSize, 11);
  EXPECT_EQ(title.weight, 600);
  EXPECT_EQ(title.color, theme.textHot);
  const TextStyle muted = buildTextStyle(theme, TextTone::Muted);
  EXPECT_EQ(muted.pointSize, 9);
  EXPECT_EQ(muted.weight, 400);
  EXPECT_EQ(muted.color, theme.mutedText);
  EXPECT_EQ(buildTextStyle(theme, TextTone::Mono).fontFamily, L"Cascadia Mono");
}

}  // namespace
}  // namespace tessel
