#include "tessel/skin/theme.h"

#include <gtest/gtest.h>

#include "tessel/skin/skin_words.h"
#include "tessel/skin/surface_builder.h"

namespace tessel {
namespace {

Theme ParseTheme(const wchar_t* json) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  Theme theme;
  parseTheme(value, theme);
  return theme;
}

TEST(ParseTheme, ColoursAliasesAndSilentFallback) {
  const Theme theme = ParseTheme(
      L"{\"panel\": \"#102030\", \"control_hot\": \"405060\", \"controlHot\": \"#708090\", "
      L"\"text\": \"#GG0000\", \"accent\": \"10,20,30\", \"border\": 5, \"shell\": \"#1020\"}");
  const Theme defaults;
  EXPECT_EQ(theme.panel, rgbColor(0x10, 0x20, 0x30));
  EXPECT_EQ(theme.controlHot, rgbColor(0x40, 0x50, 0x60));  // the first alias present wins
  EXPECT_EQ(theme.text, defaults.text);
  EXPECT_EQ(theme.accent, defaults.accent);  // only hex in a theme
  EXPECT_EQ(theme.border, defaults.border);
  EXPECT_EQ(theme.shell, defaults.shell);
}

TEST(ParseTheme, FontsTakeTheTextColoursAfterwards) {
  const Theme theme = ParseTheme(
      L"{\"text\": \"#FAFAFA\", \"disabled_text\": \"#555555\", \"ui_font_family\": \"Segoe UI\", "
      L"\"uiPointSize\": 10.9, \"ui_weight\": \"700\", \"mono_point_size\": \"11pt\", "
      L"\"mono_weight\": \"bold\"}");
  EXPECT_EQ(theme.uiFont.fontFamily, L"Segoe UI");
  EXPECT_EQ(theme.uiFont.pointSize, 10);
  EXPECT_EQ(theme.uiFont.weight, 700);
  EXPECT_EQ(theme.monoFont.pointSize, 11);
  EXPECT_EQ(theme.monoFont.weight, 400);  // a word is not a number here
  EXPECT_EQ(theme.uiFont.color, rgbColor(0xFA, 0xFA, 0xFA));
  EXPECT_EQ(theme.monoFont.color, rgbColor(0xFA, 0xFA, 0xFA));
  EXPECT_EQ(theme.monoFont.disabledColor, rgbColor(0x55, 0x55, 0x55));
}

TEST(ParseTheme, DefaultsAreThePalette) {
  const Theme theme = ParseTheme(L"{}");
  EXPECT_EQ(theme.frame, rgbColor(0xA4, 0x7A, 0x45));
  EXPECT_EQ(theme.disabledFill, rgbColor(0x06, 0x0B, 0x0D));
  EXPECT_EQ(theme.uiFont.fontFamily, L"Bahnschrift");
  EXPECT_EQ(theme.uiFont.weight, 600);
  EXPECT_EQ(theme.monoFont.fontFamily, L"Cascadia Mono");
}

TEST(ThemeRoleColor, RoleWordsAfterNormalization) {
  const Theme theme;
  Color color = 0;
  EXPECT_TRUE(themeRoleColor(theme, L"Accent_Hot", color));
  EXPECT_EQ(color, theme.accentHot);
  EXPECT_TRUE(themeRoleColor(theme, L"muted-text", color));
  EXPECT_EQ(color, theme.mutedText);
  color = 7;
  EXPECT_FALSE(themeRoleColor(theme, L"accentcold", color));
  EXPECT_EQ(color, 7u);
}

struct ModeCase {
  const wchar_t* text;
  SurfaceMode mode;
};

const ModeCase kModeCases[] = {
    {L"flat-2d", SurfaceMode::Flat2d},
    {L" FLAT ", SurfaceMode::Flat2d},
    {L"2d", SurfaceMode::Flat2d},
    {L"sculpted", SurfaceMode::Sculpted3d},
    {L"neon", SurfaceMode::Sculpted3d},
    {L"", SurfaceMode::Sculpted3d},
    {L"material", SurfaceMode::Textured},
    {L"plates", SurfaceMode::BitmapPlates},
    {L"windows-clean", SurfaceMode::WindowsClean},
    {L"flat_2d", SurfaceMode::Sculpted3d},
};

TEST(ParseSurfaceMode, WordsAndFallback) {
  for (const ModeCase& c : kModeCases)
    EXPECT_EQ(parseSurfaceMode(c.text), c.mode) << c.text;
}

TEST(BuildSurface, EachModeHasItsLook) {
  const Theme theme;
  SurfaceRecipe recipe;
  recipe.from = rgbColor(100, 100, 100);
  recipe.to = rgbColor(200, 200, 200);
  recipe.border = rgbColor(10, 20, 30);
  recipe.seed = 20750;

  const SurfaceStyle flat = buildSurface(theme, SurfaceMode::Flat2d, recipe);
  EXPECT_FALSE(flat.useGradient);
  EXPECT_FALSE(flat.showShadow);
  EXPECT_EQ(flat.fill, recipe.from);

  const SurfaceStyle sculpted = buildSurface(theme, SurfaceMode::Sculpted3d, recipe);
  EXPECT_TRUE(sculpted.useGradient);
  EXPECT_EQ(sculpted.gradientMid, rgbColor(150, 150, 150));
  EXPECT_EQ(sculpted.gradientDirection, 0);
  EXPECT_EQ((std::pair{sculpted.shadowOffsetX, sculpted.shadowOffsetY}), (std::pair{7, 9}));
  EXPECT_EQ(sculpted.shadowOpacity, 100);
  EXPECT_TRUE(sculpted.showGlow);
  EXPECT_EQ(sculpted.glow, theme.accentHot);
  EXPECT_EQ(sculpted.glowRadius, 5);
  EXPECT_EQ(sculpted.glowOpacity, 34);

  const SurfaceStyle textured = buildSurface(theme, SurfaceMode::Textured, recipe);
  EXPECT_EQ((std::pair{textured.shadowOffsetX, textured.shadowOffsetY}), (std::pair{5, 6}));
  EXPECT_EQ(textured.shadowOpacity, 72);
  EXPECT_TRUE(textured.useNoise);
  EXPECT_EQ(textured.noiseOpacity, 9);
  EXPECT_EQ(textured.noiseSeed, 20750u);

  const SurfaceStyle plates = buildSurface(theme, SurfaceMode::BitmapPlates, recipe);
  EXPECT_EQ((std::pair{plates.shadowOffsetX, plates.shadowOffsetY}), (std::pair{6, 8}));
  EXPECT_TRUE(plates.showOutline);
  EXPECT_EQ(plates.outline, mixColor(recipe.border, theme.text, 0.35));
  EXPECT_EQ(plates.noiseOpacity, 5);

  const SurfaceStyle clean = buildSurface(theme, SurfaceMode::WindowsClean, recipe);
  EXPECT_FALSE(clean.showShadow);
  EXPECT_EQ(clean.gradientEnd, rgbColor(124, 124, 124));
  EXPECT_EQ(clean.outline, mixColor(recipe.border, theme.textHot, 0.10));

  recipe.elevated = false;
  EXPECT_FALSE(buildSurface(theme, SurfaceMode::Sculpted3d, recipe).showShadow);
  EXPECT_FALSE(buildSurface(theme, SurfaceMode::Sculpted3d, recipe).showGlow);
}

struct GradientWordCase {
  const wchar_t* text;
  bool direction;  // else kind
  int32_t value;   // -1: not a word, the value stays
};

const GradientWordCase kGradientWordCases[] = {
    {L"Top_To_Bottom", true, 0},
    {L"up", true, 1},
    {L"right", true, 2},
    {L"right-to-left", true, 3},
    {L"diagonal", true, 4},
    {L"downleft", true, 5},
    {L"upright", true, 6},
    {L"upleft", true, 7},
    {L"7", true, 7},
    {L"8", true, -1},
    {L"sideways", true, -1},
    {L"linear", false, 0},
    {L"mirrored", false, 1},
    {L"circle", false, 2},
    {L"diamond", false, 3},
    {L"Angular", false, 4},
    {L"5", false, -1},
    {L"spiral", false, -1},
};

TEST(GradientWords, DirectionsAndKinds) {
  for (const GradientWordCase& c : kGradientWordCases) {
    int32_t value = 99;
    const bool parsed =
        c.direction ? parseGradientDirection(c.text, value) : parseGradientKind(c.text, value);
    EXPECT_EQ(parsed, c.value >= 0) << c.text;
    EXPECT_EQ(value, c.value >= 0 ? c.value : 99) << c.text;
  }
}

}  // namespace
}  // namespace tessel
