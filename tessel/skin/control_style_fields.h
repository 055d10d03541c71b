// Every control style record's fields, one row each (the columns are described in
// style_field.h): keys and aliases as skins spell them, shape keys, the sheet's shape roles and
// the material slot with its strength delta. Button and panel surfaces take their material and
// their `button.*` roles by style id, which only the sheet knows.
#pragma once

#include "tessel/skin/style_field.h"
#include "tessel/style/bitmap_button_style.h"
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
#include "tessel/style/select_box_style.h"
#include "tessel/style/selectable_text_style.h"
#include "tessel/style/status_chip_style.h"
#include "tessel/style/tab_strip_style.h"
#include "tessel/style/table_list_style.h"
#include "tessel/style/text_input_style.h"
#include "tessel/style/tooltip_style.h"
#include "tessel/style/window_style.h"

namespace tessel {

// Strength deltas of button-like state sets: normal, hot, pressed, active, disabled.
inline constexpr StrengthDeltas kControlStateDeltas{-10, -2, -16, 0, -24};
inline constexpr StrengthDeltas kQuietStateDeltas{-14, -6, -20, -4, -26};
inline constexpr StrengthDeltas kAccentStateDeltas{8, 16, 2, 18, -18};
inline constexpr StrengthDeltas kThumbStateDeltas{-8, 0, -14, 2, -20};

template <>
struct StyleFields<ScrollAcceleration> : FieldRows<ScrollAcceleration> {
  static constexpr Row rows[] = {
      {{L"enabled", L"enable"}, &S::enabled},
      {.keys = {L"strength", L"factor"}, .target = &S::strength, .limits = {0}},
      {.keys = {L"maxMultiplier", L"maximumMultiplier"},
       .target = &S::maxMultiplier,
       .limits = {1}},
      {.keys = {L"fastIntervalMs", L"referenceIntervalMs"},
       .target = &S::fastIntervalMs,
       .limits = {1, 1000}},
      {.keys = {L"resetMs", L"burstResetMs"}, .target = &S::resetMs, .limits = {1, 5000}},
  };
};

template <>
struct StyleFields<ButtonStyle> : FieldRows<ButtonStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}},
      {{L"", L"text"}, &S::text},
      {{L"hitShape"}, &S::hitShape},
      {{L"useSurfaceHitTesting"}, &S::useSurfaceHitTesting},
  };
};

template <>
struct StyleFields<BitmapButtonStyle> : FieldRows<BitmapButtonStyle> {
  static constexpr Row rows[] = {
      {{L"", L"text", L"textStyle"}, &S::text},
      {{L"", L"tint", L"image", L"bitmap"}, &S::tints},
  };
};

template <>
struct StyleFields<PanelStyle> : FieldRows<PanelStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"panel"}},
      {{L"padding"}, &S::padding},
  };
};

template <>
struct StyleFields<CardStyle> : FieldRows<CardStyle> {
  static constexpr Row rows[] = {
      {{L"surface"},
       &S::surface,
       {L"shape"},
       {L"card", L"card.shape", L"card.surface"},
       {kSurface, {-6}}},
      {{L"header"},
       &S::header,
       {L"headerShape"},
       {L"card", L"card.shape", L"card.header", L"card.title"},
       {kSurface, {-2}}},
      {{L"titleText"}, &S::titleText},
      {{L"subtitleText"}, &S::subtitleText},
      {{L"headerHeight"}, &S::headerHeight},
      {{L"contentPadding"}, &S::contentPadding},
  };
};

template <>
struct StyleFields<ChromeTitleBarStyle> : FieldRows<ChromeTitleBarStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"chrome"}, {kSurface, {-4}}},
      {{L"titleButton"}, &S::titleButton, {}, {}, {kControl, kQuietStateDeltas}},
      {{L"titleText"}, &S::titleText},
      {{L"buttonWidth"}, &S::buttonWidth},
      {{L"buttonHeight"}, &S::buttonHeight},
      {{L"buttonTop"}, &S::buttonTop},
      {{L"buttonGap"}, &S::buttonGap},
      {{L"headerActionGap"}, &S::headerActionGap},
      {{L"headerActionGroupGap"}, &S::headerActionGroupGap},
      {{L"rightMargin"}, &S::rightMargin},
      {{L"iconSize"}, &S::iconSize},
      {{L"iconLeft"}, &S::iconLeft},
      {{L"titleLeft"}, &S::titleLeft},
  };
};

