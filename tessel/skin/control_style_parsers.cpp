#include "tessel/skin/control_style_parsers.h"

#include "tessel/skin/surface_parser.h"

namespace tessel {

namespace {

void shapeInto(const StyleReader& reader, const wchar_t* name,
               std::initializer_list<SurfaceStyle*> surfaces) {
  ShapeKind kind = ShapeKind::Rectangle;
  if (!reader.shape(name, kind)) return;
  for (SurfaceStyle* surface : surfaces)
    surface->shape = kind;
}

void shapeInto(const StyleReader& reader, const wchar_t* name, ControlStates& states) {
  ShapeKind kind = ShapeKind::Rectangle;
  if (reader.shape(name, kind)) states.each([&](SurfaceStyle& state) { state.shape = kind; });
}

void surface(const StyleReader& reader, const wchar_t* name, SurfaceStyle& style) {
  parseSurfaceStyle(reader.at(name), style);
}

void text(const StyleReader& reader, const wchar_t* name, TextStyle& style) {
  parseTextStyle(reader.at(name), style);
}

// The one main text of a control: its own level first, then the named levels; the last wins.
void mainText(const StyleReader& reader, TextStyle& style,
              std::initializer_list<const wchar_t*> levels) {
  parseTextStyle(reader, style);
  for (const wchar_t* level : levels)
    parseTextStyle(reader.at(level), style);
}

}  // namespace

void parseScrollAcceleration(const StyleReader& reader, ScrollAcceleration& acceleration) {
  reader.flag({L"enabled", L"enable"}, acceleration.enabled);
  reader.real({L"strength", L"factor"}, acceleration.strength);
  reader.real({L"maxMultiplier", L"maximumMultiplier"}, acceleration.maxMultiplier);
  reader.integer({L"fastIntervalMs", L"referenceIntervalMs"}, acceleration.fastIntervalMs);
  reader.integer({L"resetMs", L"burstResetMs"}, acceleration.resetMs);
  if (!(acceleration.strength >= 0.0f)) acceleration.strength = 0.0f;
  if (!(acceleration.maxMultiplier >= 1.0f)) acceleration.maxMultiplier = 1.0f;
  acceleration.fastIntervalMs = acceleration.fastIntervalMs < 1      ? 1
                                : acceleration.fastIntervalMs > 1000 ? 1000
                                                                     : acceleration.fastIntervalMs;
  acceleration.resetMs = acceleration.resetMs < 1      ? 1
                         : acceleration.resetMs > 5000 ? 5000
                                                       : acceleration.resetMs;
}

void parseButtonStyle(const StyleReader& reader, ButtonStyle& style) {
  shapeInto(reader, L"shape", style.surface);
  parseControlStates(reader.at(L"surface"), style.surface);
  mainText(reader, style.text, {L"text"});
  if (reader.shape(L"hitShape", style.hitShape.kind)) style.hitShape.present = true;
  reader.flag({L"useSurfaceHitTesting"}, style.useSurfaceHitTesting);
}

void parseBitmapButtonStyle(const StyleReader& reader, BitmapButtonStyle& style) {
  mainText(reader, style.text, {L"text", L"textStyle"});
  parseTintStates(reader, style.tints);
  for (const wchar_t* level : {L"tint", L"image", L"bitmap"})
    parseTintStates(reader.at(level), style.tints);
}

void parsePanelStyle(const StyleReader& reader, PanelStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  surface(reader, L"surface", style.surface);
  reader.integer({L"padding"}, style.padding);
}

void parseCardStyle(const StyleReader& reader, CardStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"headerShape", {&style.header});
  surface(reader, L"surface", style.surface);
  surface(reader, L"header", style.header);
  text(reader, L"titleText", style.titleText);
  text(reader, L"subtitleText", style.subtitleText);
  reader.integer({L"headerHeight"}, style.headerHeight);
  reader.integer({L"contentPadding"}, style.contentPadding);
}

