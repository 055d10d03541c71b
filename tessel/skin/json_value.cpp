#include "tessel/skin/json_value.h"

#include <cwchar>
#include <cwctype>
#include <fstream>
#include <iterator>

#include "base/wide_text.h"

namespace tessel {

namespace {

// Walks wide text as UTF-16 code units, splitting whole code points where wchar_t holds them.
class Utf16Units {
 public:
  explicit Utf16Units(const std::wstring& text) : text_(text) {}
  int32_t next() {
    if (pendingLow_ >= 0) {
      const int32_t unit = pendingLow_;
      pendingLow_ = -1;
      return unit;
    }
    if (index_ >= text_.size()) return -1;
    const uint32_t code = static_cast<uint32_t>(text_[index_++]);
    if (code <= 0xFFFF) return static_cast<int32_t>(code);
    pendingLow_ = static_cast<int32_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    return static_cast<int32_t>(0xD800 + ((code - 0x10000) >> 10));
  }

 private:
  const std::wstring& text_;
  size_t index_ = 0;
  int32_t pendingLow_ = -1;
};

class Parser {
 public:
  explicit Parser(const std::wstring& text) : text_(text) {}

  bool document(JsonValue& value) {
    if (text_.empty()) return false;
    if (text_[0] == 0xFEFF) position_ = 1;
    skipWhiteSpace();
    if (atEnd()) return false;
    if (!parseValue(value)) return false;
    skipWhiteSpace();
    return atEnd();
  }

 private:
  bool atEnd() const { return position_ >= text_.size(); }
  wchar_t current() const { return text_[position_]; }

  void skipWhiteSpace() {
    while (!atEnd() && IsWhiteSpace(current()))
      ++position_;
  }

  bool parseValue(JsonValue& value) {
    skipWhiteSpace();
    if (atEnd()) return false;
    value = JsonValue();
    switch (current()) {
      case L'"':
        value.kind = JsonValue::Kind::String;
        return parseString(value.text);
      case L'{':
        return parseObject(value);
      case L'[':
        return parseArray(value);
      case L't':
        return parseLiteral(L"true", value, JsonValue::Kind::Boolean, true);
      case L'f':
        return parseLiteral(L"false", value, JsonValue::Kind::Boolean, false);
      case L'n':
        return parseLiteral(L"null", value, JsonValue::Kind::Null, false);
      default:
        return parseNumber(value);
    }
  }

  // A prefix comparison only: what follows the literal is the caller's problem.
  bool parseLiteral(const wchar_t* word, JsonValue& value, JsonValue::Kind kind, bool flag) {
    const size_t length = std::wcslen(word);
    if (text_.compare(position_, length, word) != 0) return false;
    position_ += length;
    value.kind = kind;
    value.boolean = flag;
    return true;
  }

  bool parseObject(JsonValue& value) {
    value.kind = JsonValue::Kind::Object;
    ++position_;
    skipWhiteSpace();
    if (atEnd()) return false;
    if (current() == L'}') {
      ++position_;
      return true;
    }
    JsonValue member;
    std::wstring key;
    while (true) {
      skipWhiteSpace();
      if (atEnd() || current() != L'"') return false;
      key.clear();
      if (!parseString(key)) return false;
      skipWhiteSpace();
      if (atEnd() || current() != L':') return false;
      ++position_;
      if (!parseValue(member)) return false;
      value.members[key] = std::move(member);  // a repeated key keeps its place, last value wins
      skipWhiteSpace();
      if (atEnd()) return false;
      if (current() == L'}') {
        ++position_;
        return true;
      }
      if (current() != L',') return false;
      ++position_;
    }
  }

  bool parseArray(JsonValue& value) {
    value.kind = JsonValue::Kind::Array;
    ++position_;
    skipWhiteSpace();
    if (atEnd()) return false;
    if (current() == L']') {
      ++position_;
      return true;
    }
    while (true) {
      JsonValue item;
      if (!parseValue(item)) return false;
      value.items.push_back(std::move(item));
      skipWhiteSpace();
      if (atEnd()) return false;
      if (current() == L']') {
        ++position_;
        return true;
      }
      if (current() != L',') return false;
      ++position_;
    }
  }

  // Raw control characters are copied as they stand; surrogate halves are kept one by one.
  bool parseString(std::wstring& out) {
    ++position_;
    while (!atEnd()) {
      const wchar_t c = text_[position_++];
      if (c == L'"') return true;
      if (c != L'\\') {
        out += c;
        continue;
      }
      if (atEnd()) return false;
      const wchar_t escape = text_[position_++];
      switch (escape) {
        case L'"':
          out += L'"';
          break;
        case L'/':
          out += L'/';
          break;
        case L'\\':
          out += L'\\';
          break;
        case L'b':
          out += L'\b';
          break;
        case L'f':
          out += L'\f';
          break;
        case L'n':
          out += L'\n';
          break;
        case L'r':
          out += L'\r';
          break;
        case L't':
          out += L'\t';
          break;
        case L'u': {
          if (text_.size() - position_ < 4) return false;
          unsigned unit = 0;
          for (int i = 0; i < 4; ++i) {
            const int digit = HexDigitValue(text_[position_ + i]);
            if (digit < 0) return false;
            unit = unit * 16 + static_cast<unsigned>(digit);
          }
          position_ += 4;
          out += static_cast<wchar_t>(unit);
          break;
        }
        default:
          return false;
      }
    }
    return false;
  }

  // Scans wider than the grammar and lets the conversion decide: ".5", "1." and "1e" pass.
  bool parseNumber(JsonValue& value) {
    const size_t start = position_;
    if (!atEnd() && current() == L'-') ++position_;
    while (!atEnd() && std::iswdigit(static_cast<wint_t>(current())))
      ++position_;
    if (!atEnd() && current() == L'.') {
      ++position_;
      while (!atEnd() && std::iswdigit(static_cast<wint_t>(current())))
        ++position_;
    }
    if (!atEnd() && (current() == L'e' || current() == L'E')) {
      ++position_;
      if (!atEnd() && (current() == L'+' || current() == L'-')) ++position_;
      while (!atEnd() && std::iswdigit(static_cast<wint_t>(current())))
        ++position_;
    }
    if (position_ == start) return false;
    const std::wstring slice = text_.substr(start, position_ - start);
    wchar_t* end = nullptr;
    const double number = std::wcstod(slice.c_str(), &end);
    if (end == slice.c_str()) return false;
    value.kind = JsonValue::Kind::Number;
    value.number = number;
    return true;
  }

  const std::wstring& text_;
  size_t position_ = 0;
};

}  // namespace

bool Utf16KeyLess::operator()(const std::wstring& a, const std::wstring& b) const {
  Utf16Units unitsA(a);
  Utf16Units unitsB(b);
  while (true) {
    const int32_t unitA = unitsA.next();
    const int32_t unitB = unitsB.next();
    if (unitA != unitB) return unitA < unitB;  // the end (-1) sorts first
    if (unitA < 0) return false;
  }
}

std::wstring readJsonFileText(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream.good()) return std::wstring();
  std::string bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  if (bytes.size() >= 3 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) bytes.erase(0, 3);
  if (bytes.empty()) return std::wstring();
  std::wstring text;
  if (!WideFromUtf8Strict(bytes, text)) return std::wstring();
  return text;
}

bool parseJsonText(const std::wstring& text, JsonValue& value) {
  JsonValue parsed;
  if (!Parser(text).document(parsed)) return false;
  value = std::move(parsed);
  return true;
}

}  // namespace tessel