template <>
struct StyleFields<StatusChipStyle> : FieldRows<StatusChipStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"statuschip"}, {kControl, {-10}}},
      {{L"badge"}, &S::badge, {L"badgeShape"}, {L"statusbadge"}, {kAccent, {8}}},
      {{L"", L"text"}, &S::text},
      {{L"badgeSize"}, &S::badgeSize},
      {{L"badgeLeft"}, &S::badgeLeft},
      {{L"textLeft"}, &S::textLeft},
  };
};

template <>
struct StyleFields<ProgressBarStyle> : FieldRows<ProgressBarStyle> {
  static constexpr Row rows[] = {
      {{L"frame"},
       &S::frame,
       {L"shape", L"frameShape"},
       {L"progress", L"progress.frame"},
       {kSurface, {-10}}},
      {{L"track"},
       &S::track,
       {L"shape", L"trackShape"},
       {L"progress", L"progress.track"},
       {kControl, {-16}}},
      {{L"fill"},
       &S::fill,
       {L"shape", L"fillShape"},
       {L"progress", L"progress.fill"},
       {kAccent, {8}}},
      {{L"labelText"}, &S::labelText},
      {{L"insetX"}, &S::insetX},
      {{L"insetY"}, &S::insetY},
      {{L"labelWidth"}, &S::labelWidth},
      {{L"labelPaddingX"}, &S::labelPaddingX},
      {{L"labelPadding"}, &S::labelPadding},
  };
};

template <>
struct StyleFields<ScrollBarStyle> : FieldRows<ScrollBarStyle> {
  static constexpr Row rows[] = {
      {{L"track"},
       &S::track,
       {L"shape", L"trackShape"},
       {L"scroll", L"scroll.track"},
       {kSurface, {-14}}},
      {{L"thumb"},
       &S::thumb,
       {L"shape", L"thumbShape"},
       {L"scroll", L"scroll.thumb"},
       {kControl, kThumbStateDeltas}},
      {{L"decrementButton"},
       &S::decrementButton,
       {L"shape", L"buttonShape"},
       {L"scroll", L"scroll.button"},
       {kControl, kQuietStateDeltas}},
      {{L"incrementButton"},
       &S::incrementButton,
       {L"shape", L"buttonShape"},
       {L"scroll", L"scroll.button"},
       {kControl, kQuietStateDeltas}},
      {{L"arrow"}, &S::arrow},
      {.keys = {L"buttonExtent"},
       .target = &S::buttonExtent,
       .shapeSetValue = &ShapeSet::scrollButtonExtent},
      {.keys = {L"minThumbExtent"},
       .target = &S::minThumbExtent,
       .shapeSetValue = &ShapeSet::scrollMinThumbExtent},
      {.keys = {L"trackPadding"},
       .target = &S::trackPadding,
       .shapeSetValue = &ShapeSet::scrollTrackPadding},
      {.keys = {L"trackThickness"},
       .target = &S::trackThickness,
       .shapeSetValue = &ShapeSet::scrollTrackThickness},
      {.keys = {L"thumbThickness"},
       .target = &S::thumbThickness,
       .shapeSetValue = &ShapeSet::scrollThumbThickness},
      {.keys = {L"showButtons"},
       .target = &S::showButtons,
       .shapeSetValue = &ShapeSet::scrollShowButtons},
      {{L"acceleration", L"scrollAcceleration"}, &S::acceleration},
  };
};

template <>
struct StyleFields<CheckBoxStyle> : FieldRows<CheckBoxStyle> {
  static constexpr Row rows[] = {
      {{L"boxUnchecked"}, normal(&S::unchecked), {L"shape"}, {L"checkbox"}, {kControl, {-16}}},
      {{L"boxUncheckedHot"}, hot(&S::unchecked), {L"shape"}, {L"checkbox"}, {kControl, {-8}}},
      {{L"boxUncheckedPressed"},
       pressed(&S::unchecked),
       {L"shape"},
       {L"checkbox"},
       {kControl, {-22}}},
      {{L"boxUncheckedDisabled"},
       disabled(&S::unchecked),
       {L"shape"},
       {L"checkbox"},
       {kControl, {-28}}},
      {{L"boxChecked"}, normal(&S::checked), {L"shape"}, {L"checkbox"}, {kAccent, {8}}},
      {{L"boxCheckedHot"}, hot(&S::checked), {L"shape"}, {L"checkbox"}, {kAccent, {16}}},
      {{L"boxCheckedPressed"}, pressed(&S::checked), {L"shape"}, {L"checkbox"}, {kAccent, {2}}},
      {{L"boxCheckedDisabled"}, disabled(&S::checked), {L"shape"}, {L"checkbox"}, {kAccent, {-18}}},
      {{L"checkColor"}, &S::checkColor},
      {{L"", L"text"}, &S::text},
      {{L"boxSize"}, &S::boxSize},
      {{L"textLeft"}, &S::textLeft},
  };
};