void parseChromeTitleBarStyle(const StyleReader& reader, ChromeTitleBarStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  surface(reader, L"surface", style.surface);
  parseButtonStyle(reader.at(L"titleButton"), style.titleButton);
  text(reader, L"titleText", style.titleText);
  reader.integer({L"buttonWidth"}, style.buttonWidth);
  reader.integer({L"buttonHeight"}, style.buttonHeight);
  reader.integer({L"buttonTop"}, style.buttonTop);
  reader.integer({L"buttonGap"}, style.buttonGap);
  reader.integer({L"headerActionGap"}, style.headerActionGap);
  reader.integer({L"headerActionGroupGap"}, style.headerActionGroupGap);
  reader.integer({L"rightMargin"}, style.rightMargin);
  reader.integer({L"iconSize"}, style.iconSize);
  reader.integer({L"iconLeft"}, style.iconLeft);
  reader.integer({L"titleLeft"}, style.titleLeft);
}

void parseStatusChipStyle(const StyleReader& reader, StatusChipStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"badgeShape", {&style.badge});
  surface(reader, L"surface", style.surface);
  surface(reader, L"badge", style.badge);
  mainText(reader, style.text, {L"text"});
  reader.integer({L"badgeSize"}, style.badgeSize);
  reader.integer({L"badgeLeft"}, style.badgeLeft);
  reader.integer({L"textLeft"}, style.textLeft);
}

void parseProgressBarStyle(const StyleReader& reader, ProgressBarStyle& style) {
  shapeInto(reader, L"shape", {&style.frame, &style.track, &style.fill});
  shapeInto(reader, L"frameShape", {&style.frame});
  shapeInto(reader, L"trackShape", {&style.track});
  shapeInto(reader, L"fillShape", {&style.fill});
  surface(reader, L"frame", style.frame);
  surface(reader, L"track", style.track);
  surface(reader, L"fill", style.fill);
  text(reader, L"labelText", style.labelText);
  reader.integer({L"insetX"}, style.insetX);
  reader.integer({L"insetY"}, style.insetY);
  reader.integer({L"labelWidth"}, style.labelWidth);
  reader.integer({L"labelPaddingX"}, style.labelPaddingX);
  reader.integer({L"labelPadding"}, style.labelPadding);
}

void parseScrollBarStyle(const StyleReader& reader, ScrollBarStyle& style) {
  shapeInto(reader, L"shape", {&style.track});
  shapeInto(reader, L"shape", style.thumb);
  shapeInto(reader, L"shape", style.decrementButton);
  shapeInto(reader, L"shape", style.incrementButton);
  shapeInto(reader, L"trackShape", {&style.track});
  shapeInto(reader, L"thumbShape", style.thumb);
  shapeInto(reader, L"buttonShape", style.decrementButton);
  shapeInto(reader, L"buttonShape", style.incrementButton);
  surface(reader, L"track", style.track);
  parseControlStates(reader.at(L"thumb"), style.thumb);
  parseControlStates(reader.at(L"decrementButton"), style.decrementButton);
  parseControlStates(reader.at(L"incrementButton"), style.incrementButton);
  reader.color({L"arrow"}, style.arrow);
  reader.integer({L"buttonExtent"}, style.buttonExtent);
  reader.integer({L"minThumbExtent"}, style.minThumbExtent);
  reader.integer({L"trackPadding"}, style.trackPadding);
  reader.integer({L"trackThickness"}, style.trackThickness);
  reader.integer({L"thumbThickness"}, style.thumbThickness);
  reader.flag({L"showButtons"}, style.showButtons);
  parseScrollAcceleration(reader.at(L"acceleration"), style.acceleration);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.acceleration);
}

void parseCheckBoxStyle(const StyleReader& reader, CheckBoxStyle& style) {
  shapeInto(reader, L"shape",
            {&style.unchecked.normal, &style.unchecked.hot, &style.unchecked.pressed,
             &style.unchecked.disabled, &style.checked.normal, &style.checked.hot,
             &style.checked.pressed, &style.checked.disabled});
  surface(reader, L"boxUnchecked", style.unchecked.normal);
  surface(reader, L"boxUncheckedHot", style.unchecked.hot);
  surface(reader, L"boxUncheckedPressed", style.unchecked.pressed);
  surface(reader, L"boxUncheckedDisabled", style.unchecked.disabled);
  surface(reader, L"boxChecked", style.checked.normal);
  surface(reader, L"boxCheckedHot", style.checked.hot);
  surface(reader, L"boxCheckedPressed", style.checked.pressed);
  surface(reader, L"boxCheckedDisabled", style.checked.disabled);
  reader.color({L"checkColor"}, style.checkColor);
  mainText(reader, style.text, {L"text"});
  reader.integer({L"boxSize"}, style.boxSize);
  reader.integer({L"textLeft"}, style.textLeft);
}

