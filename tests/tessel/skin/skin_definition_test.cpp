#include "tessel/skin/skin_definition.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

JsonValue Parse(const std::wstring& json) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  return value;
}

std::vector<SkinDefinition> Documents(const std::wstring& json) {
  return parseSkinDocuments(Parse(json));
}

SkinDefinition Skin(const std::wstring& members) {
  SkinDefinition skin;
  EXPECT_TRUE(parseSkinDefinition(Parse(L"{\"id\":\"s\",\"name\":\"S\"" + members + L"}"), skin));
  return skin;
}

struct FormCase {
  const char* what;
  const wchar_t* json;
  std::vector<std::wstring> ids;
};

const FormCase kFormCases[] = {
    {"array", L"[{\"id\":\"a\",\"name\":\"A\"},{\"id\":\"b\",\"name\":\"B\"}]", {L"a", L"b"}},
    {"object with skins",
     L"{\"skins\":[{\"id\":\"a\",\"name\":\"A\"}],\"id\":\"x\",\"name\":\"X\"}",
     {L"a"}},
    {"object with one skin", L"{\"skin\":{\"id\":\"a\",\"name\":\"A\"}}", {L"a"}},
    {"the object itself", L"{\"id\":\"a\",\"name\":\"A\"}", {L"a"}},
    {"skins that is not an array falls to the object",
     L"{\"skins\":{},\"id\":\"o\",\"name\":\"O\"}",
     {L"o"}},
    {"a scalar", L"\"a\"", {}},
    {"one good and one bad skin",
     L"{\"skins\":[{\"id\":\"\",\"name\":\"A\"},{\"id\":\"b\",\"name\":\"B\"}]}",
     {L"b"}},
    {"id that is not a string",
     L"[{\"id\":5,\"name\":\"A\"},{\"id\":\"c\",\"name\":\"C\"}]",
     {L"c"}},
    {"missing name", L"[{\"id\":\"a\"}]", {}},
};

TEST(ParseSkinDocuments, TopLevelForms) {
  for (const FormCase& c : kFormCases) {
    std::vector<std::wstring> ids;
    for (const SkinDefinition& skin : Documents(c.json))
      ids.push_back(skin.id);
    EXPECT_EQ(ids, c.ids) << c.what;
  }
}

TEST(ParseSkinDefinition, DefaultsWithoutTheme) {
  const SkinDefinition skin = Skin(L"");
  const Theme defaults;
  EXPECT_EQ(skin.theme.panel, defaults.panel);
  EXPECT_EQ(skin.surfaceMode, SurfaceMode::Sculpted3d);
  EXPECT_EQ(skin.category, L"custom");
  EXPECT_EQ(skin.harmony, L"custom");
  EXPECT_EQ(skin.tags, (std::vector<std::wstring>{L"custom", L"external"}));
  EXPECT_FALSE(skin.materials.enabled);
  EXPECT_EQ(skin.materials.tint, defaults.textHot);
}

TEST(ParseSkinDefinition, WrongKindsCountAsAbsent) {
  const SkinDefinition skin =
      Skin(L",\"theme\":\"dark\",\"surface_mode\":3,\"category\":7,\"materials\":\"glass\"");
  EXPECT_EQ(skin.theme.panel, Theme().panel);
  EXPECT_EQ(skin.surfaceMode, SurfaceMode::Sculpted3d);
  EXPECT_EQ(skin.category, L"custom");
  EXPECT_FALSE(skin.materials.enabled);
  EXPECT_EQ(Skin(L",\"surface_mode\":\"neon\"").surfaceMode, SurfaceMode::Sculpted3d);
  EXPECT_EQ(Skin(L",\"surfaceMode\":\" Windows-Clean \"").surfaceMode, SurfaceMode::WindowsClean);
}

TEST(ParseSkinDefinition, TagsSplitLowerCasedAndCompleted) {
  EXPECT_EQ(Skin(L",\"tags\":\"A|b|a\",\"category\":\"Dark\",\"harmony\":\"mono\"").tags,
            (std::vector<std::wstring>{L"a", L"b", L"dark", L"mono", L"external"}));
  EXPECT_EQ(Skin(L",\"tags\":[\"X\",5,\"\",\"x\",\"y\"]").tags,
            (std::vector<std::wstring>{L"x", L"y", L"custom", L"external"}));
}

