#include "tessel/skin/theme.h"

#include "base/wide_text.h"
#include "tessel/skin/json_access.h"
#include "tessel/skin/property_table.h"

namespace tessel {

namespace {

void readColor(const JsonValue& object, Aliases aliases, Color& color) {
  const JsonValue* member = findMember(object, aliases);
  if (member != nullptr && member->isString()) parseHexColor(member->text, color);
}

// A number truncated, or a string's leading digits; anything else keeps the value.
void readInteger(const JsonValue& object, Aliases aliases, int32_t& value) {
  const JsonValue* member = findMember(object, aliases);
  value = intOr(member, value);
}

void readFont(const JsonValue& object, Aliases family, Aliases size, Aliases weight,
              TextStyle& font) {
  font.fontFamily = stringOr(findMember(object, family), font.fontFamily);
  readInteger(object, size, font.pointSize);
  readInteger(object, weight, font.weight);
}

}  // namespace

bool parseHexColor(const std::wstring& text, Color& color) {
  std::wstring digits = TrimWhiteSpace(text);
  if (!digits.empty() && digits[0] == L'#') digits.erase(0, 1);
  if (digits.size() != 6) return false;
  uint32_t value = 0;
  for (wchar_t c : digits) {
    const int digit = HexDigitValue(c);
    if (digit < 0) return false;
    value = value * 16 + static_cast<uint32_t>(digit);
  }
  color = rgbColor(value >> 16, value >> 8, value);
  return true;
}

void parseTheme(const JsonValue& value, Theme& theme) {
  if (value.isObject()) {
    readColor(value, {L"frame"}, theme.frame);
    readColor(value, {L"shell"}, theme.shell);
    readColor(value, {L"panel"}, theme.panel);
    readColor(value, {L"header"}, theme.header);
    readColor(value, {L"control"}, theme.control);
    readColor(value, {L"control_hot", L"controlHot"}, theme.controlHot);
    readColor(value, {L"control_pressed", L"controlPressed"}, theme.controlPressed);
    readColor(value, {L"border"}, theme.border);
    readColor(value, {L"accent"}, theme.accent);
    readColor(value, {L"accent_hot", L"accentHot"}, theme.accentHot);
    readColor(value, {L"text"}, theme.text);
    readColor(value, {L"text_hot", L"textHot"}, theme.textHot);
    readColor(value, {L"muted_text", L"mutedText"}, theme.mutedText);
    readColor(value, {L"disabled_text", L"disabledText"}, theme.disabledText);
    readColor(value, {L"disabled_fill", L"disabledFill"}, theme.disabledFill);
    readFont(value, {L"ui_font_family", L"uiFontFamily"}, {L"ui_point_size", L"uiPointSize"},
             {L"ui_weight", L"uiWeight"}, theme.uiFont);
    readFont(value, {L"mono_font_family", L"monoFontFamily"},
             {L"mono_point_size", L"monoPointSize"}, {L"mono_weight", L"monoWeight"},
             theme.monoFont);
  }
  for (TextStyle* font : {&theme.uiFont, &theme.monoFont}) {
    font->color = theme.text;
    font->disabledColor = theme.disabledText;
  }
}

bool themeRoleColor(const Theme& theme, const std::wstring& word, Color& color) {
  const std::wstring key = normalizeKey(word);
  const struct {
    const wchar_t* word;
    Color value;
  } roles[] = {
      {L"frame", theme.frame},
      {L"shell", theme.shell},
      {L"panel", theme.panel},
      {L"header", theme.header},
      {L"control", theme.control},
      {L"controlhot", theme.controlHot},
      {L"controlpressed", theme.controlPressed},
      {L"border", theme.border},
      {L"accent", theme.accent},
      {L"accenthot", theme.accentHot},
      {L"text", theme.text},
      {L"texthot", theme.textHot},
      {L"mutedtext", theme.mutedText},
      {L"disabledtext", theme.disabledText},
      {L"disabledfill", theme.disabledFill},
  };
  for (const auto& role : roles) {
    if (key == role.word) {
      color = role.value;
      return true;
    }
  }
  return false;
}

}  // namespace tessel