void parseSelectBoxStyle(const StyleReader& reader, SelectBoxStyle& style) {
  shapeInto(
      reader, L"shape",
      {&style.surface.normal, &style.surface.hot, &style.surface.pressed, &style.surface.disabled});
  shapeInto(reader, L"arrowShape",
            {&style.arrowSurface.normal, &style.arrowSurface.hot, &style.arrowSurface.pressed,
             &style.arrowSurface.disabled});
  shapeInto(reader, L"dropdownShape", {&style.dropdownSurface});
  surface(reader, L"surface", style.surface.normal);
  surface(reader, L"hotSurface", style.surface.hot);
  surface(reader, L"pressedSurface", style.surface.pressed);
  surface(reader, L"disabledSurface", style.surface.disabled);
  surface(reader, L"arrowSurface", style.arrowSurface.normal);
  surface(reader, L"arrowHotSurface", style.arrowSurface.hot);
  surface(reader, L"arrowPressedSurface", style.arrowSurface.pressed);
  surface(reader, L"arrowDisabledSurface", style.arrowSurface.disabled);
  surface(reader, L"dropdownSurface", style.dropdownSurface);
  surface(reader, L"optionHotSurface", style.optionSurface.hot);
  surface(reader, L"optionSelectedSurface", style.optionSurface.active);
  parseScrollBarStyle(reader.at(L"scrollBar"), style.scrollBar);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
  mainText(reader, style.text, {L"text"});
  reader.color({L"arrowColor"}, style.arrowColor);
  reader.integer({L"arrowWidth"}, style.arrowWidth);
  reader.integer({L"itemHeight"}, style.itemHeight);
  reader.integer({L"maxVisibleItems"}, style.maxVisibleItems);
  reader.integer({L"dropdownGap"}, style.dropdownGap);
  reader.integer({L"dropdownPadding"}, style.dropdownPadding);
  reader.integer({L"dropdownItemPaddingX"}, style.dropdownItemPaddingX);
  reader.integer({L"dropdownItemPaddingY"}, style.dropdownItemPaddingY);
  reader.integer({L"dropdownScrollBarWidth"}, style.dropdownScrollBarWidth);
  reader.integer({L"dropdownScrollRailGap"}, style.dropdownScrollRailGap);
  reader.flag({L"dropdownEmbeddedScrollRail"}, style.dropdownEmbeddedScrollRail);
}

void parseHierarchicalListBoxStyle(const StyleReader& reader, HierarchicalListBoxStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"rowShape", {&style.row.normal, &style.row.hot, &style.row.pressed});
  shapeInto(reader, L"selectedRowShape", {&style.selectedRow.normal, &style.selectedRow.hot});
  shapeInto(reader, L"selectedRailShape", {&style.selectedRail});
  surface(reader, L"surface", style.surface);
  surface(reader, L"row", style.row.normal);
  surface(reader, L"rowHot", style.row.hot);
  surface(reader, L"rowPressed", style.row.pressed);
  surface(reader, L"selectedRow", style.selectedRow.normal);
  surface(reader, L"selectedRowHot", style.selectedRow.hot);
  surface(reader, L"selectedRail", style.selectedRail);
  parseScrollBarStyle(reader.at(L"scrollBar"), style.scrollBar);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
  text(reader, L"text", style.text);
  text(reader, L"selectedText", style.selectedText);
  text(reader, L"disabledText", style.disabledText);
  reader.color({L"separator"}, style.separator);
  reader.integer({L"rowHeight"}, style.rowHeight);
  reader.integer({L"railWidth"}, style.railWidth);
  reader.integer({L"linePadding"}, style.linePadding);
  reader.integer({L"contentInsetX"}, style.contentInsetX);
  reader.integer({L"contentInsetY"}, style.contentInsetY);
  reader.integer({L"itemPaddingX"}, style.itemPaddingX);
  reader.integer({L"itemPaddingY"}, style.itemPaddingY);
  reader.integer({L"scrollBarWidth"}, style.scrollBarWidth);
  reader.integer({L"scrollRailGap"}, style.scrollRailGap);
  reader.flag({L"showSeparators"}, style.showSeparators);
}

