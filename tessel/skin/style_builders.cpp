#include "tessel/skin/style_builders.h"

#include "tessel/skin/surface_builder.h"

namespace tessel {

namespace {

// Noise seeds per role, from 20742 upward, so that two kinds never share a grain pattern.
enum Seed : uint32_t {
  kButtonSeed = 20742,
  kPanelSeed,
  kCardSeed,
  kCardHeaderSeed,
  kChromeSeed,
  kChipSeed,
  kProgressSeed,
  kScrollSeed,
  kCheckSeed,
  kSelectSeed,
  kListSeed,
  kDateSeed,
  kMenuSeed,
  kTableSeed,
  kRichTextSeed,
  kInputSeed,
  kSelectableSeed,
  kPopupSeed,
  kTooltipSeed,
  kWindowSeed,
};

Color restFill(const Theme& theme) {
  return mixColor(theme.control, theme.border, 0.18);
}

// Moves a surface's colours just far enough that `text` stays readable on all of them.
void keepReadable(SurfaceStyle& surface, Color text, double minimum = 4.6) {
  surface.fill = readableFill(surface.fill, text, minimum);
  surface.gradientStart = readableFill(surface.gradientStart, text, minimum);
  surface.gradientMid = readableFill(surface.gradientMid, text, minimum);
  surface.gradientEnd = readableFill(surface.gradientEnd, text, minimum);
}

SurfaceStyle surface(const Theme& theme, SurfaceMode mode, Color from, Color toward, double amount,
                     Color border, uint32_t seed, bool elevated = true,
                     ShapeKind shape = ShapeKind::Rectangle) {
  SurfaceRecipe recipe;
  recipe.from = from;
  recipe.to = mixColor(from, toward, amount);
  recipe.border = border;
  recipe.shape = shape;
  recipe.seed = seed;
  recipe.elevated = elevated;
  return buildSurface(theme, mode, recipe);
}

// An inner surface: a flat plate without shadow or glow, as rows and rails are.
SurfaceStyle plate(const Theme& theme, SurfaceMode mode, Color fill, Color border, uint32_t seed,
                   ShapeKind shape = ShapeKind::Rectangle) {
  return surface(theme, mode, fill, theme.frame, 0.18, border, seed, false, shape);
}

TextStyle smallText(const Theme& theme, int32_t weight) {
  TextStyle text = theme.uiFont;
  text.pointSize = 9;
  text.weight = weight;
  return text;
}

struct StateColors {
  Color normal, hot, pressed, active, border, borderHot, text;
};

StateColors stateColors(const Theme& theme, ButtonTone tone) {
  const Color rest = restFill(theme);
  switch (tone) {
    case ButtonTone::Primary:
      return {theme.accent,    theme.accentHot, mixColor(theme.accent, theme.shell, 0.2),
              theme.accentHot, theme.accentHot, theme.textHot,
              theme.shell};
    case ButtonTone::Quiet:
      return {theme.panel, theme.controlHot, theme.controlPressed, theme.controlHot,
              theme.panel, theme.border,     theme.mutedText};
    case ButtonTone::Success: {
      const Color green = rgbColor(0x23, 0x7A, 0x4B);
      return {green,
              mixColor(green, theme.textHot, 0.15),
              mixColor(green, theme.shell, 0.2),
              mixColor(green, theme.textHot, 0.2),
              green,
              theme.textHot,
              rgbColor(0xFF, 0xFF, 0xFF)};
    }
    case ButtonTone::Warning: {
      const Color amber = rgbColor(0xC8, 0x8A, 0x10);
      return {amber,
              mixColor(amber, theme.textHot, 0.15),
              mixColor(amber, theme.shell, 0.2),
              mixColor(amber, theme.textHot, 0.2),
              amber,
              theme.textHot,
              rgbColor(0x10, 0x10, 0x10)};
    }
    case ButtonTone::Danger: {
      const Color red = rgbColor(0xB0, 0x2A, 0x2A);
      return {red,
              mixColor(red, theme.textHot, 0.15),
              mixColor(red, theme.shell, 0.2),
              mixColor(red, theme.textHot, 0.2),
              red,
              theme.textHot,
              rgbColor(0xFF, 0xFF, 0xFF)};
    }
    case ButtonTone::Default:
    case ButtonTone::Secondary:
    default:
      return {rest,
              theme.controlHot,
              theme.controlPressed,
              theme.controlHot,
              theme.border,
              theme.accentHot,
              theme.text};
  }
}

ControlStates controlStates(const Theme& theme, SurfaceMode mode, const StateColors& colors,
                            uint32_t seed, ShapeKind shape) {
  ControlStates states;
  states.normal =
      surface(theme, mode, colors.normal, theme.frame, 0.22, colors.border, seed, true, shape);
  states.hot =
      surface(theme, mode, colors.hot, theme.frame, 0.18, colors.borderHot, seed, true, shape);
  states.pressed =
      surface(theme, mode, colors.pressed, theme.frame, 0.30, colors.borderHot, seed, false, shape);
  states.disabled = surface(theme, mode, theme.disabledFill, theme.frame, 0.18,
                            mixColor(theme.border, theme.disabledFill, 0.5), seed, false, shape);
  states.active =
      surface(theme, mode, colors.active, theme.frame, 0.22, colors.borderHot, seed, true, shape);
  for (SurfaceStyle* state : {&states.normal, &states.hot, &states.pressed, &states.active})
    keepReadable(*state, colors.text);
  keepReadable(states.disabled, theme.disabledText, 2.2);
  return states;
}

}  // namespace

TextStyle buildTextStyle(const Theme& theme, TextTone tone) {
  TextStyle text = theme.uiFont;
  switch (tone) {
    case TextTone::Title:
      text.pointSize = 11;
      text.weight = 600;
      text.color = theme.textHot;
      break;
    case TextTone::Muted:
      text.pointSize = 9;
      text.weight = 400;
      text.color = theme.mutedText;
      break;
    case TextTone::Mono:
      text = theme.monoFont;
      break;
    case TextTone::Secondary:
      text.weight = 400;
      text.color = mixColor(theme.text, theme.mutedText, 0.5);
      break;
    case TextTone::Danger:
      text.color = mixColor(rgbColor(0xFF, 0x6B, 0x6B), theme.text, 0.2);
      break;
    case TextTone::Default:
      break;
  }
  return text;
}

ButtonStyle buildButtonStyle(const Theme& theme, SurfaceMode mode, ButtonTone tone) {
  const StateColors colors = stateColors(theme, tone);
  ButtonStyle style;
  style.surface = controlStates(theme, mode, colors, kButtonSeed, ShapeKind::RoundedRect);
  style.text = smallText(theme, 700);
  style.text.color = colors.text;
  style.text.disabledColor = theme.disabledText;
  return style;
}

BitmapButtonStyle buildBitmapButtonStyle(const Theme& theme) {
  BitmapButtonStyle style;
  style.text = smallText(theme, 700);
  return style;
}

PanelStyle buildPanelStyle(const Theme& theme, SurfaceMode mode, PanelTone tone) {
  PanelStyle style;
  switch (tone) {
    case PanelTone::Glass:
      style.surface = surface(theme, mode, mixColor(theme.panel, theme.text, 0.06), theme.frame,
                              0.20, mixColor(theme.border, theme.textHot, 0.2), kPanelSeed, false,
                              ShapeKind::RoundedRect);
      style.surface.opacity = 232;
      break;
    case PanelTone::Raised:
      style.surface = surface(theme, mode, mixColor(theme.panel, theme.control, 0.5), theme.frame,
                              0.24, theme.border, kPanelSeed, true, ShapeKind::RoundedRect);
      break;
    case PanelTone::Dashboard:
      style.surface = surface(theme, mode, theme.header, theme.panel, 0.35, theme.border,
                              kPanelSeed, true, ShapeKind::RoundedRect);
      break;
    case PanelTone::Default:
      style.surface =
          surface(theme, mode, theme.panel, theme.shell, 0.30, theme.border, kPanelSeed, false);
      break;
  }
  keepReadable(style.surface, theme.text);
  keepReadable(style.surface, theme.mutedText, 3.1);
  return style;
}

CardStyle buildCardStyle(const Theme& theme, SurfaceMode mode, CardTone tone) {
  Color edge = theme.border;
  switch (tone) {
    case CardTone::Info:
      edge = mixColor(theme.accent, rgbColor(0x3C, 0x8C, 0xE6), 0.6);
      break;
    case CardTone::Success:
      edge = rgbColor(0x2E, 0x8B, 0x57);
      break;
    case CardTone::Warning:
      edge = rgbColor(0xC8, 0x8A, 0x10);
      break;
    case CardTone::Danger:
      edge = rgbColor(0xB0, 0x2A, 0x2A);
      break;
    case CardTone::Default:
      break;
  }
  CardStyle style;
  style.surface = surface(theme, mode, mixColor(theme.panel, theme.control, 0.5), theme.frame, 0.22,
                          edge, kCardSeed, true, ShapeKind::RoundedRect);
  style.header = plate(theme, mode, mixColor(theme.header, edge, 0.12), edge, kCardHeaderSeed,
                       ShapeKind::RoundedRect);
  style.titleText = buildTextStyle(theme, TextTone::Title);
  style.subtitleText = buildTextStyle(theme, TextTone::Muted);
  keepReadable(style.header, style.titleText.color);
  keepReadable(style.surface, theme.text);
  keepReadable(style.surface, style.subtitleText.color, 3.1);
  return style;
}

ChromeTitleBarStyle buildChromeTitleBarStyle(const Theme& theme, SurfaceMode mode) {
  ChromeTitleBarStyle style;
  style.surface =
      surface(theme, mode, theme.header, theme.shell, 0.35, theme.border, kChromeSeed, false);
  style.titleButton = buildButtonStyle(theme, mode, ButtonTone::Quiet);
  style.titleButton.surface.each([&](SurfaceStyle& state) {
    state.shape = ShapeKind::Rectangle;
    state.showShadow = state.showGlow = false;
  });
  style.titleButton.surface.normal.drawFill = false;
  style.titleButton.surface.normal.drawBorder = false;
  style.titleButton.surface.normal.useGradient = false;
  style.titleText = buildTextStyle(theme, TextTone::Title);
  style.titleText.pointSize = 10;
  keepReadable(style.surface, style.titleText.color);
  return style;
}

StatusChipStyle buildStatusChipStyle(const Theme& theme, SurfaceMode mode) {
  StatusChipStyle style;
  style.surface = plate(theme, mode, restFill(theme), theme.border, kChipSeed, ShapeKind::Capsule);
  style.badge = plate(theme, mode, theme.accent, theme.accentHot, kChipSeed, ShapeKind::Capsule);
  style.text = smallText(theme, 600);
  keepReadable(style.surface, style.text.color);
  return style;
}

ProgressBarStyle buildProgressBarStyle(const Theme& theme, SurfaceMode mode) {
  ProgressBarStyle style;
  style.frame =
      plate(theme, mode, theme.panel, theme.border, kProgressSeed, ShapeKind::RoundedRect);
  style.track = plate(theme, mode, theme.shell, theme.shell, kProgressSeed, ShapeKind::RoundedRect);
  style.fill = surface(theme, mode, theme.accent, theme.accentHot, 0.5, theme.accentHot,
                       kProgressSeed, false, ShapeKind::RoundedRect);
  style.labelText = smallText(theme, 600);
  return style;
}

ScrollBarStyle buildScrollBarStyle(const Theme& theme, SurfaceMode mode) {
  ScrollBarStyle style;
  style.track = plate(theme, mode, theme.shell, theme.shell, kScrollSeed, ShapeKind::Capsule);
  style.track.drawBorder = false;
  StateColors thumb = stateColors(theme, ButtonTone::Default);
  thumb.normal = mixColor(theme.border, theme.text, 0.15);
  style.thumb = controlStates(theme, mode, thumb, kScrollSeed, ShapeKind::Capsule);
  style.thumb.each([](SurfaceStyle& state) { state.showShadow = state.showGlow = false; });
  style.decrementButton = controlStates(theme, mode, stateColors(theme, ButtonTone::Quiet),
                                        kScrollSeed, ShapeKind::RoundedRect);
  style.incrementButton = style.decrementButton;
  style.arrow = theme.mutedText;
  return style;
}

CheckBoxStyle buildCheckBoxStyle(const Theme& theme, SurfaceMode mode) {
  CheckBoxStyle style;
  const ShapeKind shape = ShapeKind::RoundedRect;
  const Color borderOff = mixColor(theme.border, theme.text, 0.25);
  style.unchecked.normal = plate(theme, mode, theme.shell, borderOff, kCheckSeed, shape);
  style.unchecked.hot = plate(theme, mode, theme.controlHot, theme.accentHot, kCheckSeed, shape);
  style.unchecked.pressed =
      plate(theme, mode, theme.controlPressed, theme.accentHot, kCheckSeed, shape);
  style.unchecked.disabled =
      plate(theme, mode, theme.disabledFill, theme.disabledText, kCheckSeed, shape);
  style.checked.normal = plate(theme, mode, theme.accent, theme.accentHot, kCheckSeed, shape);
  style.checked.hot = plate(theme, mode, theme.accentHot, theme.textHot, kCheckSeed, shape);
  style.checked.pressed = plate(theme, mode, mixColor(theme.accent, theme.shell, 0.2),
                                theme.accentHot, kCheckSeed, shape);
  style.checked.disabled = plate(theme, mode, mixColor(theme.disabledFill, theme.accent, 0.3),
                                 theme.disabledText, kCheckSeed, shape);
  style.checkColor = theme.shell;
  style.text = theme.uiFont;
  return style;
}

SelectBoxStyle buildSelectBoxStyle(const Theme& theme, SurfaceMode mode) {
  SelectBoxStyle style;
  const ShapeKind shape = ShapeKind::RoundedRect;
  style.surface.normal = plate(theme, mode, restFill(theme), theme.border, kSelectSeed, shape);
  style.surface.hot = plate(theme, mode, theme.controlHot, theme.accentHot, kSelectSeed, shape);
  style.surface.pressed =
      plate(theme, mode, theme.controlPressed, theme.accentHot, kSelectSeed, shape);
  style.surface.disabled =
      plate(theme, mode, theme.disabledFill, theme.disabledText, kSelectSeed, shape);
  style.arrowSurface = style.surface;
  style.arrowSurface.normal.drawBorder = false;
  style.dropdownSurface =
      surface(theme, mode, theme.panel, theme.shell, 0.2, theme.border, kSelectSeed, true, shape);
  style.optionSurface.hot = plate(theme, mode, theme.controlHot, theme.controlHot, kSelectSeed);
  style.optionSurface.active =
      plate(theme, mode, mixColor(theme.controlHot, theme.accent, 0.35), theme.accent, kSelectSeed);
  style.scrollBar = buildScrollBarStyle(theme, mode);
  style.text = theme.uiFont;
  style.arrowColor = theme.accentHot;
  for (SurfaceStyle* s :
       {&style.surface.normal, &style.surface.hot, &style.surface.pressed, &style.dropdownSurface,
        &style.optionSurface.hot, &style.optionSurface.active})
    keepReadable(*s, style.text.color);
  return style;
}

HierarchicalListBoxStyle buildHierarchicalListBoxStyle(const Theme& theme, SurfaceMode mode) {
  HierarchicalListBoxStyle style;
  style.surface = plate(theme, mode, theme.shell, theme.border, kListSeed);
  style.row.normal = plate(theme, mode, theme.shell, theme.shell, kListSeed);
  style.row.normal.drawFill = style.row.normal.drawBorder = false;
  style.row.hot = plate(theme, mode, theme.controlHot, theme.controlHot, kListSeed);
  style.row.pressed = plate(theme, mode, theme.controlPressed, theme.controlPressed, kListSeed);
  style.selectedRow.normal =
      plate(theme, mode, mixColor(theme.controlHot, theme.accent, 0.3), theme.accent, kListSeed);
  style.selectedRow.hot = plate(theme, mode, mixColor(theme.controlHot, theme.accentHot, 0.4),
                                theme.accentHot, kListSeed);
  style.selectedRail = plate(theme, mode, theme.accentHot, theme.accentHot, kListSeed);
  style.scrollBar = buildScrollBarStyle(theme, mode);
  style.text = theme.uiFont;
  style.selectedText = theme.uiFont;
  style.selectedText.color = theme.textHot;
  style.disabledText = theme.uiFont;
  style.disabledText.color = theme.disabledText;
  style.separator = mixColor(theme.border, theme.shell, 0.4);
  keepReadable(style.surface, style.text.color);
  keepReadable(style.selectedRow.normal, style.selectedText.color);
  keepReadable(style.selectedRow.hot, style.selectedText.color);
  return style;
}

DateInputStyle buildDateInputStyle(const Theme& theme, SurfaceMode mode) {
  DateInputStyle style;
  const SelectBoxStyle select = buildSelectBoxStyle(theme, mode);
  style.surface = select.surface;
  style.arrowSurface = select.arrowSurface;
  style.popupSurface = select.dropdownSurface;
  style.headerSurface = plate(theme, mode, theme.header, theme.border, kDateSeed);
  style.daySurface.hot =
      plate(theme, mode, theme.controlHot, theme.controlHot, kDateSeed, ShapeKind::RoundedRect);
  style.daySurface.pressed = plate(theme, mode, theme.controlPressed, theme.controlPressed,
                                   kDateSeed, ShapeKind::RoundedRect);
  style.daySurface.active =
      plate(theme, mode, theme.accent, theme.accentHot, kDateSeed, ShapeKind::RoundedRect);
  style.todaySurface =
      plate(theme, mode, theme.panel, theme.accentHot, kDateSeed, ShapeKind::RoundedRect);
  style.text = theme.uiFont;
  style.headerText = buildTextStyle(theme, TextTone::Title);
  style.weekdayText = buildTextStyle(theme, TextTone::Muted);
  style.dayText = theme.uiFont;
  style.weekendText = theme.uiFont;
  style.weekendText.color = theme.textHot;
  style.saturdayText = style.weekendText;
  style.sundayText = style.weekendText;
  style.mutedDayText = buildTextStyle(theme, TextTone::Muted);
  style.mutedDayText.color = theme.disabledText;
  style.arrowColor = theme.accentHot;
  keepReadable(style.surface.normal, style.text.color);
  return style;
}

TabStripStyle buildTabStripStyle(const Theme& theme, SurfaceMode mode) {
  TabStripStyle style;
  style.itemButton = buildButtonStyle(theme, mode, ButtonTone::Quiet);
  style.itemButton.surface.active =
      plate(theme, mode, mixColor(theme.controlHot, theme.accent, 0.25), theme.accentHot,
            kButtonSeed, ShapeKind::RoundedRect);
  keepReadable(style.itemButton.surface.active, style.itemButton.text.color);
  return style;
}

MenuBarStyle buildMenuBarStyle(const Theme& theme, SurfaceMode mode) {
  MenuBarStyle style;
  style.surface = plate(theme, mode, theme.header, theme.border, kMenuSeed);
  style.itemSurface.normal = plate(theme, mode, theme.header, theme.header, kMenuSeed);
  style.itemSurface.normal.drawFill = style.itemSurface.normal.drawBorder = false;
  style.itemSurface.hot =
      plate(theme, mode, theme.controlHot, theme.controlHot, kMenuSeed, ShapeKind::RoundedRect);
  style.itemSurface.pressed = plate(theme, mode, theme.controlPressed, theme.controlPressed,
                                    kMenuSeed, ShapeKind::RoundedRect);
  style.itemSurface.active = style.itemSurface.pressed;
  style.popupSurface = surface(theme, mode, theme.panel, theme.shell, 0.2, theme.border, kMenuSeed,
                               true, ShapeKind::RoundedRect);
  style.popupItemSurface.hot = style.itemSurface.hot;
  style.popupItemSurface.pressed = style.itemSurface.pressed;
  style.itemText = theme.uiFont;
  style.shortcutText = buildTextStyle(theme, TextTone::Muted);
  style.separator = mixColor(theme.border, theme.text, 0.15);
  style.check = theme.accentHot;
  style.arrow = theme.mutedText;
  for (SurfaceStyle* s : {&style.surface, &style.popupSurface, &style.itemSurface.hot,
                          &style.popupItemSurface.hot, &style.itemSurface.pressed})
    keepReadable(*s, style.itemText.color);
  return style;
}

TableListStyle buildTableListStyle(const Theme& theme, SurfaceMode mode) {
  TableListStyle style;
  style.surface = plate(theme, mode, theme.shell, theme.border, kTableSeed, ShapeKind::RoundedRect);
  style.header = plate(theme, mode, theme.header, theme.border, kTableSeed);
  style.row = plate(theme, mode, theme.shell, theme.shell, kTableSeed);
  style.row.drawFill = style.row.drawBorder = false;
  style.selectedRow =
      plate(theme, mode, mixColor(theme.controlHot, theme.accent, 0.3), theme.accent, kTableSeed);
  style.selectedRail = plate(theme, mode, theme.accentHot, theme.accentHot, kTableSeed);
  style.headerText = smallText(theme, 700);
  style.headerText.color = theme.textHot;
  style.rowText = theme.uiFont;
  style.rowText.weight = 400;
  style.selectedText = style.rowText;
  style.selectedText.color = theme.textHot;
  style.highSeverityText = style.rowText;
  style.highSeverityText.color = rgbColor(0xFF, 0x8A, 0x80);
  style.separator = mixColor(theme.border, theme.shell, 0.4);
  style.resizeGrip = theme.border;
  style.resizeGripHot = theme.accentHot;
  style.sortIndicator = theme.mutedText;
  style.sortIndicatorHot = theme.accentHot;
  keepReadable(style.surface, style.rowText.color);
  keepReadable(style.header, style.headerText.color);
  keepReadable(style.selectedRow, style.selectedText.color);
  return style;
}

RichTextStyle buildRichTextStyle(const Theme& theme, SurfaceMode mode) {
  RichTextStyle style;
  style.surface = plate(theme, mode, theme.panel, theme.border, kRichTextSeed);
  style.icon = plate(theme, mode, theme.accent, theme.accentHot, kRichTextSeed, ShapeKind::Capsule);
  style.text = theme.uiFont;
  style.text.weight = 400;
  style.linkText = style.text;
  style.linkText.color = theme.accentHot;
  style.linkText.underline = true;
  keepReadable(style.surface, style.text.color);
  keepReadable(style.surface, style.linkText.color);
  return style;
}

TextInputStyle buildTextInputStyle(const Theme& theme, SurfaceMode mode) {
  TextInputStyle style;
  const ShapeKind shape = ShapeKind::RoundedRect;
  style.surface.normal = plate(theme, mode, theme.shell, theme.border, kInputSeed, shape);
  style.surface.hot = plate(theme, mode, theme.shell, theme.accentHot, kInputSeed, shape);
  style.surface.pressed = style.surface.hot;
  style.surface.disabled =
      plate(theme, mode, theme.disabledFill, theme.disabledText, kInputSeed, shape);
  style.surface.active = plate(theme, mode, theme.shell, theme.accent, kInputSeed, shape);
  style.surface.active.showOutline = true;
  style.surface.active.outlineWidth = 1;
  style.surface.active.outline = theme.accentHot;
  style.selection =
      plate(theme, mode, mixColor(theme.shell, theme.accent, 0.45), theme.accent, kInputSeed);
  style.selection.drawBorder = false;
  style.attachmentSurface = plate(theme, mode, theme.control, theme.border, kInputSeed, shape);
  style.attachmentImageSurface = plate(theme, mode, theme.panel, theme.border, kInputSeed, shape);
  style.attachmentRemoveSurface =
      plate(theme, mode, theme.controlHot, theme.border, kInputSeed, ShapeKind::Capsule);
  style.text = theme.uiFont;
  style.text.weight = 400;
  style.placeholderText = style.text;
  style.placeholderText.color = theme.disabledText;
  style.attachmentText = buildTextStyle(theme, TextTone::Muted);
  style.caretColor = theme.textHot;
  style.attachmentIconColor = theme.mutedText;
  for (SurfaceStyle* s : {&style.surface.normal, &style.surface.hot, &style.surface.active})
    keepReadable(*s, style.text.color);
  keepReadable(style.surface.normal, style.placeholderText.color, 3.1);
  return style;
}

SelectableTextStyle buildSelectableTextStyle(const Theme& theme, SurfaceMode mode) {
  SelectableTextStyle style;
  style.surface = plate(theme, mode, theme.shell, theme.border, kSelectableSeed);
  style.selection =
      plate(theme, mode, mixColor(theme.shell, theme.accent, 0.45), theme.accent, kSelectableSeed);
  style.selection.drawBorder = false;
  style.text = theme.monoFont;
  style.selectedText = theme.monoFont;
  style.selectedText.color = theme.textHot;
  keepReadable(style.surface, style.text.color);
  return style;
}

PopupStyle buildPopupStyle(const Theme& theme, SurfaceMode mode) {
  PopupStyle style;
  style.surface = surface(theme, mode, theme.panel, theme.shell, 0.3, theme.frame, kPopupSeed, true,
                          ShapeKind::RoundedRect);
  style.header = plate(theme, mode, theme.header, theme.border, kPopupSeed);
  style.icon = plate(theme, mode, theme.accent, theme.accentHot, kPopupSeed, ShapeKind::Capsule);
  style.closeButton = buildButtonStyle(theme, mode, ButtonTone::Quiet);
  style.primaryAction = buildButtonStyle(theme, mode, ButtonTone::Primary);
  style.secondaryAction = buildButtonStyle(theme, mode, ButtonTone::Secondary);
  style.titleText = buildTextStyle(theme, TextTone::Title);
  style.messageText = theme.uiFont;
  style.messageText.weight = 400;
  style.iconText = smallText(theme, 700);
  style.iconText.color = theme.shell;
  keepReadable(style.header, style.titleText.color);
  keepReadable(style.surface, style.messageText.color);
  return style;
}

TooltipStyle buildTooltipStyle(const Theme& theme, SurfaceMode mode) {
  TooltipStyle style;
  style.surface = surface(theme, mode, theme.panel, theme.shell, 0.2, theme.border, kTooltipSeed,
                          false, ShapeKind::RoundedRect);
  style.accentRail = plate(theme, mode, theme.accent, theme.accent, kTooltipSeed);
  style.icon = plate(theme, mode, theme.accent, theme.accentHot, kTooltipSeed, ShapeKind::Capsule);
  style.shadow = rgbColor(0, 0, 0);
  style.textStyle = smallText(theme, 400);
  style.iconText = smallText(theme, 700);
  style.iconText.color = theme.shell;
  keepReadable(style.surface, style.textStyle.color);
  return style;
}

WindowStyle buildWindowStyle(const Theme& theme, SurfaceMode mode) {
  WindowStyle style;
  style.surface =
      surface(theme, mode, theme.shell, theme.panel, 0.35, theme.frame, kWindowSeed, false);
  style.fallbackBackground = theme.shell;
  keepReadable(style.surface, theme.text);
  return style;
}

}  // namespace tessel