template <>
struct StyleFields<SelectBoxStyle> : FieldRows<SelectBoxStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, normal(&S::surface), {L"shape"}, {L"selectbox"}, {kControl, {-12}}},
      {{L"hotSurface"}, hot(&S::surface), {L"shape"}, {L"selectbox"}, {kControl, {-4}}},
      {{L"pressedSurface"}, pressed(&S::surface), {L"shape"}, {L"selectbox"}, {kControl, {-18}}},
      {{L"disabledSurface"}, disabled(&S::surface), {L"shape"}, {L"selectbox"}, {kControl, {-26}}},
      {{L"arrowSurface"}, normal(&S::arrowSurface), {L"arrowShape"}, {L"selectarrow"}},
      {{L"arrowHotSurface"}, hot(&S::arrowSurface), {L"arrowShape"}, {L"selectarrow"}},
      {{L"arrowPressedSurface"}, pressed(&S::arrowSurface), {L"arrowShape"}, {L"selectarrow"}},
      {{L"arrowDisabledSurface"}, disabled(&S::arrowSurface), {L"arrowShape"}, {L"selectarrow"}},
      {{L"dropdownSurface"},
       &S::dropdownSurface,
       {L"dropdownShape"},
       {L"selectdropdown"},
       {kSurface, {-6}}},
      {{L"optionHotSurface"}, hot(&S::optionSurface)},
      {{L"optionSelectedSurface"}, active(&S::optionSurface)},
      {{L"scrollBar"}, &S::scrollBar},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
      {{L"", L"text"}, &S::text},
      {{L"arrowColor"}, &S::arrowColor},
      {{L"arrowWidth"}, &S::arrowWidth},
      {{L"itemHeight"}, &S::itemHeight},
      {{L"maxVisibleItems"}, &S::maxVisibleItems},
      {{L"dropdownGap"}, &S::dropdownGap},
      {{L"dropdownPadding"}, &S::dropdownPadding},
      {{L"dropdownItemPaddingX"}, &S::dropdownItemPaddingX},
      {{L"dropdownItemPaddingY"}, &S::dropdownItemPaddingY},
      {{L"dropdownScrollBarWidth"}, &S::dropdownScrollBarWidth},
      {{L"dropdownScrollRailGap"}, &S::dropdownScrollRailGap},
      {{L"dropdownEmbeddedScrollRail"}, &S::dropdownEmbeddedScrollRail},
  };
};

template <>
struct StyleFields<HierarchicalListBoxStyle> : FieldRows<HierarchicalListBoxStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"list", L"list.surface"}, {kSurface, {-12}}},
      {{L"row"}, normal(&S::row), {L"rowShape"}, {L"list", L"list.row", L"listrow"}},
      {{L"rowHot"}, hot(&S::row), {L"rowShape"}, {L"list", L"list.row", L"listrow"}},
      {{L"rowPressed"}, pressed(&S::row), {L"rowShape"}, {L"list", L"list.row", L"listrow"}},
      {{L"selectedRow"},
       normal(&S::selectedRow),
       {L"selectedRowShape"},
       {L"list", L"list.selectedrow", L"listselectedrow"},
       {kAccent, {-10}}},
      {{L"selectedRowHot"},
       hot(&S::selectedRow),
       {L"selectedRowShape"},
       {L"list", L"list.selectedrow", L"listselectedrow"},
       {kAccent, {-4}}},
      {{L"selectedRail"},
       &S::selectedRail,
       {L"selectedRailShape"},
       {L"list", L"list.selectedrail", L"listselectedrail"}},
      {{L"scrollBar"}, &S::scrollBar},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
      {{L"text"}, &S::text},
      {{L"selectedText"}, &S::selectedText},
      {{L"disabledText"}, &S::disabledText},
      {{L"separator"}, &S::separator},
      {{L"rowHeight"}, &S::rowHeight},
      {{L"railWidth"}, &S::railWidth},
      {{L"linePadding"}, &S::linePadding},
      {{L"contentInsetX"}, &S::contentInsetX},
      {{L"contentInsetY"}, &S::contentInsetY},
      {{L"itemPaddingX"}, &S::itemPaddingX},
      {{L"itemPaddingY"}, &S::itemPaddingY},
      {{L"scrollBarWidth"}, &S::scrollBarWidth},
      {{L"scrollRailGap"}, &S::scrollRailGap},
      {{L"showSeparators"}, &S::showSeparators},
  };
};

