// The style record of every control kind: plain values that a control copies from the sheet
// and paints from. Metrics carry their defaults here; colours come from the style builders.
#pragma once

#include <cstdint>

#include "tessel/style/color.h"
#include "tessel/style/control_states.h"
#include "tessel/style/surface_style.h"
#include "tessel/style/text_style.h"

namespace tessel {

// How fast wheel scrolling speeds up under quick successive notches.
struct ScrollAcceleration {
  bool enabled = true;
  float strength = 0.45f;
  float maxMultiplier = 4.0f;
  int32_t fastIntervalMs = 42;
  int32_t resetMs = 180;
};

struct ButtonStyle {
  ControlStates surface;
  TextStyle text;
  ShapeKind hitShape = ShapeKind::Rectangle;
  bool hasHitShape = false;
  bool useSurfaceHitTesting = false;
};

struct BitmapButtonStyle {
  TextStyle text;
  TintStates tints;
};

struct PanelStyle {
  SurfaceStyle surface;
  int32_t padding = 12;
};

struct CardStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  TextStyle titleText;
  TextStyle subtitleText;
  int32_t headerHeight = 34;
  int32_t contentPadding = 12;
};

struct ChromeTitleBarStyle {
  SurfaceStyle surface;
  ButtonStyle titleButton;
  TextStyle titleText;
  int32_t buttonWidth = 46;
  int32_t buttonHeight = 30;
  int32_t buttonTop = 0;
  int32_t buttonGap = 0;
  int32_t headerActionGap = 6;
  int32_t headerActionGroupGap = 12;
  int32_t rightMargin = 0;
  int32_t iconSize = 16;
  int32_t iconLeft = 12;
  int32_t titleLeft = 38;
};

struct StatusChipStyle {
  SurfaceStyle surface;
  SurfaceStyle badge;
  TextStyle text;
  int32_t badgeSize = 10;
  int32_t badgeLeft = 10;
  int32_t textLeft = 28;
};

struct ProgressBarStyle {
  SurfaceStyle frame;
  SurfaceStyle track;
  SurfaceStyle fill;
  TextStyle labelText;
  int32_t insetX = 3;
  int32_t insetY = 3;
  int32_t labelWidth = 48;
  int32_t labelPaddingX = 8;
  int32_t labelPadding = 6;
};

struct ScrollBarStyle {
  SurfaceStyle track;
  ControlStates thumb;
  ControlStates decrementButton;
  ControlStates incrementButton;
  Color arrow = 0xFFFFFF;
  int32_t buttonExtent = 16;
  int32_t minThumbExtent = 24;
  int32_t trackPadding = 2;
  int32_t trackThickness = 12;
  int32_t thumbThickness = 8;
  bool showButtons = false;
  ScrollAcceleration acceleration;
};

struct CheckBoxStyle {
  SurfaceStyle boxUnchecked;
  SurfaceStyle boxUncheckedHot;
  SurfaceStyle boxUncheckedPressed;
  SurfaceStyle boxUncheckedDisabled;
  SurfaceStyle boxChecked;
  SurfaceStyle boxCheckedHot;
  SurfaceStyle boxCheckedPressed;
  SurfaceStyle boxCheckedDisabled;
  Color checkColor = 0xFFFFFF;
  TextStyle text;
  int32_t boxSize = 18;
  int32_t textLeft = 26;
};

struct SelectBoxStyle {
  SurfaceStyle surface;
  SurfaceStyle hotSurface;
  SurfaceStyle pressedSurface;
  SurfaceStyle disabledSurface;
  SurfaceStyle arrowSurface;
  SurfaceStyle arrowHotSurface;
  SurfaceStyle arrowPressedSurface;
  SurfaceStyle arrowDisabledSurface;
  SurfaceStyle dropdownSurface;
  SurfaceStyle optionHotSurface;
  SurfaceStyle optionSelectedSurface;
  ScrollBarStyle scrollBar;
  ScrollAcceleration scrollAcceleration;
  TextStyle text;
  Color arrowColor = 0xFFFFFF;
  int32_t arrowWidth = 28;
  int32_t itemHeight = 28;
  int32_t maxVisibleItems = 8;
  int32_t dropdownGap = 4;
  int32_t dropdownPadding = 4;
  int32_t dropdownItemPaddingX = 10;
  int32_t dropdownItemPaddingY = 4;
  int32_t dropdownScrollBarWidth = 12;
  int32_t dropdownScrollRailGap = 2;
  bool dropdownEmbeddedScrollRail = false;
};