void parseDateInputStyle(const StyleReader& reader, DateInputStyle& style) {
  shapeInto(
      reader, L"shape",
      {&style.surface.normal, &style.surface.hot, &style.surface.pressed, &style.surface.disabled});
  shapeInto(reader, L"arrowShape",
            {&style.arrowSurface.normal, &style.arrowSurface.hot, &style.arrowSurface.pressed});
  shapeInto(reader, L"popupShape", {&style.popupSurface});
  for (auto [name, field] :
       {std::pair{L"surface", &style.surface.normal}, std::pair{L"hotSurface", &style.surface.hot},
        std::pair{L"pressedSurface", &style.surface.pressed},
        std::pair{L"disabledSurface", &style.surface.disabled},
        std::pair{L"arrowSurface", &style.arrowSurface.normal},
        std::pair{L"arrowHotSurface", &style.arrowSurface.hot},
        std::pair{L"arrowPressedSurface", &style.arrowSurface.pressed},
        std::pair{L"popupSurface", &style.popupSurface},
        std::pair{L"headerSurface", &style.headerSurface},
        std::pair{L"dayHotSurface", &style.daySurface.hot},
        std::pair{L"dayPressedSurface", &style.daySurface.pressed},
        std::pair{L"daySelectedSurface", &style.daySurface.active},
        std::pair{L"todaySurface", &style.todaySurface}}) {
    surface(reader, name, *field);
  }
  for (auto [name, field] :
       {std::pair{L"text", &style.text}, std::pair{L"headerText", &style.headerText},
        std::pair{L"weekdayText", &style.weekdayText}, std::pair{L"dayText", &style.dayText},
        std::pair{L"weekendText", &style.weekendText},
        std::pair{L"saturdayText", &style.saturdayText},
        std::pair{L"sundayText", &style.sundayText},
        std::pair{L"mutedDayText", &style.mutedDayText}}) {
    text(reader, name, *field);
  }
  reader.color({L"arrowColor"}, style.arrowColor);
  reader.integer({L"arrowWidth"}, style.arrowWidth);
  reader.integer({L"popupWidth"}, style.popupWidth);
  reader.integer({L"popupPadding"}, style.popupPadding);
  reader.integer({L"popupGap"}, style.popupGap);
  reader.integer({L"headerHeight"}, style.headerHeight);
  reader.integer({L"weekdayHeight"}, style.weekdayHeight);
  reader.integer({L"dayCellHeight"}, style.dayCellHeight);
  reader.integer({L"navButtonExtent"}, style.navButtonExtent);
}

void parseTabStripStyle(const StyleReader& reader, TabStripStyle& style) {
  shapeInto(reader, L"shape", style.itemButton.surface);
  parseButtonStyle(reader.at(L"itemButton"), style.itemButton);
  reader.integer({L"verticalItemHeight"}, style.verticalItemHeight);
}

void parseMenuBarStyle(const StyleReader& reader, MenuBarStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"itemShape",
            {&style.itemSurface.normal, &style.itemSurface.hot, &style.itemSurface.pressed,
             &style.itemSurface.active});
  shapeInto(reader, L"popupShape", {&style.popupSurface});
  shapeInto(reader, L"popupItemShape",
            {&style.popupItemSurface.hot, &style.popupItemSurface.pressed});
  for (auto [name, field] :
       {std::pair{L"surface", &style.surface}, std::pair{L"itemSurface", &style.itemSurface.normal},
        std::pair{L"itemHotSurface", &style.itemSurface.hot},
        std::pair{L"itemPressedSurface", &style.itemSurface.pressed},
        std::pair{L"itemActiveSurface", &style.itemSurface.active},
        std::pair{L"popupSurface", &style.popupSurface},
        std::pair{L"popupItemHotSurface", &style.popupItemSurface.hot},
        std::pair{L"popupItemPressedSurface", &style.popupItemSurface.pressed}}) {
    surface(reader, name, *field);
  }
  text(reader, L"itemText", style.itemText);
  text(reader, L"shortcutText", style.shortcutText);
  reader.color({L"separator"}, style.separator);
  reader.color({L"check"}, style.check);
  reader.color({L"arrow"}, style.arrow);
  reader.integer({L"height"}, style.height);
  reader.integer({L"itemPaddingX"}, style.itemPaddingX);
  reader.integer({L"itemGap"}, style.itemGap);
  reader.integer({L"popupPadding"}, style.popupPadding);
  reader.integer({L"popupItemHeight"}, style.popupItemHeight);
  reader.integer({L"popupMinWidth"}, style.popupMinWidth);
  reader.integer({L"checkColumnWidth"}, style.checkColumnWidth);
  reader.integer({L"shortcutColumnWidth"}, style.shortcutColumnWidth);
  reader.integer({L"submenuArrowWidth"}, style.submenuArrowWidth);
  reader.integer({L"separatorHeight"}, style.separatorHeight);
  reader.integer({L"popupGap"}, style.popupGap);
  reader.flag({L"drawSurface"}, style.drawSurface);
  reader.flag({L"drawItemSurface"}, style.drawItemSurface);
}

