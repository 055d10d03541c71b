#include "tessel/skin/property_table.h"

#include <cwctype>

#include "base/wide_text.h"
#include "tessel/skin/json_access.h"

namespace tessel {

std::wstring normalizeKey(const std::wstring& text) {
  const std::wstring trimmed = TrimWhiteSpace(text);
  std::wstring key;
  key.reserve(trimmed.size());
  for (const wchar_t c : trimmed) {
    if (c == L'_' || c == L'-' || IsWhiteSpace(c)) continue;
    key += static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
  }
  return key;
}

std::wstring normalizeKeyPath(const std::wstring& text) {
  std::wstring path;
  size_t start = 0;
  while (start <= text.size()) {
    size_t dot = text.find(L'.', start);
    if (dot == std::wstring::npos) dot = text.size();
    if (dot > start) {
      const std::wstring segment = normalizeKey(text.substr(start, dot - start));
      if (!segment.empty()) {
        if (!path.empty()) path += L'.';
        path += segment;
      }
    }
    start = dot + 1;
  }
  return path;
}

void flattenProperties(const JsonValue& value, const std::wstring& prefix, PropertyTable& table) {
  if (value.isObject()) {
    for (const auto& [key, member] : value.members)
      flattenProperties(member, prefix.empty() ? key : prefix + L"." + key, table);
    return;
  }
  std::wstring text;
  if (value.isArray()) {
    for (const JsonValue& item : value.items) {
      const std::wstring part = scalarText(item);
      if (part.empty()) continue;
      if (!text.empty()) text += L',';
      text += part;
    }
  } else {
    text = scalarText(value);
  }
  if (!text.empty()) table[normalizeKeyPath(prefix)] = text;
}

}  // namespace tessel
