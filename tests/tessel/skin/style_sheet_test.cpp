#include "tessel/skin/style_sheet.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>

#include "tessel/skin/style_record.h"

namespace tessel {
namespace {

SkinDefinition Skin(const std::wstring& members) {
  JsonValue value;
  EXPECT_TRUE(parseJsonText(L"{\"id\":\"s\",\"name\":\"S\"" + members + L"}", value));
  SkinDefinition skin;
  EXPECT_TRUE(parseSkinDefinition(value, skin));
  return skin;
}

TEST(StyleSheet, BaseSeesOnlyStylesThatSortEarlier) {
  const StyleSheet seen(
      Skin(L",\"styles\":{\"button\":{\"b\":{\"base\":\"a\"},\"a\":{\"surface\":{\"fill\":\"#"
           L"123456\"}}}}"));
  EXPECT_EQ(seen.buttons.get(L"b").surface.normal.fill, rgbColor(0x12, 0x34, 0x56));

  const StyleSheet unseen(
      Skin(L",\"styles\":{\"button\":{\"a\":{\"base\":\"b\"},\"b\":{\"surface\":{\"fill\":\"#"
           L"123456\"}}}}"));
  EXPECT_NE(unseen.buttons.get(L"a").surface.normal.fill, rgbColor(0x12, 0x34, 0x56));
  EXPECT_EQ(unseen.buttons.get(L"a").surface.normal.fill,
            unseen.buttons.get(L"default").surface.normal.fill);  // the theme's default
}

TEST(StyleSheet, VariantWithAShapeKeepsEverythingElseOfItsBase) {
  const StyleSheet sheet(
      Skin(L",\"styles\":{\"button\":{\"primary\":{\"surface\":{\"fill\":\"#0A0B0C\"}}}},"
           L"\"variants\":{\"button\":{\"stayhold-primary\":{\"base\":\"primary\",\"shape\":"
           L"\"capsule\"}}}"));
  const ButtonStyle& variant = sheet.buttons.get(L"stayhold-primary");
  const ButtonStyle& primary = sheet.buttons.get(L"primary");
  EXPECT_EQ(variant.surface.hot.shape, ShapeKind::Capsule);
  EXPECT_EQ(variant.surface.normal.fill, rgbColor(0x0A, 0x0B, 0x0C));
  EXPECT_EQ(variant.surface.hot.fill, primary.surface.hot.fill);
  EXPECT_EQ(variant.text, primary.text);
  EXPECT_NE(primary.surface.hot.shape, ShapeKind::Capsule);
}

TEST(StyleSheet, VariantsBeatStylesWhichBeatMaterialWhichBeatsShapes) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"glass\",\"strength\":100},"
           L"\"shapes\":{\"panel\":\"octagon\"},"
           L"\"styles\":{\"panel\":{\"default\":{\"shape\":\"hexagon\",\"surface\":{"
           L"\"materialStrength\":5,"
           L"\"fill\":\"#010101\"}}}},"
           L"\"variants\":{\"panel\":{\"default\":{\"surface\":{\"fill\":\"#020202\"}}}}"));
  const PanelStyle& panel = sheet.panels.get(L"default");
  EXPECT_EQ(panel.surface.shape, ShapeKind::Hexagon);
  EXPECT_EQ(panel.surface.materialStrength, 5);
  EXPECT_EQ(panel.surface.fill, rgbColor(2, 2, 2));
  EXPECT_EQ(sheet.panels.get(L"raised").surface.shape, ShapeKind::Octagon);
  EXPECT_EQ(sheet.panels.get(L"raised").surface.material, MaterialKind::Glass);
  EXPECT_EQ(sheet.panels.get(L"raised").surface.materialStrength, 92);  // 100 - 8
}