struct HierarchicalListBoxStyle {
  SurfaceStyle surface;
  SurfaceStyle row;
  SurfaceStyle rowHot;
  SurfaceStyle rowPressed;
  SurfaceStyle selectedRow;
  SurfaceStyle selectedRowHot;
  SurfaceStyle selectedRail;
  ScrollBarStyle scrollBar;
  ScrollAcceleration scrollAcceleration;
  TextStyle text;
  TextStyle selectedText;
  TextStyle disabledText;
  Color separator = 0x808080;
  int32_t rowHeight = 28;
  int32_t railWidth = 3;
  int32_t linePadding = 2;
  int32_t contentInsetX = 4;
  int32_t contentInsetY = 4;
  int32_t itemPaddingX = 10;
  int32_t itemPaddingY = 4;
  int32_t scrollBarWidth = 12;
  int32_t scrollRailGap = 2;
  bool showSeparators = false;
};

struct DateInputStyle {
  SurfaceStyle surface;
  SurfaceStyle hotSurface;
  SurfaceStyle pressedSurface;
  SurfaceStyle disabledSurface;
  SurfaceStyle arrowSurface;
  SurfaceStyle arrowHotSurface;
  SurfaceStyle arrowPressedSurface;
  SurfaceStyle popupSurface;
  SurfaceStyle headerSurface;
  SurfaceStyle dayHotSurface;
  SurfaceStyle dayPressedSurface;
  SurfaceStyle daySelectedSurface;
  SurfaceStyle todaySurface;
  TextStyle text;
  TextStyle headerText;
  TextStyle weekdayText;
  TextStyle dayText;
  TextStyle weekendText;
  TextStyle saturdayText;
  TextStyle sundayText;
  TextStyle mutedDayText;
  Color arrowColor = 0xFFFFFF;
  int32_t arrowWidth = 28;
  int32_t popupWidth = 252;
  int32_t popupPadding = 8;
  int32_t popupGap = 4;
  int32_t headerHeight = 32;
  int32_t weekdayHeight = 22;
  int32_t dayCellHeight = 30;
  int32_t navButtonExtent = 28;
};

struct TabStripStyle {
  ButtonStyle itemButton;
  int32_t verticalItemHeight = 36;
};

struct MenuBarStyle {
  SurfaceStyle surface;
  SurfaceStyle itemSurface;
  SurfaceStyle itemHotSurface;
  SurfaceStyle itemPressedSurface;
  SurfaceStyle itemActiveSurface;
  SurfaceStyle popupSurface;
  SurfaceStyle popupItemHotSurface;
  SurfaceStyle popupItemPressedSurface;
  TextStyle itemText;
  TextStyle shortcutText;
  Color separator = 0x808080;
  Color check = 0xFFFFFF;
  Color arrow = 0xFFFFFF;
  int32_t height = 30;
  int32_t itemPaddingX = 10;
  int32_t itemGap = 2;
  int32_t popupPadding = 4;
  int32_t popupItemHeight = 28;
  int32_t popupMinWidth = 180;
  int32_t checkColumnWidth = 24;
  int32_t shortcutColumnWidth = 72;
  int32_t submenuArrowWidth = 18;
  int32_t separatorHeight = 9;
  int32_t popupGap = 2;
  bool drawSurface = true;
  bool drawItemSurface = true;
};

