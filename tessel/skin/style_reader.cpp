#include "tessel/skin/style_reader.h"

#include <algorithm>
#include <cwchar>
#include <vector>

#include "base/wide_text.h"
#include "tessel/skin/skin_words.h"

namespace tessel {

std::vector<std::wstring> splitStyleList(const std::wstring& text) {
  std::vector<std::wstring> parts;
  size_t start = 0;
  while (start <= text.size()) {
    size_t comma = text.find(L',', start);
    if (comma == std::wstring::npos) comma = text.size();
    parts.push_back(TrimWhiteSpace(text.substr(start, comma - start)));
    start = comma + 1;
  }
  return parts;
}

bool parseStyleInteger(const std::wstring& text, int32_t& value) {
  return ParseLeadingInt32(text, value);
}

bool parseStyleByte(const std::wstring& text, uint8_t& value) {
  int32_t number = 0;
  if (!parseStyleInteger(text, number)) return false;
  value = static_cast<uint8_t>(std::clamp(number, 0, 255));
  return true;
}

bool parseStyleColor(const std::wstring& text, Color& color) {
  if (parseHexColor(text, color)) return true;
  const std::vector<std::wstring> parts = splitStyleList(text);
  if (parts.size() != 3) return false;
  uint8_t channels[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i)
    if (!parseStyleByte(parts[i], channels[i])) return false;
  color = rgbColor(channels[0], channels[1], channels[2]);
  return true;
}

bool parseFontWeight(const std::wstring& text, int32_t& weight) {
  const std::wstring word = LowerCase(TrimWhiteSpace(text));
  const struct {
    const wchar_t* word;
    int32_t weight;
  } names[] = {{L"thin", 100},   {L"light", 300},    {L"normal", 400},   {L"regular", 400},
               {L"medium", 500}, {L"semibold", 600}, {L"demibold", 600}, {L"bold", 700},
               {L"heavy", 900},  {L"black", 900}};
  for (const auto& name : names) {
    if (word == name.word) {
      weight = name.weight;
      return true;
    }
  }
  return parseStyleInteger(text, weight);
}

bool parseStyleBool(const std::wstring& text, bool& value) {
  const std::wstring word = LowerCase(TrimWhiteSpace(text));
  if (word == L"true" || word == L"1" || word == L"yes" || word == L"on") {
    value = true;
    return true;
  }
  if (word == L"false" || word == L"0" || word == L"no" || word == L"off") {
    value = false;
    return true;
  }
  return false;
}

bool parseStyleReal(const std::wstring& text, float& value) {
  wchar_t* end = nullptr;
  const double number = std::wcstod(text.c_str(), &end);
  if (end == text.c_str()) return false;
  value = static_cast<float>(number);
  return true;
}

// Names given in code are mostly plain ASCII words; those need only lower-casing.
std::wstring StyleReader::keyFor(const std::wstring& name) const {
  bool plain = !name.empty() && name.front() != L'.' && name.back() != L'.';
  for (size_t i = 0; plain && i < name.size(); ++i) {
    const wchar_t c = name[i];
    plain = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') ||
            (c == L'.' && name[i - 1] != L'.');
  }
  if (!plain) return normalizeKeyPath(prefix_.empty() ? name : prefix_ + L"." + name);
  std::wstring key = prefix_;
  key.reserve(prefix_.size() + 1 + name.size());
  if (!key.empty()) key += L'.';
  for (const wchar_t c : name)
    key += (c >= L'A' && c <= L'Z') ? static_cast<wchar_t>(c - L'A' + L'a') : c;
  return key;
}

bool StyleReader::empty() const {
  if (prefix_.empty()) return table_.empty();
  const auto found = table_.lower_bound(prefix_);
  if (found == table_.end()) return true;
  if (found->first == prefix_) return false;
  return !(found->first.size() > prefix_.size() &&
           found->first.compare(0, prefix_.size(), prefix_) == 0 &&
           found->first[prefix_.size()] == L'.');
}

StyleReader StyleReader::at(const std::wstring& name) const {
  return StyleReader(table_, keyFor(name), context_);
}

const std::wstring* StyleReader::find(const std::wstring& name) const {
  const auto found = table_.find(keyFor(name));
  return found == table_.end() ? nullptr : &found->second;
}

bool StyleReader::hasAnyUnder(const std::wstring& name) const {
  const std::wstring key = keyFor(name);
  const auto found = table_.lower_bound(key);
  if (found == table_.end()) return false;
  if (found->first == key) return true;
  return found->first.size() > key.size() && found->first.compare(0, key.size(), key) == 0 &&
         found->first[key.size()] == L'.';
}

void StyleReader::color(std::initializer_list<const wchar_t*> names, Color& value) const {
  for (const wchar_t* name : names)
    if (const std::wstring* text = find(name)) parseStyleColor(*text, value);
}

void StyleReader::integer(std::initializer_list<const wchar_t*> names, int32_t& value) const {
  for (const wchar_t* name : names)
    if (const std::wstring* text = find(name)) parseStyleInteger(*text, value);
}

void StyleReader::byte(std::initializer_list<const wchar_t*> names, uint8_t& value) const {
  for (const wchar_t* name : names) {
    if (const std::wstring* text = find(name)) parseStyleByte(*text, value);
  }
}

void StyleReader::flag(std::initializer_list<const wchar_t*> names, bool& value) const {
  for (const wchar_t* name : names)
    if (const std::wstring* text = find(name)) parseStyleBool(*text, value);
}

bool StyleReader::shape(const std::wstring& name, ShapeKind& value) const {
  if (const std::wstring* text = find(name)) return parseShapeKind(*text, value);
  // The object form: the first of its members that holds a shape, searched downward.
  const StyleReader inner = at(name);
  for (const wchar_t* member : {L"shape", L"surface", L"value"}) {
    if (inner.hasAnyUnder(member) && inner.shape(member, value)) return true;
  }
  return false;
}

}  // namespace tessel
