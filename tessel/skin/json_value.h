// The skin reader's document tree and its parser. The grammar is the skin format's own, close
// to JSON but not equal: trailing commas and comments are refused, numbers are scanned wider
// (".5", "1e", "007") and strings keep raw line breaks and lone surrogates. Failures carry no
// reason; a failure anywhere refuses the whole document.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tessel {

// Orders keys as UTF-16 code units compare, also where wchar_t holds whole code points.
struct Utf16KeyLess {
  bool operator()(const std::wstring& a, const std::wstring& b) const;
};

struct JsonValue {
  enum class Kind { Null = 0, Boolean = 1, Number = 2, String = 3, Array = 4, Object = 5 };

  Kind kind = Kind::Null;
  bool boolean = false;
  double number = 0.0;
  std::wstring text;
  std::vector<JsonValue> items;
  std::map<std::wstring, JsonValue, Utf16KeyLess> members;

  bool isObject() const { return kind == Kind::Object; }
  bool isArray() const { return kind == Kind::Array; }
  bool isString() const { return kind == Kind::String; }
};

// The file's bytes as UTF-8 (one leading byte order mark dropped) decoded to wide text.
// Empty for a missing file, an empty file and any invalid byte sequence anywhere.
std::wstring readJsonFileText(const std::filesystem::path& path);

// Parses one whole document; trailing text other than white space refuses it.
bool parseJsonText(const std::wstring& text, JsonValue& value);

}  // namespace tessel
