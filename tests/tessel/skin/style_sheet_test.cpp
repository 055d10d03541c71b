#include "tessel/skin/style_sheet.h"

#include <gtest/gtest.h>

#include <string>

namespace tessel {
namespace {

SkinDefinition Skin(const std::wstring& members) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(L"{\"id\":\"s\",\"name\":\"S\"" + members + L"}", value));
  SkinDefinition skin;
  EXPECT_TRUE(parseSkinDefinition(value, skin));
  return skin;
}

// A base is seen only when it sorts earlier; variants beat styles, the material, then shapes.
TEST(StyleSheet, BasesAndPrecedence) {
  const StyleSheet bases(
      Skin(L",\"styles\":{\"button\":{\"b\":{\"base\":\"a\"},\"a\":{\"base\":\"c\",\"surface\":{"
           L"\"fill\":\"#123456\"}},\"c\":{\"surface\":{\"border\":\"#654321\"}}}}"));
  EXPECT_EQ(bases.buttons.get(L"b").surface.normal.fill, rgbColor(0x12, 0x34, 0x56));
  EXPECT_EQ(bases.buttons.get(L"a").surface.normal.border,
            bases.buttons.get(L"default").surface.normal.border);
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"glass\",\"strength\":100},\"shapes\":{\"panel\":"
           L"\"octagon\"},\"styles\":{\"panel\":{\"default\":{\"shape\":\"hexagon\",\"surface\":{"
           L"\"materialStrength\":5,\"fill\":\"#010101\"}}},\"button\":{\"primary\":{\"surface\":{"
           L"\"fill\":\"#0A0B0C\"}}}},\"variants\":{\"panel\":{\"default\":{\"surface\":{\"fill\":"
           L"\"#020202\"}}},\"button\":{\"stayhold-primary\":{\"base\":\"primary\",\"shape\":"
           L"\"capsule\"}}}"));
  const PanelStyle& panel = sheet.panels.get(L"default");
  EXPECT_EQ(panel.surface.shape, ShapeKind::Hexagon);
  EXPECT_EQ(panel.surface.materialStrength, 5);
  EXPECT_EQ(panel.surface.fill, rgbColor(2, 2, 2));
  EXPECT_EQ(sheet.panels.get(L"raised").surface.shape, ShapeKind::Octagon);
  EXPECT_EQ(sheet.panels.get(L"raised").surface.material, MaterialKind::Glass);
  const ButtonStyle& variant = sheet.buttons.get(L"stayhold-primary");
  const ButtonStyle& primary = sheet.buttons.get(L"primary");
  EXPECT_EQ(variant.surface.hot.shape, ShapeKind::Capsule);
  EXPECT_NE(primary.surface.hot.shape, ShapeKind::Capsule);
  EXPECT_EQ(variant.surface.normal.fill, rgbColor(0x0A, 0x0B, 0x0C));
  EXPECT_EQ(variant.surface.hot.fill, primary.surface.hot.fill);
  EXPECT_EQ(variant.text, primary.text);
}

// Accent buttons take `button.primary`; a glass panel frosts over paper.
TEST(StyleSheet, ShapeRolesAndMaterialSlots) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"paper\",\"control\":\"rubber\",\"accent\":"
           L"\"gloss\",\"strength\":120},\"shapes\":{\"button\":{\"primary\":\"pill\"},"
           L"\"table\":{\"header\":\"bevel\"},\"scrollbar\":{\"thumbThickness\":7}}"));
  EXPECT_EQ(sheet.buttons.get(L"primary").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_EQ(sheet.buttons.get(L"danger").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_NE(sheet.buttons.get(L"default").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_EQ(sheet.tableLists.get(L"default").header.shape, ShapeKind::Bevel);
  EXPECT_NE(sheet.tableLists.get(L"default").row.shape, ShapeKind::Bevel);
  EXPECT_EQ(sheet.selectBoxes.get(L"default").scrollBar.thumbThickness, 7);
  EXPECT_EQ(sheet.checkBoxes.get(L"default").unchecked.pressed.material, MaterialKind::Rubber);
  EXPECT_EQ(sheet.checkBoxes.get(L"default").checked.pressed.material, MaterialKind::Gloss);
  EXPECT_EQ(sheet.popups.get(L"default").primaryAction.surface.hot.material, MaterialKind::Gloss);
  EXPECT_EQ(sheet.panels.get(L"glass").surface.material, MaterialKind::FrostedGlass);
  EXPECT_EQ(sheet.panels.get(L"glass").surface.materialStrength, 124);
  EXPECT_EQ(sheet.panels.get(L"raised").surface.materialStrength, 112);
  const StyleSheet glass(Skin(L",\"materials\":{\"surface\":\"glass\"}"));
  EXPECT_EQ(glass.panels.get(L"glass").surface.material, MaterialKind::Glass);
}

// A window reads only its "default" override; aliases copy action styles the skin lacks.
TEST(StyleSheet, TypesIdsWindowAndAliases) {
  const StyleSheet sheet(
      Skin(L",\"styles\":{\"tree_list\":{\"x\":{\"rowHeight\":40}},\"combo\":{\"x\":{"
           L"\"itemHeight\":33}},\"list\":{\"x\":{\"rowHeight\":41}},\"Text-Style\":{\"x\":{"
           L"\"weight\":\"bold\"}},\"gizmo\":{\"x\":{\"a\":1}},\"window\":{\"primary\":{"
           L"\"resizeBorderThickness\":20}},\"button\":{\"warning-action\":{\"surface\":{\"fill\":"
           L"\"#010203\"}},\"success\":{\"surface\":{\"fill\":\"#040506\"}}}}"));
  EXPECT_EQ(sheet.listBoxes.get(L"x").rowHeight, 40);
  EXPECT_EQ(sheet.selectBoxes.get(L"x").itemHeight, 33);
  EXPECT_EQ(sheet.tableLists.get(L"x").rowHeight, 41);
  EXPECT_EQ(sheet.text.get(L"x").weight, 700);
  EXPECT_FALSE(sheet.tooltips.contains(L"x"));
  EXPECT_EQ(sheet.window().resizeBorderThickness, WindowStyle().resizeBorderThickness);
  const StyleSheet byDefault(
      Skin(L",\"styles\":{\"windowstyle\":{\"default\":{\"resizeBorderThickness\":20,\"surface\":"
           L"{\"fill\":\"#332211\"}}}}"));
  EXPECT_EQ(byDefault.window().resizeBorderThickness, 20);
  EXPECT_EQ(byDefault.window().surface.fill, rgbColor(0x33, 0x22, 0x11));

  EXPECT_EQ(&sheet.cards.get(L"nope"), &sheet.cards.get(L"default"));
  EXPECT_EQ(&sheet.buttons.get(L"Primary_Action"), &sheet.buttons.get(L"primary-action"));
  EXPECT_EQ(sheet.buttons.get(L"success-action").surface.normal.fill, rgbColor(4, 5, 6));
  EXPECT_EQ(sheet.buttons.get(L"warning-action").surface.normal.fill, rgbColor(1, 2, 3));
  for (const wchar_t* id : {L"danger-action", L"action", L"designed-help"})
    EXPECT_TRUE(sheet.buttons.contains(id)) << id;
}

}  // namespace
}  // namespace tessel
