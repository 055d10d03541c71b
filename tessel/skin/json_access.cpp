#include "tessel/skin/json_access.h"

#include <cmath>
#include <cwchar>
#include <sstream>

#include "base/wide_text.h"

namespace tessel {

const JsonValue* findMember(const JsonValue& value, Aliases aliases) {
  if (!value.isObject()) return nullptr;
  for (const wchar_t* alias : aliases) {
    const auto found = value.members.find(alias);
    if (found != value.members.end()) return &found->second;
  }
  return nullptr;
}

std::wstring stringOr(const JsonValue* value, const std::wstring& fallback) {
  return value != nullptr && value->isString() ? value->text : fallback;
}

int32_t intOr(const JsonValue* value, int32_t fallback) {
  if (value == nullptr) return fallback;
  if (value->kind == JsonValue::Kind::Number) {
    const double truncated = std::trunc(value->number);
    if (truncated >= 2147483647.0) return INT32_MAX;
    if (truncated <= -2147483648.0) return INT32_MIN;
    return static_cast<int32_t>(truncated);
  }
  if (value->kind == JsonValue::Kind::String) {
    int32_t number = 0;
    return ParseLeadingInt32(value->text, number) ? number : fallback;
  }
  return fallback;
}

bool boolOr(const JsonValue* value, bool fallback) {
  if (value == nullptr) return fallback;
  switch (value->kind) {
    case JsonValue::Kind::Boolean:
      return value->boolean;
    case JsonValue::Kind::Number:
      return value->number != 0;
    case JsonValue::Kind::String: {
      const std::wstring word = LowerCase(TrimWhiteSpace(value->text));
      if (word == L"true" || word == L"1" || word == L"yes" || word == L"on") return true;
      if (word == L"false" || word == L"0" || word == L"no" || word == L"off") return false;
      return fallback;
    }
    default:
      return fallback;
  }
}

bool boolMember(const JsonValue& object, Aliases aliases, bool fallback) {
  return boolOr(findMember(object, aliases), fallback);
}

std::wstring scalarText(const JsonValue& value) {
  switch (value.kind) {
    case JsonValue::Kind::Boolean:
      return value.boolean ? L"true" : L"false";
    case JsonValue::Kind::Number: {
      const double nearest = std::round(value.number);
      if (std::fabs(value.number - nearest) <= 0.000001 && std::fabs(nearest) < 9.0e18) {
        return SignedDecimalText(static_cast<long long>(nearest));
      }
      std::wostringstream stream;
      stream << value.number;
      return stream.str();
    }
    case JsonValue::Kind::String:
      return value.text;
    default:
      return std::wstring();
  }
}

}  // namespace tessel
