// Flattened style properties: a style object turned into dotted keys, normalized so that
// "font_family", "fontFamily", "font-family" and "FONT FAMILY" are one key.
#pragma once

#include <map>
#include <string>

#include "tessel/skin/json_value.h"

namespace tessel {

using PropertyTable = std::map<std::wstring, std::wstring>;

// Trimmed, lower-cased with towlower, without any "_", "-" or white space.
std::wstring normalizeKey(const std::wstring& text);
// Each non-empty "."-separated segment normalized; empty segments vanish.
std::wstring normalizeKeyPath(const std::wstring& text);
// Objects recurse with dotted prefixes; arrays store their non-empty scalars joined by ",";
// scalars store their text. Empty texts store nothing, so null and "" never clear a value.
void flattenProperties(const JsonValue& value, const std::wstring& prefix, PropertyTable& table);

}  // namespace tessel
