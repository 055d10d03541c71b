#include "tessel/skin/style_record.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <typeinfo>

namespace tessel {
namespace {

// A record's keys differ after normalizing, and none doubles as a shape key.
TEST(StyleFieldTables, EveryKeyOfARecordIsSpelledOnce) {
  std::apply(
      [](auto... records) {
        const auto check = [](auto record) {
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
            EXPECT_EQ(count + shapeKeys.count(key), 1u) << std::string(key.begin(), key.end());
        };
        (check(records), ...);
      },
      std::tuple<ScrollAcceleration, ButtonStyle, BitmapButtonStyle, PanelStyle, CardStyle,
                 ChromeTitleBarStyle, StatusChipStyle, ProgressBarStyle, ScrollBarStyle,
                 CheckBoxStyle, SelectBoxStyle, HierarchicalListBoxStyle, DateInputStyle,
                 TabStripStyle, MenuBarStyle, TableListStyle, RichTextStyle, TextInputStyle,
                 SelectableTextStyle, PopupStyle, TooltipStyle, WindowStyle>());
}

}  // namespace
}  // namespace tessel
