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
      EXPECT_TRUE(count == 1 && !shapeKeys.contains(key)) << key;
  });
}

// The key and text that give the index-th spelling of a field (`key`) a value of its own, one a
// new record (`fresh`) doesn't hold; `Holds` tells whether a parsed field holds it.
template <typename Value>
std::pair<std::wstring, std::wstring> Given(const std::wstring& key, int index,
                                            const Value& fresh) {
  const std::wstring n = std::to_wstring(30 + index);
  if constexpr (std::is_same_v<Value, TextStyle>) return {key + L".pointSize", n};
  if constexpr (std::is_same_v<Value, TintStates>)
    return {key.empty() ? L"tintColor" : key + L".color", L"#0000" + n};
  if constexpr (std::is_same_v<Value, ScrollAcceleration>) return {key + L".resetMs", n};
  if constexpr (std::is_same_v<Value, bool>) return {key, fresh ? L"false" : L"true"};
  if constexpr (std::is_same_v<Value, Color>) return {key, L"#1020" + n};
  return {key, n};
}

template <typename Value>
bool Holds(const Value& v, int index, const Value& fresh) {
  const Color blue = rgbColor(0, 0, 0x30 + index);
  if constexpr (std::is_same_v<Value, TextStyle>) return v.pointSize == 30 + index;
  if constexpr (std::is_same_v<Value, TintStates>)
    return v.normal.color == blue && v.disabled.color == blue;
  if constexpr (std::is_same_v<Value, ScrollAcceleration>) return v.resetMs == 30 + index;
  if constexpr (std::is_same_v<Value, bool>) return v != fresh;
  if constexpr (std::is_same_v<Value, Color>) return v == rgbColor(0x10, 0x20, 0x30 + index);
  if constexpr (std::is_arithmetic_v<Value>) return v == static_cast<Value>(30 + index);
  return false;  // no probe for a field with aliases of this kind
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
                return Holds(field_walk::resolve(into, target), index, before);
              };
              PropertyTable all;
              for (int i = 0; i < int(spellings.size()); ++i) {
                SCOPED_TRACE(testing::Message() << typeid(Record).name() << " " << spellings[i]);
                PropertyTable one;
                const auto [key, text] = Given(spellings[i], i, before);
                one[normalizeKeyPath(key)] = all[normalizeKeyPath(key)] = text;
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
// item button's states, a scroll bar's the track, thumb and both buttons.
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
}

}  // namespace
}  // namespace tessel