TEST(StyleSheet, MaterialDeltasByRoleAndState) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"paper\",\"accent\":\"gloss\",\"strength\":120}"));
  const ButtonStyle& button = sheet.buttons.get(L"default");
  EXPECT_EQ(button.surface.normal.material, MaterialKind::Paper);
  EXPECT_EQ(button.surface.normal.materialStrength, 110);
  EXPECT_EQ(button.surface.hot.materialStrength, 118);
  EXPECT_EQ(button.surface.pressed.materialStrength, 104);
  EXPECT_EQ(button.surface.active.materialStrength, 120);
  const ButtonStyle& primary = sheet.buttons.get(L"primary");
  EXPECT_EQ(primary.surface.normal.material, MaterialKind::Gloss);
  EXPECT_EQ(primary.surface.hot.materialStrength, 136);
  EXPECT_EQ(sheet.panels.get(L"glass").surface.material, MaterialKind::FrostedGlass);
  EXPECT_EQ(sheet.panels.get(L"glass").surface.materialStrength, 124);
  EXPECT_EQ(sheet.checkBoxes.get(L"default").unchecked.normal.materialStrength, 104);
  EXPECT_EQ(sheet.scrollBars.get(L"default").thumb.pressed.materialStrength, 106);
  // Without a profile nothing changes.
  EXPECT_EQ(StyleSheet(Skin(L"")).buttons.get(L"default").surface.normal.material,
            MaterialKind::None);
}

