// Reads typed values out of a flattened property table under one dotted prefix. Every read is
// optional and tolerant: a missing key or a value that doesn't parse leaves the field as it was.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "tessel/style/color.h"
#include "tessel/style/shape_kind.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/theme.h"

namespace tessel {

// What a style parser needs of the skin besides the keys: its palette for role words and its
// folder for relative image paths.
struct StyleContext {
  const Theme* theme = nullptr;
  std::wstring sourceDirectory;
};

// The parts of a comma list (as flattened arrays are stored), each trimmed; empty parts stay.
std::vector<std::wstring> splitStyleList(const std::wstring& text);

// Colours "#RRGGBB" (the "#" optional) or "r,g,b" with each number clamped to 0..255.
bool parseStyleColor(const std::wstring& text, Color& color);
// The base-10 prefix of the text, as wcstol reads it, clamped to 32 bits.
bool parseStyleInteger(const std::wstring& text, int32_t& value);
// An integer clamped to 0..255.
bool parseStyleByte(const std::wstring& text, uint8_t& value);
// A number, or thin/light/normal/regular/medium/semibold/demibold/bold/heavy/black.
bool parseFontWeight(const std::wstring& text, int32_t& weight);
// true/1/yes/on and false/0/no/off after trimming and lower-casing.
bool parseStyleBool(const std::wstring& text, bool& value);
// The leading decimal number of the text, as wcstod reads it.
bool parseStyleReal(const std::wstring& text, float& value);

class StyleReader {
 public:
  StyleReader(const PropertyTable& table, std::wstring prefix, const StyleContext& context)
      : table_(table), prefix_(std::move(prefix)), context_(context) {}

  // The reader one level down: "surface" under "button" reads "button.surface.*".
  StyleReader at(const std::wstring& name) const;
  const std::wstring& prefix() const { return prefix_; }
  const StyleContext& context() const { return context_; }

  // The raw text of a key under the prefix, or null.
  const std::wstring* find(const std::wstring& name) const;
  // True when some key lies under prefix.name, as a value or as a member of an object.
  bool hasAnyUnder(const std::wstring& name) const;
  // True when no key lies under the prefix at all, so a whole record can be skipped.
  bool empty() const;

  // Each of these reads `names` in order; every one present is applied, so the last wins.
  void color(std::initializer_list<const wchar_t*> names, Color& value) const;
  void integer(std::initializer_list<const wchar_t*> names, int32_t& value) const;
  void byte(std::initializer_list<const wchar_t*> names, uint8_t& value) const;
  void flag(std::initializer_list<const wchar_t*> names, bool& value) const;
  // A shape as a word, or an object whose `shape`, `surface` or `value` member holds one.
  bool shape(const std::wstring& name, ShapeKind& value) const;

 private:
  std::wstring keyFor(const std::wstring& name) const;

  const PropertyTable& table_;
  std::wstring prefix_;
  const StyleContext& context_;
};

}  // namespace tessel
