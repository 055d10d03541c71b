#include "tessel/skin/style_record.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <vector>

namespace tessel {
namespace {

template <typename F>
void ForEachRecord(F&& f) {
  std::apply([&](auto... record) { (f(record), ...); },
             std::tuple<ScrollAcceleration, ButtonStyle, BitmapButtonStyle, PanelStyle, CardStyle,
                        ChromeTitleBarStyle, StatusChipStyle, ProgressBarStyle, ScrollBarStyle,
                        CheckBoxStyle, SelectBoxStyle, HierarchicalListBoxStyle, DateInputStyle,
                        TabStripStyle, MenuBarStyle, TableListStyle, RichTextStyle, TextInputStyle,
                        SelectableTextStyle, PopupStyle, TooltipStyle, WindowStyle>());
}

std::string Narrow(const std::wstring& text) {
  return std::string(text.begin(), text.end());
}

// Skins normalize keys, so two spellings that normalize alike are one key: a record's keys must
// differ after normalizing, and no field key may double as a shape key.
TEST(StyleFieldTables, EveryKeyOfARecordIsSpelledOnce) {
  ForEachRecord([](auto record) {
    using Record = decltype(record);
    SCOPED_TRACE(typeid(Record).name());
    std::map<std::wstring, int> keys, shapeKeys;
    for (const StyleField<Record>& field : StyleFields<Record>::rows) {
      for (const wchar_t* key : field.keys)
        if (key != nullptr && *key != L'\0') ++keys[normalizeKey(key)];
      for (const wchar_t* key : field.shapeKeys)
        if (key != nullptr) shapeKeys[normalizeKey(key)] = 1;
    }
    EXPECT_FALSE(keys.empty());
    for (const auto& [key, count] : keys)
      EXPECT_TRUE(count == 1 && !shapeKeys.contains(key)) << Narrow(key);
  });
}

// Gives the index-th spelling of a field, under `key`, a value of its own that a new record
// (`fresh`) doesn't hold; with `value`, tells whether the field holds what that spelling gave.
template <typename Value>
bool Probe(const Value& fresh, int index, PropertyTable* keys, const std::wstring& key = L"",
           const Value* value = nullptr) {
  const std::wstring number = std::to_wstring(30 + index);
  const auto give = [&](const std::wstring& path, const std::wstring& text) {
    if (keys) (*keys)[normalizeKeyPath(path)] = text;
  };
  const uint32_t given = static_cast<uint32_t>(0x30 + index);
  if constexpr (std::is_same_v<Value, TextStyle>) {
    give(key.empty() ? L"pointSize" : key + L".pointSize", number);
    return value && value->pointSize == 30 + index;
  } else if constexpr (std::is_same_v<Value, TintStates>) {
    give(key.empty() ? L"tintColor" : key + L".color", L"#0000" + number);
    return value && value->normal.color == rgbColor(0, 0, given) &&
           value->disabled.color == rgbColor(0, 0, given);
  } else if constexpr (std::is_same_v<Value, ScrollAcceleration>) {
    give(key + L".resetMs", number);
    return value && value->resetMs == 30 + index;
  } else if constexpr (std::is_same_v<Value, bool>) {
    give(key, fresh ? L"false" : L"true");
    return value && *value != fresh;
  } else if constexpr (std::is_same_v<Value, Color>) {
    give(key, L"#1020" + number);
    return value && *value == rgbColor(0x10, 0x20, given);
  } else if constexpr (std::is_arithmetic_v<Value>) {
    give(key, number);
    return value && *value == static_cast<Value>(30 + index);
  } else {
    ADD_FAILURE() << "no probe for a field with aliases of this kind";
    return false;
  }
}

// Each spelling of a field alone lands in that field; with all of them given, the last wins.
TEST(StyleFieldTables, EveryAliasReachesItsFieldAndTheLastWins) {
  const Theme theme;
  const StyleContext context{&theme, L""};
  int fieldsWithAliases = 0;
  ForEachRecord([&](auto record) {
    using Record = decltype(record);
    for (const StyleField<Record>& field : StyleFields<Record>::rows) {
      std::vector<std::wstring> spellings;
      for (const wchar_t* key : field.keys)
        if (key != nullptr) spellings.push_back(key);
      if (spellings.size() < 2) continue;
      ++fieldsWithAliases;
      std::visit(
          [&](const auto& target) {
            Record fresh;
            // Compiled for every kind of member; a record never holds one larger than itself.
            using Value = std::remove_cvref_t<decltype(field_walk::resolve(fresh, target))>;
            if constexpr (sizeof(Value) <= sizeof(Record)) {
              const Value& before = field_walk::resolve(fresh, target);
              const auto holds = [&](const PropertyTable& keys, int index) {
                Record into;
                parseStyle(StyleReader(keys, L"", context), into);
                return Probe(before, index, nullptr, L"", &field_walk::resolve(into, target));
              };
              PropertyTable all;
              for (int i = 0; i < int(spellings.size()); ++i) {
                SCOPED_TRACE(typeid(Record).name() + (" " + Narrow(spellings[i])));
                PropertyTable one;
                Probe(before, i, &one, spellings[i]);
                Probe(before, i, &all, spellings[i]);
                EXPECT_TRUE(holds(one, i));
              }
              EXPECT_TRUE(holds(all, int(spellings.size()) - 1))
                  << typeid(Record).name() << " all spellings";
            }
          },
          field.target);
    }
  });
  EXPECT_GT(fieldsWithAliases, 0);
}

// A nested record's main surfaces take the parent's shape key: a tab strip's `shape` shapes its
// item button's states, a scroll bar's the track, thumb and both buttons; a card's the surface
// only.
TEST(StyleRecordWalk, ShapeKeysReachNestedMainSurfacesAndTheSurfaceOwnShapeWins) {
  const Theme theme;
  const StyleContext context{&theme, L""};
  PropertyTable keys{{L"shape", L"hexagon"}, {L"itembutton.surface.pressed.shape", L"diamond"}};
  TabStripStyle tabs;
  parseStyle(StyleReader(keys, L"", context), tabs);
  const ControlStates& item = tabs.itemButton.surface;
  EXPECT_TRUE(item.normal.shape == ShapeKind::Hexagon && item.active.shape == ShapeKind::Hexagon &&
              item.pressed.shape == ShapeKind::Diamond && !tabs.itemButton.hitShape.present);
  keys[L"thumbshape"] = L"pill";
  ScrollBarStyle bar;
  parseStyle(StyleReader(keys, L"", context), bar);
  EXPECT_TRUE(bar.track.shape == ShapeKind::Hexagon &&
              bar.decrementButton.hot.shape == ShapeKind::Hexagon &&
              bar.incrementButton.disabled.shape == ShapeKind::Hexagon);
  EXPECT_EQ(bar.thumb.normal.shape, ShapeKind::Capsule);  // the later, more special key
  CardStyle card;
  shapeStyle(card, ShapeKind::Bevel);
  EXPECT_TRUE(card.surface.shape == ShapeKind::Bevel && card.header.shape != ShapeKind::Bevel);
}

}  // namespace
}  // namespace tessel