TEST(ParseMaterialProfile, PresetsKindsAndClamps) {
  const SkinDefinition zula = Skin(L",\"materials\":{\"surface\":\"zula\"}");
  EXPECT_TRUE(zula.materials.enabled);
  EXPECT_EQ(zula.materials.surface, MaterialKind::Granite);
  EXPECT_EQ(zula.materials.control, MaterialKind::Granite);
  EXPECT_EQ(zula.materials.accent, MaterialKind::Granite);
  EXPECT_EQ(zula.materials.tint, rgbColor(0x70, 0x6C, 0x68));
  EXPECT_EQ(zula.materials.roughness, 118);
  EXPECT_EQ(zula.materials.finish, 1);
  EXPECT_EQ(zula.materials.strength, 150);

  const SkinDefinition glass = Skin(L",\"materials\":{\"surface\":\"glass\",\"accent\":\"ruby\"}");
  EXPECT_TRUE(glass.materials.enabled);
  EXPECT_EQ(glass.materials.surface, MaterialKind::Glass);
  EXPECT_EQ(glass.materials.control, MaterialKind::Glass);
  EXPECT_EQ(glass.materials.accent, MaterialKind::Gemstone);  // a preset's kind only
  EXPECT_EQ(glass.materials.strength, 150);
  EXPECT_EQ(glass.materials.tint, Theme().textHot);

  const SkinDefinition strong =
      Skin(L",\"materials\":{\"material\":\"metal\",\"strength\":300,\"ao\":-4,\"scale\":900}");
  EXPECT_EQ(strong.materials.strength, 255);
  EXPECT_EQ(strong.materials.ambientOcclusion, 0);
  EXPECT_EQ(strong.materials.scale, 900);

  const SkinDefinition off = Skin(L",\"materials\":{\"surface\":\"glass\",\"enabled\":\"no\"}");
  EXPECT_FALSE(off.materials.enabled);
  const SkinDefinition nothing = Skin(L",\"materials\":{\"strength\":90}");
  EXPECT_FALSE(nothing.materials.enabled);
  EXPECT_EQ(nothing.materials.strength, 90);

  // The first string among the surface keys decides; preset words win over kind words.
  const SkinDefinition first = Skin(L",\"materials\":{\"preset\":7,\"surface\":\"marble\"}");
  EXPECT_EQ(first.materials.surface, MaterialKind::Marble);
  EXPECT_EQ(first.materials.tint, rgbColor(0xD6, 0xD0, 0xC4));
  const SkinDefinition tinted =
      Skin(L",\"theme\":{\"text_hot\":\"#123456\"},\"materials\":{\"surface\":\"paper\"}");
  EXPECT_EQ(tinted.materials.tint, rgbColor(0x12, 0x34, 0x56));
}

TEST(ParseShapeSet, RolesPartsAndScrollMetrics) {
  const SkinDefinition skin = Skin(
      L",\"shapes\":{\"buttons\":{\"primaryButton\":\"pill\",\"default\":\"bevel\"},"
      L"\"title_bar\":\"slant-right\",\"card\":\"octagon\",\"progress_bar\":{\"rail\":\"capsule\"},"
      L"\"scroll_bar\":{\"handle\":{\"value\":\"pill\"},\"trackThickness\":9,\"show_buttons\":true}"
      L","
      L"\"window\":\"blob\"}");
  const ShapeSet& set = skin.shapes;
  ASSERT_NE(set.find(L"button.primary"), nullptr);
  EXPECT_EQ(*set.find(L"button.primary"), ShapeKind::Capsule);
  EXPECT_EQ(*set.find(L"button.secondary"), ShapeKind::Bevel);
  EXPECT_EQ(set.find(L"button"), nullptr);
  EXPECT_EQ(*set.find(L"chrome"), ShapeKind::SlantRight);
  EXPECT_EQ(*set.find(L"card"), ShapeKind::Octagon);
  EXPECT_EQ(*set.find(L"progress.track"), ShapeKind::Capsule);
  EXPECT_EQ(*set.find(L"scroll.thumb"), ShapeKind::Capsule);
  EXPECT_EQ(set.scrollTrackThickness, 9);
  EXPECT_EQ(set.scrollShowButtons, 1);
  EXPECT_EQ(set.scrollButtonExtent, -1);
  EXPECT_EQ(set.find(L"window"), nullptr);  // an unknown spelling sets nothing
}

TEST(ParseSkinDefinition, OverridesInSortedOrderStylesThenVariants) {
  const SkinDefinition skin = Skin(
      L",\"variants\":{\"Button\":{\"z\":{\"fill\":\"#000000\"}}},"
      L"\"styles\":{\"panel\":{\"b\":{\"padding\":1},\"A\":{\"padding\":2},\"\":{\"padding\":3},"
      L"\"skip\":\"string\",\"empty\":{\"x\":null}},\"button\":{\"Stayhold-Primary\":{\"shape\":"
      L"\"pill\"}},\"bad\":5}");
  std::vector<std::pair<std::wstring, std::wstring>> order;
  for (const StyleOverride& entry : skin.overrides)
    order.emplace_back(entry.type, entry.id);
  const std::vector<std::pair<std::wstring, std::wstring>> expected = {
      {L"button", L"stayholdprimary"},
      {L"panel", L"default"},
      {L"panel", L"a"},
      {L"panel", L"b"},
      {L"button", L"z"}};
  EXPECT_EQ(order, expected);
}

}  // namespace
}  // namespace tessel
