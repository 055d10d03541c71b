#include "tessel/skin/skin_definition.h"

#include <gtest/gtest.h>

#include "tessel/skin/material_preset.h"

namespace tessel {
namespace {

JsonValue Parse(const std::wstring& json) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(json, value)) << "fixture does not parse";
  return value;
}

SkinDefinition Skin(const std::wstring& members) {
  SkinDefinition skin;
  EXPECT_TRUE(parseSkinDefinition(Parse(L"{\"id\":\"s\",\"name\":\"S\"" + members + L"}"), skin));
  return skin;
}

// A "skins" that is no list falls to the object itself; skins without id or name are dropped.
TEST(ParseSkinDocuments, TopLevelForms) {
  const std::pair<const wchar_t*, std::vector<std::wstring>> kCases[] = {
      {L"[{\"id\":\"a\",\"name\":\"A\"},{\"id\":5,\"name\":\"B\"},{\"id\":\"c\",\"name\":\"C\"}]",
       {L"a", L"c"}},
      {L"{\"skins\":[{\"id\":\"a\",\"name\":\"A\"}],\"id\":\"x\",\"name\":\"X\"}", {L"a"}},
      {L"{\"skins\":{},\"id\":\"o\",\"name\":\"O\"}", {L"o"}},
      {L"\"a\"", {}},
      {L"{\"skin\":{\"id\":\"a\",\"name\":\"A\"}}", {L"a"}},
      {L"{\"skins\":[{\"id\":\"\",\"name\":\"A\"},{\"id\":\"b\"}]}", {}}};
  for (const auto& [json, expected] : kCases) {
    std::vector<std::wstring> ids;
    for (const SkinDefinition& skin : parseSkinDocuments(Parse(json)))
      ids.push_back(skin.id);
    EXPECT_EQ(ids, expected) << json;
  }
}

// Members of the wrong kind count as absent; tags are completed by category, harmony, "external".
TEST(ParseSkinDefinition, WrongKindsCountAsAbsentAndTagsAreCompleted) {
  const SkinDefinition skin =
      Skin(L",\"theme\":\"dark\",\"surface_mode\":3,\"category\":7,\"materials\":\"glass\"");
  EXPECT_EQ(skin.theme.panel, Theme().panel);
  EXPECT_EQ(skin.surfaceMode, SurfaceMode::Sculpted3d);
  EXPECT_EQ(skin.category, L"custom");
  EXPECT_FALSE(skin.materials.enabled);
  EXPECT_EQ(skin.materials.tint, Theme().textHot);
  EXPECT_EQ(Skin(L",\"surfaceMode\":\" Windows-Clean \"").surfaceMode, SurfaceMode::WindowsClean);
  EXPECT_EQ(Skin(L",\"tags\":\"A|b|a\",\"category\":\"Dark\",\"harmony\":\"mono\"").tags,
            (std::vector<std::wstring>{L"a", L"b", L"dark", L"mono", L"external"}));
  EXPECT_EQ(Skin(L",\"tags\":[\"X\",5,\"\",\"x\",\"y\"]").tags,
            (std::vector<std::wstring>{L"x", L"y", L"custom", L"external"}));
}

// The first string among the surface keys decides, preset words before kind words; any word
// switches the material on at the strength 150.
TEST(ParseMaterialProfile, PresetsKindsAndClamps) {
  const auto profile = [](const std::wstring& members) {
    return Skin(L",\"theme\":{\"text_hot\":\"#123456\"},\"materials\":{" + members + L"}")
        .materials;
  };
  const MaterialProfile zula = profile(L"\"surface\":\"zula\"");
  EXPECT_TRUE(zula.control == MaterialKind::Granite && zula.finish == Finish::Polished &&
              zula.strength == 150 && zula.tint == findMaterialPreset(L"granite")->tint);
  const MaterialProfile strong =
      profile(L"\"material\":\"metal\",\"strength\":300,\"ao\":-4,\"scale\":900");
  EXPECT_EQ((std::vector{strong.strength, strong.ambientOcclusion, strong.scale}),
            (std::vector{255, 0, 900}));
  EXPECT_FALSE(profile(L"\"surface\":\"glass\",\"enabled\":\"no\"").enabled);
  const MaterialProfile nothing = profile(L"\"strength\":90");
  EXPECT_TRUE(!nothing.enabled && nothing.strength == 90);
}

// Styles, then variants, each in sorted order; an empty id is "default"; empty entries drop.
TEST(ParseSkinDefinition, OverridesInSortedOrderStylesThenVariants) {
  const SkinDefinition skin = Skin(
      L",\"variants\":{\"Button\":{\"z\":{\"fill\":\"#000000\"}}},"
      L"\"styles\":{\"panel\":{\"b\":{\"padding\":1},\"A\":{\"padding\":2},\"\":{\"padding\":3},"
      L"\"skip\":\"string\",\"empty\":{\"x\":null}},\"button\":{\"Stayhold-Primary\":{\"shape\":"
      L"\"pill\"}},\"bad\":5}");
  std::vector<std::wstring> order;
  for (const StyleOverride& entry : skin.overrides)
    order.push_back(entry.type + L" " + entry.id);
  EXPECT_EQ(order, (std::vector<std::wstring>{L"button stayholdprimary", L"panel default",
                                              L"panel a", L"panel b", L"button z"}));
}

}  // namespace
}  // namespace tessel
