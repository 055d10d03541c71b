// Feeds arbitrary skin files to the JSON reader: no crash, no read out of bounds; an accepted
// document written canonically reads back to the same text, and its flattened keys are normalized.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "base/wide_text.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"

namespace {

using tessel::JsonValue;

void WriteString(const std::wstring& text, std::wstring& out) {
  out += L'"';
  for (const wchar_t c : text) {
    wchar_t escape[8] = {c, 0};
    if (static_cast<uint32_t>(c) < 0x20) std::swprintf(escape, 8, L"\\u%04x", unsigned(c));
    if (c == L'"' || c == L'\\') out += L'\\';
    out += escape;
  }
  out += L'"';
}

// Writes the canonical text of `value`; false when a number has no finite text.
bool Write(const JsonValue& value, std::wstring& out) {
  using Kind = JsonValue::Kind;
  const bool array = value.kind == Kind::Array, object = value.kind == Kind::Object;
  bool finite = value.kind != Kind::Number || std::isfinite(value.number);
  if (value.kind == Kind::Null) out += L"null";
  if (value.kind == Kind::Boolean) out += value.boolean ? L"true" : L"false";
  if (value.kind == Kind::String) WriteString(value.text, out);
  if (value.kind == Kind::Number) {
    wchar_t number[40];
    std::swprintf(number, 40, L"%.17g", value.number);
    out += number;
  }
  out += array ? L"[" : object ? L"{" : L"";
  const wchar_t* separator = L"";
  for (size_t i = 0; array && i < value.items.size(); ++i) {
    out += std::exchange(separator, L",");
    finite = Write(value.items[i], out) && finite;
  }
  for (auto member = value.members.begin(); object && member != value.members.end(); ++member) {
    out += std::exchange(separator, L",");
    WriteString(member->first, out);
    out += L':';
    finite = Write(member->second, out) && finite;
  }
  out += array ? L"]" : object ? L"}" : L"";
  return finite;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::wstring text;
  // Not UTF-8: the bytes as code units, as a damaged file might arrive.
  if (!WideFromUtf8Strict(std::string(reinterpret_cast<const char*>(data), size), text))
    text.assign(data, data + size);
  JsonValue value;
  if (!tessel::parseJsonText(text, value)) return 0;

  std::wstring written, rewritten;
  JsonValue again;
  if (Write(value, written) &&
      (!tessel::parseJsonText(written, again) || !Write(again, rewritten) || rewritten != written))
    std::abort();

  tessel::PropertyTable table;
  tessel::flattenProperties(value, L"", table);
  for (const auto& [key, entry] : table) {
    if (entry.empty() || key != tessel::normalizeKeyPath(key)) std::abort();
  }
  return 0;
}