TEST(StyleSheet, ShapeRolesReachTheirRecords) {
  const StyleSheet sheet(Skin(
      L",\"shapes\":{\"button\":{\"primary\":\"pill\"},\"table\":{\"header\":\"bevel\"},"
      L"\"scrollbar\":{\"thumb\":\"capsule\",\"thumbThickness\":7},\"checkbox\":\"diamond\"}"));
  EXPECT_EQ(sheet.buttons.get(L"primary").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_EQ(sheet.buttons.get(L"danger").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_NE(sheet.buttons.get(L"default").surface.pressed.shape, ShapeKind::Capsule);
  EXPECT_EQ(sheet.tableLists.get(L"default").header.shape, ShapeKind::Bevel);
  EXPECT_NE(sheet.tableLists.get(L"default").row.shape, ShapeKind::Bevel);
  EXPECT_EQ(sheet.scrollBars.get(L"default").thumbThickness, 7);
  EXPECT_EQ(sheet.selectBoxes.get(L"default").scrollBar.thumbThickness, 7);
  EXPECT_EQ(sheet.checkBoxes.get(L"default").checked.hot.shape, ShapeKind::Diamond);
}

TEST(StyleSheet, WindowOverridesOnlyWithTheDefaultId) {
  const StyleSheet primary(
      Skin(L",\"styles\":{\"window\":{\"primary\":{\"resizeBorderThickness\":20}}}"));
  EXPECT_EQ(primary.window().resizeBorderThickness, WindowStyle().resizeBorderThickness);
  const StyleSheet byDefault(
      Skin(L",\"styles\":{\"windowstyle\":{\"default\":{\"resizeBorderThickness\":20,\"surface\":"
           L"{\"fill\":\"#332211\"}}}}"));
  EXPECT_EQ(byDefault.window().resizeBorderThickness, 20);
  EXPECT_EQ(byDefault.window().surface.fill, rgbColor(0x33, 0x22, 0x11));
}

TEST(StyleSheet, TypeSpellingsAndUnknownTypes) {
  const StyleSheet sheet(
      Skin(L",\"styles\":{\"tree_list\":{\"x\":{\"rowHeight\":40}},\"combo\":{\"x\":{"
           L"\"itemHeight\":33}},"
           L"\"list\":{\"x\":{\"rowHeight\":41}},\"Text-Style\":{\"x\":{\"weight\":\"bold\"}},"
           L"\"gizmo\":{\"x\":{\"a\":1}}}"));
  EXPECT_EQ(sheet.listBoxes.get(L"x").rowHeight, 40);
  EXPECT_EQ(sheet.selectBoxes.get(L"x").itemHeight, 33);
  EXPECT_EQ(sheet.tableLists.get(L"x").rowHeight, 41);
  EXPECT_EQ(sheet.text.get(L"x").weight, 700);
  EXPECT_FALSE(sheet.tooltips.contains(L"x"));
}

TEST(StyleSheet, AliasesCopyTheActionColoursWhenAbsent) {
  const StyleSheet sheet(
      Skin(L",\"styles\":{\"button\":{\"warning-action\":{\"surface\":{\"fill\":\"#010203\"}},"
           L"\"success\":{\"surface\":{\"fill\":\"#040506\"}}}}"));
  EXPECT_EQ(sheet.buttons.get(L"success-action").surface.normal.fill, rgbColor(4, 5, 6));
  EXPECT_EQ(sheet.buttons.get(L"warning-action").surface.normal.fill, rgbColor(1, 2, 3));
  EXPECT_TRUE(sheet.buttons.contains(L"danger-action"));
  EXPECT_TRUE(sheet.buttons.contains(L"action"));
  EXPECT_TRUE(sheet.buttons.contains(L"designed-help"));
}

TEST(StyleSheet, UnknownIdsFallToDefaultAndIdsIgnoreSpelling) {
  const StyleSheet sheet{Theme()};
  EXPECT_EQ(&sheet.cards.get(L"nope"), &sheet.cards.get(L"default"));
  EXPECT_EQ(&sheet.buttons.get(L"Primary_Action"), &sheet.buttons.get(L"primary-action"));
  EXPECT_TRUE(sheet.text.contains(L"title"));
  EXPECT_TRUE(sheet.panels.contains(L"dashboard"));
  EXPECT_TRUE(sheet.cards.contains(L"warning"));
}

// Skins key each state of these controls apart; every spelling lands on its own state alone.
TEST(StyleSheet, StateKeysLandOnTheirStateAlone) {
  struct Case {
    const wchar_t* type;
    const wchar_t* key;
    const ControlStates& (*states)(const StyleSheet&);
    SurfaceStyle ControlStates::*state;
  };
  const Case kCases[] = {
      {L"checkbox", L"boxUncheckedHot",
       [](const StyleSheet& s) -> const ControlStates& { return s.checkBoxes.get(L"x").unchecked; },
       &ControlStates::hot},
      {L"checkbox", L"box_checked_disabled",
       [](const StyleSheet& s) -> const ControlStates& { return s.checkBoxes.get(L"x").checked; },
       &ControlStates::disabled},
      {L"selectbox", L"pressedSurface",
       [](const StyleSheet& s) -> const ControlStates& { return s.selectBoxes.get(L"x").surface; },
       &ControlStates::pressed},
      {L"combo", L"arrowPressedSurface",
       [](const StyleSheet& s) -> const ControlStates& {
         return s.selectBoxes.get(L"x").arrowSurface;
       },
       &ControlStates::pressed},
      {L"selectbox", L"optionSelectedSurface",
       [](const StyleSheet& s) -> const ControlStates& {
         return s.selectBoxes.get(L"x").optionSurface;
       },
       &ControlStates::active},
      {L"textinput", L"focusedSurface",
       [](const StyleSheet& s) -> const ControlStates& { return s.textInputs.get(L"x").surface; },
       &ControlStates::active},
      {L"dateinput", L"daySelectedSurface",
       [](const StyleSheet& s) -> const ControlStates& {
         return s.dateInputs.get(L"x").daySurface;
       },
       &ControlStates::active},
      {L"menubar", L"itemActiveSurface",
       [](const StyleSheet& s) -> const ControlStates& { return s.menuBars.get(L"x").itemSurface; },
       &ControlStates::active},
      {L"menu", L"popupItemPressedSurface",
       [](const StyleSheet& s) -> const ControlStates& {
         return s.menuBars.get(L"x").popupItemSurface;
       },
       &ControlStates::pressed},
      {L"listbox", L"selectedRowHot",
       [](const StyleSheet& s) -> const ControlStates& {
         return s.listBoxes.get(L"x").selectedRow;
       },
       &ControlStates::hot},
  };
  const Color kGiven = rgbColor(0x0A, 0x0B, 0x0C);
  for (const Case& c : kCases) {
    const std::wstring type = c.type, key = c.key;
    SCOPED_TRACE(std::string(key.begin(), key.end()));
    const StyleSheet sheet(
        Skin(L",\"styles\":{\"" + type + L"\":{\"x\":{\"" + key + L"\":{\"fill\":\"#0A0B0C\"}}}}"));
    const ControlStates& states = c.states(sheet);
    for (SurfaceStyle ControlStates::*state :
         {&ControlStates::normal, &ControlStates::hot, &ControlStates::pressed,
          &ControlStates::disabled, &ControlStates::active}) {
      EXPECT_EQ((states.*state).fill == kGiven, state == c.state);
    }
  }
}

TEST(StyleSheet, StateShapeRolesAndMaterialReachTheSameStatesAsBefore) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"paper\",\"control\":\"rubber\",\"accent\":"
           L"\"gloss\",\"strength\":120},\"shapes\":{\"select_arrow\":\"diamond\","
           L"\"listbox\":{\"row\":\"hexagon\"},\"menu_popup_item\":\"bevel\","
           L"\"text_input\":\"pill\"}"));
  const SelectBoxStyle& select = sheet.selectBoxes.get(L"default");
  for (const SurfaceStyle* arrow : {&select.arrowSurface.normal, &select.arrowSurface.hot,
                                    &select.arrowSurface.pressed, &select.arrowSurface.disabled})
    EXPECT_EQ(arrow->shape, ShapeKind::Diamond);
  EXPECT_NE(select.surface.normal.shape, ShapeKind::Diamond);
  const HierarchicalListBoxStyle& list = sheet.listBoxes.get(L"default");
  for (const SurfaceStyle* row : {&list.row.normal, &list.row.hot, &list.row.pressed})
    EXPECT_EQ(row->shape, ShapeKind::Hexagon);
  EXPECT_NE(list.selectedRow.normal.shape, ShapeKind::Hexagon);
  const MenuBarStyle& menu = sheet.menuBars.get(L"default");
  EXPECT_EQ(menu.popupItemSurface.hot.shape, ShapeKind::Bevel);
  EXPECT_EQ(menu.popupItemSurface.pressed.shape, ShapeKind::Bevel);
  EXPECT_NE(menu.itemSurface.hot.shape, ShapeKind::Bevel);
  const TextInputStyle& input = sheet.textInputs.get(L"default");
  EXPECT_EQ(input.surface.active.shape, ShapeKind::Capsule);
  EXPECT_EQ(input.surface.disabled.shape, ShapeKind::Capsule);

  // The box of a check box wears the control material unchecked and the accent checked.
  const CheckBoxStyle& check = sheet.checkBoxes.get(L"default");
  EXPECT_EQ(check.unchecked.pressed.material, MaterialKind::Rubber);
  EXPECT_EQ(check.checked.pressed.material, MaterialKind::Gloss);
  // Hot is the strongest state of a select box, disabled the weakest.
  EXPECT_GT(select.surface.hot.materialStrength, select.surface.normal.materialStrength);
  EXPECT_GT(select.surface.normal.materialStrength, select.surface.pressed.materialStrength);
  EXPECT_GT(select.surface.pressed.materialStrength, select.surface.disabled.materialStrength);
  EXPECT_EQ(select.arrowSurface.normal.material, MaterialKind::None);
  // An input's focus takes the material; pressing and disabling it don't.
  EXPECT_EQ(input.surface.active.material, MaterialKind::Rubber);
  EXPECT_EQ(input.surface.pressed.material, MaterialKind::None);
  EXPECT_EQ(input.surface.disabled.material, MaterialKind::None);
  EXPECT_EQ(sheet.dateInputs.get(L"default").surface.disabled.material, MaterialKind::None);
  EXPECT_EQ(list.selectedRow.hot.material, MaterialKind::Gloss);
  EXPECT_EQ(list.row.hot.material, MaterialKind::None);
  // Buttons inside other records take their parent's slot: accent for a popup's primary action.
  const PopupStyle& popup = sheet.popups.get(L"default");
  EXPECT_EQ(popup.primaryAction.surface.disabled.material, MaterialKind::Gloss);
  EXPECT_EQ(popup.closeButton.surface.hot.material, MaterialKind::Rubber);
  EXPECT_GT(popup.primaryAction.surface.hot.materialStrength,
            popup.closeButton.surface.hot.materialStrength);
}

