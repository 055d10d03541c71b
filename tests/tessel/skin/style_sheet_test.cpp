#include "tessel/skin/style_sheet.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>
#include <typeinfo>

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

// A base is seen only when it sorts earlier; variants beat styles, the material, then shapes.
// A window reads only its "default" override; aliases copy action styles the skin lacks.
TEST(StyleSheet, BasesPrecedenceTypesAndAliases) {
  const StyleSheet bases(
      Skin(L",\"styles\":{\"button\":{\"b\":{\"base\":\"a\"},\"a\":{\"base\":\"c\",\"surface\":{"
           L"\"fill\":\"#123456\"}},\"c\":{\"surface\":{\"border\":\"#654321\"}},\"success\":{"
           L"\"surface\":{\"fill\":\"#040506\"}}},\"tree_list\":{\"x\":{\"rowHeight\":40}},"
           L"\"gizmo\":{\"x\":{\"a\":1}},\"window\":{\"primary\":{\"resizeBorderThickness\":20}},"
           L"\"windowstyle\":{\"default\":{\"surface\":{\"fill\":\"#332211\"}}}}"));
  EXPECT_EQ(bases.buttons.get(L"b").surface.normal.fill, rgbColor(0x12, 0x34, 0x56));
  EXPECT_EQ(bases.buttons.get(L"a").surface.normal.border,
            bases.buttons.get(L"default").surface.normal.border);
  EXPECT_TRUE(bases.listBoxes.get(L"x").rowHeight == 40 && !bases.tooltips.contains(L"x"));
  EXPECT_EQ(bases.window().resizeBorderThickness, WindowStyle().resizeBorderThickness);
  EXPECT_EQ(bases.window().surface.fill, rgbColor(0x33, 0x22, 0x11));
  EXPECT_EQ(&bases.buttons.get(L"Primary_Action"), &bases.buttons.get(L"primary-action"));
  EXPECT_EQ(bases.buttons.get(L"success-action").surface.normal.fill, rgbColor(4, 5, 6));
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"glass\",\"strength\":100},\"shapes\":{\"panel\":"
           L"\"octagon\"},\"styles\":{\"panel\":{\"default\":{\"shape\":\"hexagon\",\"surface\":{"
           L"\"materialStrength\":5,\"fill\":\"#010101\"}}}},\"variants\":{\"panel\":{\"default\":{"
           L"\"surface\":{\"fill\":\"#020202\"}}}}"));
  const SurfaceStyle& panel = sheet.panels.get(L"default").surface;
  EXPECT_TRUE(panel.shape == ShapeKind::Hexagon && panel.materialStrength == 5 &&
              panel.fill == rgbColor(2, 2, 2));
}

#define STATES(map, member) \
  [](const StyleSheet& s) -> const ControlStates& { return s.map.get(L"x").member; }

// Skins key each state of these controls apart; every spelling lands on its own state alone.
TEST(StyleSheet, StateKeysLandOnTheirStateAlone) {
  using CS = ControlStates;
  const struct {
    const wchar_t *type, *key;
    const ControlStates& (*states)(const StyleSheet&);
    SurfaceStyle ControlStates::*state;
  } kCases[] = {
      {L"checkbox", L"boxUncheckedHot", STATES(checkBoxes, unchecked), &CS::hot},
      {L"checkbox", L"box_checked_disabled", STATES(checkBoxes, checked), &CS::disabled},
      {L"selectbox", L"pressedSurface", STATES(selectBoxes, surface), &CS::pressed},
      {L"combo", L"arrowPressedSurface", STATES(selectBoxes, arrowSurface), &CS::pressed},
      {L"selectbox", L"optionSelectedSurface", STATES(selectBoxes, optionSurface), &CS::active},
      {L"textinput", L"focusedSurface", STATES(textInputs, surface), &CS::active},
      {L"dateinput", L"daySelectedSurface", STATES(dateInputs, daySurface), &CS::active},
      {L"menubar", L"itemActiveSurface", STATES(menuBars, itemSurface), &CS::active},
      {L"menu", L"popupItemPressedSurface", STATES(menuBars, popupItemSurface), &CS::pressed},
      {L"listbox", L"selectedRowHot", STATES(listBoxes, selectedRow), &CS::hot},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(testing::Message() << c.key);
    const StyleSheet sheet(Skin(std::wstring(L",\"styles\":{\"") + c.type + L"\":{\"x\":{\"" +
                                c.key + L"\":{\"fill\":\"#0A0B0C\"}}}}"));
    const ControlStates& states = c.states(sheet);
    for (auto state : {&CS::normal, &CS::hot, &CS::pressed, &CS::disabled, &CS::active})
      EXPECT_EQ((states.*state).fill == rgbColor(0x0A, 0x0B, 0x0C), state == c.state);
  }
}