template <>
struct StyleFields<DateInputStyle> : FieldRows<DateInputStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, normal(&S::surface), {L"shape"}, {}, {kControl, {-12}}},
      {{L"hotSurface"}, hot(&S::surface), {L"shape"}, {}, {kControl, {-4}}},
      {{L"pressedSurface"}, pressed(&S::surface), {L"shape"}, {}, {kControl, {-18}}},
      {{L"disabledSurface"}, disabled(&S::surface), {L"shape"}},
      {{L"arrowSurface"}, normal(&S::arrowSurface), {L"arrowShape"}},
      {{L"arrowHotSurface"}, hot(&S::arrowSurface), {L"arrowShape"}},
      {{L"arrowPressedSurface"}, pressed(&S::arrowSurface), {L"arrowShape"}},
      {{L"popupSurface"}, &S::popupSurface, {L"popupShape"}, {}, {kSurface, {-6}}},
      {{L"headerSurface"}, &S::headerSurface},
      {{L"dayHotSurface"}, hot(&S::daySurface)},
      {{L"dayPressedSurface"}, pressed(&S::daySurface)},
      {{L"daySelectedSurface"}, active(&S::daySurface)},
      {{L"todaySurface"}, &S::todaySurface},
      {{L"text"}, &S::text},
      {{L"headerText"}, &S::headerText},
      {{L"weekdayText"}, &S::weekdayText},
      {{L"dayText"}, &S::dayText},
      {{L"weekendText"}, &S::weekendText},
      {{L"saturdayText"}, &S::saturdayText},
      {{L"sundayText"}, &S::sundayText},
      {{L"mutedDayText"}, &S::mutedDayText},
      {{L"arrowColor"}, &S::arrowColor},
      {{L"arrowWidth"}, &S::arrowWidth},
      {{L"popupWidth"}, &S::popupWidth},
      {{L"popupPadding"}, &S::popupPadding},
      {{L"popupGap"}, &S::popupGap},
      {{L"headerHeight"}, &S::headerHeight},
      {{L"weekdayHeight"}, &S::weekdayHeight},
      {{L"dayCellHeight"}, &S::dayCellHeight},
      {{L"navButtonExtent"}, &S::navButtonExtent},
  };
};

template <>
struct StyleFields<TabStripStyle> : FieldRows<TabStripStyle> {
  static constexpr Row rows[] = {
      {{L"itemButton"}, &S::itemButton, {L"shape"}, {L"tab"}, {kControl, kQuietStateDeltas}},
      {{L"verticalItemHeight"}, &S::verticalItemHeight},
  };
};

template <>
struct StyleFields<MenuBarStyle> : FieldRows<MenuBarStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"menubar"}, {kSurface, {-8}}},
      {{L"itemSurface"}, normal(&S::itemSurface), {L"itemShape"}, {L"menuitem"}},
      {{L"itemHotSurface"}, hot(&S::itemSurface), {L"itemShape"}, {L"menuitem"}},
      {{L"itemPressedSurface"}, pressed(&S::itemSurface), {L"itemShape"}, {L"menuitem"}},
      {{L"itemActiveSurface"}, active(&S::itemSurface), {L"itemShape"}, {L"menuitem"}},
      {{L"popupSurface"}, &S::popupSurface, {L"popupShape"}, {L"menupopup"}, {kSurface, {-6}}},
      {{L"popupItemHotSurface"},
       hot(&S::popupItemSurface),
       {L"popupItemShape"},
       {L"menupopupitem"}},
      {{L"popupItemPressedSurface"},
       pressed(&S::popupItemSurface),
       {L"popupItemShape"},
       {L"menupopupitem"}},
      {{L"itemText"}, &S::itemText},
      {{L"shortcutText"}, &S::shortcutText},
      {{L"separator"}, &S::separator},
      {{L"check"}, &S::check},
      {{L"arrow"}, &S::arrow},
      {{L"height"}, &S::height},
      {{L"itemPaddingX"}, &S::itemPaddingX},
      {{L"itemGap"}, &S::itemGap},
      {{L"popupPadding"}, &S::popupPadding},
      {{L"popupItemHeight"}, &S::popupItemHeight},
      {{L"popupMinWidth"}, &S::popupMinWidth},
      {{L"checkColumnWidth"}, &S::checkColumnWidth},
      {{L"shortcutColumnWidth"}, &S::shortcutColumnWidth},
      {{L"submenuArrowWidth"}, &S::submenuArrowWidth},
      {{L"separatorHeight"}, &S::separatorHeight},
      {{L"popupGap"}, &S::popupGap},
      {{L"drawSurface"}, &S::drawSurface},
      {{L"drawItemSurface"}, &S::drawItemSurface},
  };
};