void parseTableListStyle(const StyleReader& reader, TableListStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"headerShape", {&style.header});
  shapeInto(reader, L"rowShape", {&style.row});
  shapeInto(reader, L"selectedRowShape", {&style.selectedRow});
  shapeInto(reader, L"selectedRailShape", {&style.selectedRail});
  surface(reader, L"surface", style.surface);
  surface(reader, L"header", style.header);
  surface(reader, L"row", style.row);
  surface(reader, L"selectedRow", style.selectedRow);
  surface(reader, L"selectedRail", style.selectedRail);
  text(reader, L"headerText", style.headerText);
  text(reader, L"rowText", style.rowText);
  text(reader, L"selectedText", style.selectedText);
  text(reader, L"highSeverityText", style.highSeverityText);
  reader.color({L"highSeverityFill"}, style.highSeverityFill);
  reader.color({L"mediumSeverityFill"}, style.mediumSeverityFill);
  reader.color({L"lowSeverityFill"}, style.lowSeverityFill);
  reader.color({L"separator"}, style.separator);
  reader.color({L"resizeGrip"}, style.resizeGrip);
  reader.color({L"resizeGripHot"}, style.resizeGripHot);
  reader.color({L"sortIndicator"}, style.sortIndicator);
  reader.color({L"sortIndicatorHot"}, style.sortIndicatorHot);
  reader.integer({L"headerHeight"}, style.headerHeight);
  reader.integer({L"rowHeight"}, style.rowHeight);
  reader.integer({L"railWidth"}, style.railWidth);
  reader.integer({L"resizeGripWidth"}, style.resizeGripWidth);
  reader.integer({L"sortIndicatorWidth"}, style.sortIndicatorWidth);
  reader.integer({L"linePadding"}, style.linePadding);
  reader.integer({L"contentInsetX"}, style.contentInsetX);
  reader.integer({L"contentInsetY"}, style.contentInsetY);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
}

void parseRichTextStyle(const StyleReader& reader, RichTextStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"iconShape", {&style.icon});
  surface(reader, L"surface", style.surface);
  surface(reader, L"icon", style.icon);
  text(reader, L"text", style.text);
  text(reader, L"linkText", style.linkText);
  reader.integer({L"paddingX"}, style.paddingX);
  reader.integer({L"paddingY"}, style.paddingY);
  reader.integer({L"lineHeight"}, style.lineHeight);
}

void parseTextInputStyle(const StyleReader& reader, TextInputStyle& style) {
  shapeInto(reader, L"shape",
            {&style.surface.normal, &style.surface.hot, &style.surface.pressed,
             &style.surface.disabled, &style.surface.active});
  shapeInto(reader, L"attachmentShape", {&style.attachmentSurface});
  shapeInto(reader, L"attachmentImageShape", {&style.attachmentImageSurface});
  shapeInto(reader, L"attachmentRemoveShape", {&style.attachmentRemoveSurface});
  for (auto [name, field] :
       {std::pair{L"surface", &style.surface.normal}, std::pair{L"hotSurface", &style.surface.hot},
        std::pair{L"pressedSurface", &style.surface.pressed},
        std::pair{L"disabledSurface", &style.surface.disabled},
        std::pair{L"focusedSurface", &style.surface.active},
        std::pair{L"selection", &style.selection},
        std::pair{L"attachmentSurface", &style.attachmentSurface},
        std::pair{L"attachmentImageSurface", &style.attachmentImageSurface},
        std::pair{L"attachmentRemoveSurface", &style.attachmentRemoveSurface}}) {
    surface(reader, name, *field);
  }
  text(reader, L"text", style.text);
  text(reader, L"placeholderText", style.placeholderText);
  text(reader, L"attachmentText", style.attachmentText);
  reader.color({L"caretColor"}, style.caretColor);
  reader.color({L"attachmentIconColor"}, style.attachmentIconColor);
  reader.integer({L"paddingX"}, style.paddingX);
  reader.integer({L"paddingY"}, style.paddingY);
  reader.integer({L"lineHeight"}, style.lineHeight);
  reader.integer({L"attachmentHeight"}, style.attachmentHeight);
  reader.integer({L"attachmentGap"}, style.attachmentGap);
  reader.integer({L"attachmentRemoveExtent"}, style.attachmentRemoveExtent);
  reader.flag({L"showAttachmentRemove"}, style.showAttachmentRemove);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
}