struct TableListStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  SurfaceStyle row;
  SurfaceStyle selectedRow;
  SurfaceStyle selectedRail;
  TextStyle headerText;
  TextStyle rowText;
  TextStyle selectedText;
  TextStyle highSeverityText;
  Color highSeverityFill = rgbColor(0x6E, 0x1E, 0x1E);
  Color mediumSeverityFill = rgbColor(0x6E, 0x50, 0x14);
  Color lowSeverityFill = rgbColor(0x1E, 0x46, 0x32);
  Color separator = 0x808080;
  Color resizeGrip = 0x808080;
  Color resizeGripHot = 0xFFFFFF;
  Color sortIndicator = 0xC0C0C0;
  Color sortIndicatorHot = 0xFFFFFF;
  int32_t headerHeight = 30;
  int32_t rowHeight = 28;
  int32_t railWidth = 3;
  int32_t resizeGripWidth = 6;
  int32_t sortIndicatorWidth = 14;
  int32_t linePadding = 1;
  int32_t contentInsetX = 8;
  int32_t contentInsetY = 2;
  ScrollAcceleration scrollAcceleration;
};

struct RichTextStyle {
  SurfaceStyle surface;
  SurfaceStyle icon;
  TextStyle text;
  TextStyle linkText;
  int32_t paddingX = 12;
  int32_t paddingY = 10;
  int32_t lineHeight = 0;  // 0: from the font
};

struct TextInputStyle {
  SurfaceStyle surface;
  SurfaceStyle hotSurface;
  SurfaceStyle pressedSurface;
  SurfaceStyle disabledSurface;
  SurfaceStyle focusedSurface;
  SurfaceStyle selection;
  SurfaceStyle attachmentSurface;
  SurfaceStyle attachmentImageSurface;
  SurfaceStyle attachmentRemoveSurface;
  TextStyle text;
  TextStyle placeholderText;
  TextStyle attachmentText;
  Color caretColor = 0xFFFFFF;
  Color attachmentIconColor = 0xFFFFFF;
  int32_t paddingX = 8;
  int32_t paddingY = 5;
  int32_t lineHeight = 0;
  int32_t attachmentHeight = 26;
  int32_t attachmentGap = 6;
  int32_t attachmentRemoveExtent = 16;
  bool showAttachmentRemove = true;
  ScrollAcceleration scrollAcceleration;
};

struct SelectableTextStyle {
  SurfaceStyle surface;
  SurfaceStyle selection;
  TextStyle text;
  TextStyle selectedText;
  int32_t paddingX = 8;
  int32_t paddingY = 6;
  int32_t lineHeight = 0;
  ScrollAcceleration scrollAcceleration;
};

struct PopupStyle {
  SurfaceStyle surface;
  SurfaceStyle header;
  SurfaceStyle icon;
  ButtonStyle closeButton;
  ButtonStyle primaryAction;
  ButtonStyle secondaryAction;
  TextStyle titleText;
  TextStyle messageText;
  TextStyle iconText;
  int32_t headerHeight = 40;
  int32_t paddingX = 18;
  int32_t paddingY = 14;
  int32_t iconSize = 32;
  int32_t actionWidth = 104;
  int32_t actionHeight = 32;
  int32_t actionGap = 8;
  int32_t shadowOffsetX = 0;
  int32_t shadowOffsetY = 6;
  bool showShadow = true;
};

struct TooltipStyle {
  SurfaceStyle surface;
  SurfaceStyle accentRail;
  SurfaceStyle icon;
  Color shadow = 0x000000;
  TextStyle textStyle;
  TextStyle iconText;
  int32_t maxWidth = 360;
  int32_t paddingX = 10;
  int32_t paddingY = 7;
  int32_t iconSize = 18;
  int32_t gap = 8;
  int32_t shadowOffsetX = 0;
  int32_t shadowOffsetY = 3;
  bool showAccentRail = true;
  bool showIcon = false;
  bool showShadow = true;
  ScrollAcceleration scrollAcceleration;
};

struct WindowStyle {
  SurfaceStyle surface;
  Color fallbackBackground = 0x000000;
  bool drawSurface = true;
  bool customFrame = true;
  bool useSurfaceRegion = false;
  bool useChildSurfaceRegion = false;
  bool clipRegionOnResize = true;
  int32_t resizeBorderThickness = 6;
};

}  // namespace tessel