template <>
struct StyleFields<TableListStyle> : FieldRows<TableListStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"table", L"table.surface"}, {kSurface, {-12}}},
      {{L"header"}, &S::header, {L"headerShape"}, {L"table", L"table.header"}, {kSurface, {-4}}},
      {{L"row"}, &S::row, {L"rowShape"}, {L"table", L"table.row"}},
      {{L"selectedRow"},
       &S::selectedRow,
       {L"selectedRowShape"},
       {L"table", L"table.selectedrow"},
       {kAccent, {-10}}},
      {{L"selectedRail"},
       &S::selectedRail,
       {L"selectedRailShape"},
       {L"table", L"table.selectedrail"}},
      {{L"headerText"}, &S::headerText},
      {{L"rowText"}, &S::rowText},
      {{L"selectedText"}, &S::selectedText},
      {{L"highSeverityText"}, &S::highSeverityText},
      {{L"highSeverityFill"}, &S::highSeverityFill},
      {{L"mediumSeverityFill"}, &S::mediumSeverityFill},
      {{L"lowSeverityFill"}, &S::lowSeverityFill},
      {{L"separator"}, &S::separator},
      {{L"resizeGrip"}, &S::resizeGrip},
      {{L"resizeGripHot"}, &S::resizeGripHot},
      {{L"sortIndicator"}, &S::sortIndicator},
      {{L"sortIndicatorHot"}, &S::sortIndicatorHot},
      {{L"headerHeight"}, &S::headerHeight},
      {{L"rowHeight"}, &S::rowHeight},
      {{L"railWidth"}, &S::railWidth},
      {{L"resizeGripWidth"}, &S::resizeGripWidth},
      {{L"sortIndicatorWidth"}, &S::sortIndicatorWidth},
      {{L"linePadding"}, &S::linePadding},
      {{L"contentInsetX"}, &S::contentInsetX},
      {{L"contentInsetY"}, &S::contentInsetY},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
  };
};

template <>
struct StyleFields<RichTextStyle> : FieldRows<RichTextStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"richtext"}, {kSurface, {-10}}},
      {{L"icon"}, &S::icon, {L"iconShape"}, {L"richtexticon"}},
      {{L"text"}, &S::text},
      {{L"linkText"}, &S::linkText},
      {{L"paddingX"}, &S::paddingX},
      {{L"paddingY"}, &S::paddingY},
      {{L"lineHeight"}, &S::lineHeight},
  };
};

template <>
struct StyleFields<TextInputStyle> : FieldRows<TextInputStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, normal(&S::surface), {L"shape"}, {L"textinput"}, {kControl, {-14}}},
      {{L"hotSurface"}, hot(&S::surface), {L"shape"}, {L"textinput"}, {kControl, {-6}}},
      {{L"pressedSurface"}, pressed(&S::surface), {L"shape"}, {L"textinput"}},
      {{L"disabledSurface"}, disabled(&S::surface), {L"shape"}, {L"textinput"}},
      {{L"focusedSurface"}, active(&S::surface), {L"shape"}, {L"textinput"}, {kControl, {-4}}},
      {{L"selection"}, &S::selection},
      {{L"attachmentSurface"},
       &S::attachmentSurface,
       {L"attachmentShape"},
       {L"textinputattachment"}},
      {{L"attachmentImageSurface"}, &S::attachmentImageSurface, {L"attachmentImageShape"}},
      {{L"attachmentRemoveSurface"}, &S::attachmentRemoveSurface, {L"attachmentRemoveShape"}},
      {{L"text"}, &S::text},
      {{L"placeholderText"}, &S::placeholderText},
      {{L"attachmentText"}, &S::attachmentText},
      {{L"caretColor"}, &S::caretColor},
      {{L"attachmentIconColor"}, &S::attachmentIconColor},
      {{L"paddingX"}, &S::paddingX},
      {{L"paddingY"}, &S::paddingY},
      {{L"lineHeight"}, &S::lineHeight},
      {{L"attachmentHeight"}, &S::attachmentHeight},
      {{L"attachmentGap"}, &S::attachmentGap},
      {{L"attachmentRemoveExtent"}, &S::attachmentRemoveExtent},
      {{L"showAttachmentRemove"}, &S::showAttachmentRemove},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
  };
};

