// Feeds arbitrary skin files to the JSON reader. It must never crash or read out of bounds, and
// every document it accepts must survive a round trip: written out canonically and read again,
// it gives the same tree, and its flattened keys are all normalized.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/wide_text.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"

namespace {

using tessel::JsonValue;

bool Finite(const JsonValue& value) {
  if (value.kind == JsonValue::Kind::Number) return std::isfinite(value.number);
  for (const JsonValue& item : value.items)
    if (!Finite(item)) return false;
  for (const auto& member : value.members)
    if (!Finite(member.second)) return false;
  return true;
}

void WriteString(const std::wstring& text, std::wstring& out) {
  out += L'"';
  for (const wchar_t c : text) {
    if (c == L'"' || c == L'\\') {
      out += L'\\';
      out += c;
    } else if (static_cast<uint32_t>(c) < 0x20) {
      wchar_t escape[8];
      std::swprintf(escape, 8, L"\\u%04x", static_cast<unsigned>(c));
      out += escape;
    } else {
      out += c;
    }
  }
  out += L'"';
}

void Write(const JsonValue& value, std::wstring& out) {
  switch (value.kind) {
    case JsonValue::Kind::Null:
      out += L"null";
      break;
    case JsonValue::Kind::Boolean:
      out += value.boolean ? L"true" : L"false";
      break;
    case JsonValue::Kind::Number: {
      wchar_t number[40];
      std::swprintf(number, 40, L"%.17g", value.number);
      out += number;
      break;
    }
    case JsonValue::Kind::String:
      WriteString(value.text, out);
      break;
    case JsonValue::Kind::Array:
      out += L'[';
      for (size_t i = 0; i < value.items.size(); ++i) {
        if (i > 0) out += L',';
        Write(value.items[i], out);
      }
      out += L']';
      break;
    case JsonValue::Kind::Object: {
      out += L'{';
      bool first = true;
      for (const auto& [key, member] : value.members) {
        if (!first) out += L',';
        first = false;
        WriteString(key, out);
        out += L':';
        Write(member, out);
      }
      out += L'}';
      break;
    }
  }
}

bool Same(const JsonValue& a, const JsonValue& b) {
  if (a.kind != b.kind) return false;
  switch (a.kind) {
    case JsonValue::Kind::Null:
      return true;
    case JsonValue::Kind::Boolean:
      return a.boolean == b.boolean;
    case JsonValue::Kind::Number:
      return a.number == b.number;
    case JsonValue::Kind::String:
      return a.text == b.text;
    case JsonValue::Kind::Array:
      if (a.items.size() != b.items.size()) return false;
      for (size_t i = 0; i < a.items.size(); ++i)
        if (!Same(a.items[i], b.items[i])) return false;
      return true;
    case JsonValue::Kind::Object: {
      if (a.members.size() != b.members.size()) return false;
      auto other = b.members.begin();
      for (const auto& [key, member] : a.members) {
        if (key != other->first || !Same(member, other->second)) return false;
        ++other;
      }
      return true;
    }
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::wstring text;
  if (!WideFromUtf8Strict(bytes, text)) {
    text.clear();  // not UTF-8: take the bytes as code units, as a damaged file might arrive
    for (const char c : bytes)
      text += static_cast<wchar_t>(static_cast<unsigned char>(c));
  }
  JsonValue value;
  if (!tessel::parseJsonText(text, value)) return 0;

  if (Finite(value)) {
    std::wstring written;
    Write(value, written);
    JsonValue again;
    if (!tessel::parseJsonText(written, again) || !Same(value, again)) std::abort();
  }

  tessel::PropertyTable table;
  tessel::flattenProperties(value, L"", table);
  for (const auto& [key, entry] : table) {
    if (entry.empty() || key != tessel::normalizeKeyPath(key)) std::abort();
  }
  return 0;
}
