// Tolerant access to a parsed skin document: lookups under alias keys and conversions that fall
// back to a given value instead of reporting an error.
#pragma once

#include <initializer_list>
#include <string>

#include "tessel/skin/json_value.h"

namespace tessel {

using Aliases = std::initializer_list<const wchar_t*>;

// The member under the first alias that exists (exact, case-sensitive); null on a non-object.
const JsonValue* findMember(const JsonValue& value, Aliases aliases);

std::wstring stringOr(const JsonValue* value, const std::wstring& fallback);
// A number truncated toward zero, or a string's leading base-10 integer.
int32_t intOr(const JsonValue* value, int32_t fallback);
// Booleans, numbers (non-zero is true) and the words true/1/yes/on, false/0/no/off.
bool boolMember(const JsonValue& object, Aliases aliases, bool fallback);
bool boolOr(const JsonValue* value, bool fallback);
// The text a scalar stands for in a flattened property table; empty for null, arrays, objects.
std::wstring scalarText(const JsonValue& value);

}  // namespace tessel