template <>
struct StyleFields<SelectableTextStyle> : FieldRows<SelectableTextStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"selectabletext"}, {kSurface, {-14}}},
      {{L"selection"}, &S::selection},
      {{L"text"}, &S::text},
      {{L"selectedText"}, &S::selectedText},
      {{L"paddingX"}, &S::paddingX},
      {{L"paddingY"}, &S::paddingY},
      {{L"lineHeight"}, &S::lineHeight},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
  };
};

template <>
struct StyleFields<PopupStyle> : FieldRows<PopupStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"popup", L"popup.surface"}, {kSurface, {-6}}},
      {{L"header"}, &S::header, {L"headerShape"}, {L"popup.header"}, {kSurface, {-2}}},
      {{L"icon"}, &S::icon, {L"iconShape"}, {L"popup.icon"}},
      {{L"closeButton"}, &S::closeButton, {}, {}, {kControl, kQuietStateDeltas}},
      {{L"primaryAction"}, &S::primaryAction, {}, {}, {kAccent, kAccentStateDeltas}},
      {{L"secondaryAction"}, &S::secondaryAction, {}, {}, {kControl, kControlStateDeltas}},
      {{L"titleText"}, &S::titleText},
      {{L"messageText"}, &S::messageText},
      {{L"iconText"}, &S::iconText},
      {{L"headerHeight"}, &S::headerHeight},
      {{L"paddingX"}, &S::paddingX},
      {{L"paddingY"}, &S::paddingY},
      {{L"iconSize"}, &S::iconSize},
      {{L"actionWidth"}, &S::actionWidth},
      {{L"actionHeight"}, &S::actionHeight},
      {{L"actionGap"}, &S::actionGap},
      {{L"shadowOffsetX"}, &S::shadowOffsetX},
      {{L"shadowOffsetY"}, &S::shadowOffsetY},
      {{L"showShadow"}, &S::showShadow},
  };
};

template <>
struct StyleFields<TooltipStyle> : FieldRows<TooltipStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {L"shape"}, {L"tooltip"}, {kSurface, {-8}}},
      {{L"accentRail"}, &S::accentRail, {L"railShape"}, {L"tooltiprail"}},
      {{L"icon"}, &S::icon, {L"iconShape"}, {L"tooltipicon"}},
      {{L"shadow"}, &S::shadow},
      {{L"textStyle"}, &S::textStyle},
      {{L"iconText"}, &S::iconText},
      {{L"maxWidth"}, &S::maxWidth},
      {{L"paddingX"}, &S::paddingX},
      {{L"paddingY"}, &S::paddingY},
      {{L"iconSize"}, &S::iconSize},
      {{L"gap"}, &S::gap},
      {{L"shadowOffsetX"}, &S::shadowOffsetX},
      {{L"shadowOffsetY"}, &S::shadowOffsetY},
      {{L"showAccentRail"}, &S::showAccentRail},
      {{L"showIcon"}, &S::showIcon},
      {{L"showShadow"}, &S::showShadow},
      {{L"scrollAcceleration"}, &S::scrollAcceleration},
  };
};

template <>
struct StyleFields<WindowStyle> : FieldRows<WindowStyle> {
  static constexpr Row rows[] = {
      {{L"surface"}, &S::surface, {}, {L"window"}, {kSurface, {-14}}},
      {{L"fallbackBackground"}, &S::fallbackBackground},
      {{L"drawSurface"}, &S::drawSurface},
      {{L"customFrame"}, &S::customFrame},
      {{L"useSurfaceRegion"}, &S::useSurfaceRegion},
      {{L"useChildSurfaceRegion"}, &S::useChildSurfaceRegion},
      {{L"clipRegionOnResize"}, &S::clipRegionOnResize},
      {{L"resizeBorderThickness"}, &S::resizeBorderThickness},
  };
};

}  // namespace tessel
