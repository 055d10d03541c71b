// One parser per control kind's style record: each lays a skin's flattened keys, under the
// reader's prefix, over the record. Absent keys keep what the record held.
#pragma once

#include "tessel/skin/style_reader.h"
#include "tessel/style/bitmap_button_style.h"
#include "tessel/style/button_style.h"
#include "tessel/style/card_style.h"
#include "tessel/style/check_box_style.h"
#include "tessel/style/chrome_title_bar_style.h"
#include "tessel/style/date_input_style.h"
#include "tessel/style/hierarchical_list_box_style.h"
#include "tessel/style/menu_bar_style.h"
#include "tessel/style/panel_style.h"
#include "tessel/style/popup_style.h"
#include "tessel/style/progress_bar_style.h"
#include "tessel/style/rich_text_style.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/select_box_style.h"
#include "tessel/style/selectable_text_style.h"
#include "tessel/style/status_chip_style.h"
#include "tessel/style/tab_strip_style.h"
#include "tessel/style/table_list_style.h"
#include "tessel/style/text_input_style.h"
#include "tessel/style/tooltip_style.h"
#include "tessel/style/window_style.h"

namespace tessel {

void parseScrollAcceleration(const StyleReader& reader, ScrollAcceleration& acceleration);

void parseButtonStyle(const StyleReader& reader, ButtonStyle& style);
void parseBitmapButtonStyle(const StyleReader& reader, BitmapButtonStyle& style);
void parsePanelStyle(const StyleReader& reader, PanelStyle& style);
void parseCardStyle(const StyleReader& reader, CardStyle& style);
void parseChromeTitleBarStyle(const StyleReader& reader, ChromeTitleBarStyle& style);
void parseStatusChipStyle(const StyleReader& reader, StatusChipStyle& style);
void parseProgressBarStyle(const StyleReader& reader, ProgressBarStyle& style);
void parseScrollBarStyle(const StyleReader& reader, ScrollBarStyle& style);
void parseCheckBoxStyle(const StyleReader& reader, CheckBoxStyle& style);
void parseSelectBoxStyle(const StyleReader& reader, SelectBoxStyle& style);
void parseHierarchicalListBoxStyle(const StyleReader& reader, HierarchicalListBoxStyle& style);
void parseDateInputStyle(const StyleReader& reader, DateInputStyle& style);
void parseTabStripStyle(const StyleReader& reader, TabStripStyle& style);
void parseMenuBarStyle(const StyleReader& reader, MenuBarStyle& style);
void parseTableListStyle(const StyleReader& reader, TableListStyle& style);
void parseRichTextStyle(const StyleReader& reader, RichTextStyle& style);
void parseTextInputStyle(const StyleReader& reader, TextInputStyle& style);
void parseSelectableTextStyle(const StyleReader& reader, SelectableTextStyle& style);
void parsePopupStyle(const StyleReader& reader, PopupStyle& style);
void parseTooltipStyle(const StyleReader& reader, TooltipStyle& style);
void parseWindowStyle(const StyleReader& reader, WindowStyle& style);

}  // namespace tessel