// Hovering strengthens a control's material, pressing and disabling weaken it; a surface on the
// skin's surface slot never shines above the skin's own strength (120).
void ExpectStatesOrdered(const ControlStates& s, const std::string& what) {
  const SurfaceStyle* const order[] = {&s.hot, &s.normal, &s.pressed, &s.disabled};
  for (size_t i = 0; i < 4; ++i)
    for (size_t j = i + 1; j < 4; ++j)
      if (order[i]->material != MaterialKind::None && order[j]->material != MaterialKind::None) {
        EXPECT_GT(order[i]->materialStrength, order[j]->materialStrength) << what << i << j;
      }
}

template <typename Record>
void ExpectMaterialOrder(Record record, const std::string& what) {
  std::set<const ControlStates*> seen;  // several rows may name states of one set
  for (const StyleField<Record>& field : StyleFields<Record>::rows) {
    if (const auto* state = std::get_if<StateOf<Record>>(&field.target)) {
      if (seen.insert(&(record.*(state->states))).second)
        ExpectStatesOrdered(record.*(state->states), what);
      continue;
    }
    field_walk::withValue(record, field, [&](auto& value) {
      using Value = std::remove_reference_t<decltype(value)>;
      if constexpr (std::is_same_v<Value, ControlStates>)
        ExpectStatesOrdered(value, what);
      else if constexpr (StyleRecord<Value>)
        ExpectMaterialOrder(value, what + " nested");
      else if constexpr (std::is_same_v<Value, SurfaceStyle>) {
        EXPECT_TRUE(field.material.slot != &MaterialProfile::surface ||
                    value.materialStrength <= 120)
            << what;
      }
    });
  }
}

// Accent buttons take `button.primary`; a glass panel frosts over paper; an unset metric of the
// shapes block keeps the builder's. Materials follow the states throughout.
TEST(StyleSheet, ShapeRolesMaterialSlotsAndMaterialStrengthFollowsTheStates) {
  const StyleSheet sheet(
      Skin(L",\"materials\":{\"surface\":\"paper\",\"control\":\"rubber\",\"accent\":"
           L"\"gloss\",\"strength\":120},\"shapes\":{\"button\":{\"primary\":\"pill\"},"
           L"\"scrollbar\":{\"thumbThickness\":7,\"showButtons\":true}}"));
  const auto shape = [&](const wchar_t* id) { return sheet.buttons.get(id).surface.pressed.shape; };
  EXPECT_TRUE(shape(L"primary") == ShapeKind::Capsule && shape(L"danger") == ShapeKind::Capsule &&
              shape(L"default") != ShapeKind::Capsule);
  EXPECT_FALSE(sheet.buttons.get(L"primary").hitShape.present);
  const ScrollBarStyle& bar = sheet.selectBoxes.get(L"default").scrollBar;
  EXPECT_TRUE(bar.thumbThickness == 7 && bar.showButtons && bar.buttonExtent > 0);
  const SurfaceStyle& glassy = sheet.panels.get(L"glass").surface;
  EXPECT_TRUE(glassy.material == MaterialKind::FrostedGlass && glassy.materialStrength == 124);
  EXPECT_EQ(sheet.panels.get(L"raised").surface.materialStrength, 112);
  const auto each = [&](auto... maps) {
    const auto one = [](const auto& map) {
      for (const auto& [id, record] : map.all())
        ExpectMaterialOrder(record, typeid(record).name() + std::string(id.begin(), id.end()));
    };
    (one(sheet.*maps), ...);
  };
  using S = StyleSheet;
  each(&S::buttons, &S::cards, &S::chromeTitleBars, &S::statusChips, &S::progressBars,
       &S::scrollBars, &S::checkBoxes, &S::selectBoxes, &S::listBoxes, &S::dateInputs,
       &S::tabStrips, &S::menuBars, &S::tableLists, &S::richTexts, &S::textInputs,
       &S::selectableTexts, &S::popups, &S::tooltips);
  ExpectMaterialOrder(sheet.window(), "window");
}

}  // namespace
}  // namespace tessel