// Hovering strengthens a control's material, pressing and disabling weaken it; a surface on the
// skin's surface slot never shines above the skin's own strength.
void ExpectStatesOrdered(const ControlStates& states, const std::string& what) {
  const SurfaceStyle* const order[] = {&states.hot, &states.normal, &states.pressed,
                                       &states.disabled};
  for (size_t i = 0; i < std::size(order); ++i) {
    for (size_t j = i + 1; j < std::size(order); ++j) {
      if (order[i]->material == MaterialKind::None || order[j]->material == MaterialKind::None)
        continue;
      EXPECT_GT(order[i]->materialStrength, order[j]->materialStrength)
          << what << " states " << i << " and " << j;
    }
  }
}

template <typename Record>
void ExpectMaterialOrder(Record record, const std::string& what, int32_t strength) {
  std::set<const ControlStates*> seen;  // several rows may name states of one set
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    if (const auto* state = std::get_if<StateOf<Record>>(&field.target)) {
      if (seen.insert(&(record.*(state->states))).second)
        ExpectStatesOrdered(record.*(state->states), what);
      continue;
    }
    field_walk::withValue(record, field, [&](auto& value) {
      using Value = std::remove_reference_t<decltype(value)>;
      if constexpr (std::is_same_v<Value, ControlStates>) {
        ExpectStatesOrdered(value, what);
      } else if constexpr (StyleRecord<Value>) {
        ExpectMaterialOrder(value, what + " nested", strength);
      } else if constexpr (std::is_same_v<Value, SurfaceStyle>) {
        if (field.material.slot == &MaterialProfile::surface) {
          EXPECT_LE(value.materialStrength, strength) << what;
        }
      }
    });
  }
}

