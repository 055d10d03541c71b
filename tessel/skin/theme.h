// A skin's palette and its two fonts. Every style builder derives its records from these
// fifteen colours, so a skin that gives only a theme still colours every control.
#pragma once

#include "tessel/style/color.h"
#include "tessel/skin/json_value.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct Theme {
  Color frame = rgbColor(0xA4, 0x7A, 0x45);
  Color shell = rgbColor(0x05, 0x0A, 0x0F);
  Color panel = rgbColor(0x07, 0x16, 0x1D);
  Color header = rgbColor(0x0C, 0x3A, 0x36);
  Color control = rgbColor(0x08, 0x16, 0x1C);
  Color controlHot = rgbColor(0x1F, 0x52, 0x52);
  Color controlPressed = rgbColor(0x12, 0x46, 0x41);
  Color border = rgbColor(0x22, 0x42, 0x44);
  Color accent = rgbColor(0xC4, 0x94, 0x52);
  Color accentHot = rgbColor(0xE2, 0xAA, 0x58);
  Color text = rgbColor(0xD3, 0xE4, 0xDD);
  Color textHot = rgbColor(0xF6, 0xEE, 0xCF);
  Color mutedText = rgbColor(0xB0, 0xCC, 0xC4);
  Color disabledText = rgbColor(0x7A, 0x92, 0x8C);
  Color disabledFill = rgbColor(0x06, 0x0B, 0x0D);
  TextStyle uiFont{
      L"Bahnschrift", 10,   600, rgbColor(0xD3, 0xE4, 0xDD), rgbColor(0x7A, 0x92, 0x8C),
      false,          false};
  TextStyle monoFont{L"Cascadia Mono",           10,    400,  rgbColor(0xD3, 0xE4, 0xDD),
                     rgbColor(0x7A, 0x92, 0x8C), false, false};
};

// Reads a `theme` object over `theme`. Colours are "#RRGGBB" or "RRGGBB"; any other text keeps
// the current value. Afterwards both fonts take `text` and `disabledText` as their colours.
void parseTheme(const JsonValue& value, Theme& theme);

// The colour of a theme role word ("accenthot", "mutedtext", ...), compared after key
// normalization; false for a word that is not a role.
bool themeRoleColor(const Theme& theme, const std::wstring& word, Color& color);

// "#RRGGBB" or "RRGGBB" after trimming, into 0x00BBGGRR.
bool parseHexColor(const std::wstring& text, Color& color);

}  // namespace tessel
