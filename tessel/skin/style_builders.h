// Theme-derived defaults of every control kind's record: what a control looks like when a skin
// gives nothing but its palette. Rest surfaces sit on `control` nudged toward `border`, hot and
// pressed take the palette's own states, accents use `accent`, disabled uses `disabledFill`.
#pragma once

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
#include "tessel/style/surface_mode.h"
#include "tessel/skin/theme.h"

namespace tessel {

enum class ButtonTone { Default, Secondary, Primary, Quiet, Success, Warning, Danger };
enum class PanelTone { Default, Glass, Raised, Dashboard };
enum class CardTone { Default, Info, Success, Warning, Danger };
enum class TextTone { Default, Title, Muted, Mono, Secondary, Danger };

TextStyle buildTextStyle(const Theme& theme, TextTone tone);
ButtonStyle buildButtonStyle(const Theme& theme, SurfaceMode mode, ButtonTone tone);
BitmapButtonStyle buildBitmapButtonStyle(const Theme& theme);
PanelStyle buildPanelStyle(const Theme& theme, SurfaceMode mode, PanelTone tone);
CardStyle buildCardStyle(const Theme& theme, SurfaceMode mode, CardTone tone);
ChromeTitleBarStyle buildChromeTitleBarStyle(const Theme& theme, SurfaceMode mode);
StatusChipStyle buildStatusChipStyle(const Theme& theme, SurfaceMode mode);
ProgressBarStyle buildProgressBarStyle(const Theme& theme, SurfaceMode mode);
ScrollBarStyle buildScrollBarStyle(const Theme& theme, SurfaceMode mode);
CheckBoxStyle buildCheckBoxStyle(const Theme& theme, SurfaceMode mode);
SelectBoxStyle buildSelectBoxStyle(const Theme& theme, SurfaceMode mode);
HierarchicalListBoxStyle buildHierarchicalListBoxStyle(const Theme& theme, SurfaceMode mode);
DateInputStyle buildDateInputStyle(const Theme& theme, SurfaceMode mode);
TabStripStyle buildTabStripStyle(const Theme& theme, SurfaceMode mode);
MenuBarStyle buildMenuBarStyle(const Theme& theme, SurfaceMode mode);
TableListStyle buildTableListStyle(const Theme& theme, SurfaceMode mode);
RichTextStyle buildRichTextStyle(const Theme& theme, SurfaceMode mode);
TextInputStyle buildTextInputStyle(const Theme& theme, SurfaceMode mode);
SelectableTextStyle buildSelectableTextStyle(const Theme& theme, SurfaceMode mode);
PopupStyle buildPopupStyle(const Theme& theme, SurfaceMode mode);
TooltipStyle buildTooltipStyle(const Theme& theme, SurfaceMode mode);
WindowStyle buildWindowStyle(const Theme& theme, SurfaceMode mode);

}  // namespace tessel