void parseSelectableTextStyle(const StyleReader& reader, SelectableTextStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  surface(reader, L"surface", style.surface);
  surface(reader, L"selection", style.selection);
  text(reader, L"text", style.text);
  text(reader, L"selectedText", style.selectedText);
  reader.integer({L"paddingX"}, style.paddingX);
  reader.integer({L"paddingY"}, style.paddingY);
  reader.integer({L"lineHeight"}, style.lineHeight);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
}

void parsePopupStyle(const StyleReader& reader, PopupStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"headerShape", {&style.header});
  shapeInto(reader, L"iconShape", {&style.icon});
  surface(reader, L"surface", style.surface);
  surface(reader, L"header", style.header);
  surface(reader, L"icon", style.icon);
  parseButtonStyle(reader.at(L"closeButton"), style.closeButton);
  parseButtonStyle(reader.at(L"primaryAction"), style.primaryAction);
  parseButtonStyle(reader.at(L"secondaryAction"), style.secondaryAction);
  text(reader, L"titleText", style.titleText);
  text(reader, L"messageText", style.messageText);
  text(reader, L"iconText", style.iconText);
  reader.integer({L"headerHeight"}, style.headerHeight);
  reader.integer({L"paddingX"}, style.paddingX);
  reader.integer({L"paddingY"}, style.paddingY);
  reader.integer({L"iconSize"}, style.iconSize);
  reader.integer({L"actionWidth"}, style.actionWidth);
  reader.integer({L"actionHeight"}, style.actionHeight);
  reader.integer({L"actionGap"}, style.actionGap);
  reader.integer({L"shadowOffsetX"}, style.shadowOffsetX);
  reader.integer({L"shadowOffsetY"}, style.shadowOffsetY);
  reader.flag({L"showShadow"}, style.showShadow);
}

void parseTooltipStyle(const StyleReader& reader, TooltipStyle& style) {
  shapeInto(reader, L"shape", {&style.surface});
  shapeInto(reader, L"railShape", {&style.accentRail});
  shapeInto(reader, L"iconShape", {&style.icon});
  surface(reader, L"surface", style.surface);
  surface(reader, L"accentRail", style.accentRail);
  surface(reader, L"icon", style.icon);
  reader.color({L"shadow"}, style.shadow);
  text(reader, L"textStyle", style.textStyle);
  text(reader, L"iconText", style.iconText);
  reader.integer({L"maxWidth"}, style.maxWidth);
  reader.integer({L"paddingX"}, style.paddingX);
  reader.integer({L"paddingY"}, style.paddingY);
  reader.integer({L"iconSize"}, style.iconSize);
  reader.integer({L"gap"}, style.gap);
  reader.integer({L"shadowOffsetX"}, style.shadowOffsetX);
  reader.integer({L"shadowOffsetY"}, style.shadowOffsetY);
  reader.flag({L"showAccentRail"}, style.showAccentRail);
  reader.flag({L"showIcon"}, style.showIcon);
  reader.flag({L"showShadow"}, style.showShadow);
  parseScrollAcceleration(reader.at(L"scrollAcceleration"), style.scrollAcceleration);
}

void parseWindowStyle(const StyleReader& reader, WindowStyle& style) {
  surface(reader, L"surface", style.surface);
  reader.color({L"fallbackBackground"}, style.fallbackBackground);
  reader.flag({L"drawSurface"}, style.drawSurface);
  reader.flag({L"customFrame"}, style.customFrame);
  reader.flag({L"useSurfaceRegion"}, style.useSurfaceRegion);
  reader.flag({L"useChildSurfaceRegion"}, style.useChildSurfaceRegion);
  reader.flag({L"clipRegionOnResize"}, style.clipRegionOnResize);
  reader.integer({L"resizeBorderThickness"}, style.resizeBorderThickness);
}

}  // namespace tessel