TEST(StyleSheet, MaterialStrengthFollowsTheStates) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"paper\",\"control\":\"rubber\",\"accent\":"
           L"\"gloss\",\"strength\":120}"));
  const auto each = [](const auto& map, const char* kind) {
    for (const auto& [id, record] : map.all())
      ExpectMaterialOrder(record, kind + std::string(" ") + std::string(id.begin(), id.end()), 120);
  };
  each(sheet.buttons, "button");
  each(sheet.cards, "card");
  each(sheet.chromeTitleBars, "chrome");
  each(sheet.statusChips, "chip");
  each(sheet.progressBars, "progress");
  each(sheet.scrollBars, "scroll");
  each(sheet.checkBoxes, "check");
  each(sheet.selectBoxes, "select");
  each(sheet.listBoxes, "list");
  each(sheet.dateInputs, "date");
  each(sheet.tabStrips, "tabs");
  each(sheet.menuBars, "menu");
  each(sheet.tableLists, "table");
  each(sheet.richTexts, "rich");
  each(sheet.textInputs, "input");
  each(sheet.selectableTexts, "selectable");
  each(sheet.popups, "popup");
  each(sheet.tooltips, "tooltip");
  ExpectMaterialOrder(sheet.window(), "window", 120);
}

}  // namespace
}  // namespace tessel
