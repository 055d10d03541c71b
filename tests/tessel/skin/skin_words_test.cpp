#include "tessel/skin/skin_words.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <set>
#include <string>

namespace tessel {
namespace {

std::wstring Upper(std::wstring text) {
  for (wchar_t& c : text)
    c = static_cast<wchar_t>(std::towupper(c));
  return text;
}

struct ShapeCase {
  const wchar_t* text;
  ShapeKind kind;
};

// A few words skins use, at least one per kind.
const ShapeCase kShapeCases[] = {
    {L"rect", ShapeKind::Rectangle},       {L"rounded-rect", ShapeKind::RoundedRect},
    {L"pill", ShapeKind::Capsule},         {L"rounded", ShapeKind::Capsule},
    {L"rhombus", ShapeKind::Diamond},      {L"cut-corner", ShapeKind::Bevel},
    {L"chamfered", ShapeKind::Bevel},      {L"octagon", ShapeKind::Octagon},
    {L"hexagonal", ShapeKind::Hexagon},    {L"parallelogram", ShapeKind::SlantRight},
    {L"slant-left", ShapeKind::SlantLeft},
};

// Start from a kind the word does not name, so that a no-op cannot pass.
ShapeKind OtherThan(ShapeKind kind) {
  return kind == ShapeKind::Octagon ? ShapeKind::Diamond : ShapeKind::Octagon;
}

TEST(ParseShapeKind, WordsReachEveryKindWhateverTheCaseAndSurroundingBlanks) {
  std::set<ShapeKind> reached;
  for (const ShapeCase& c : kShapeCases) {
    for (const std::wstring& text :
         {std::wstring(c.text), Upper(c.text), L"  " + std::wstring(c.text) + L"\t\n"}) {
      ShapeKind kind = OtherThan(c.kind);
      EXPECT_TRUE(parseShapeKind(text, kind)) << text;
      EXPECT_EQ(kind, c.kind) << text;
    }
    reached.insert(c.kind);
  }
  for (int32_t number = 0; number <= static_cast<int32_t>(ShapeKind::SlantLeft); ++number)
    EXPECT_EQ(reached.count(static_cast<ShapeKind>(number)), 1u) << "no word for kind " << number;
}

TEST(ParseShapeKind, HyphenAndItsAbsenceAreBothWordsButAnUnderscoreIsNot) {
  for (const ShapeCase& c : kShapeCases) {
    const std::wstring word = c.text;
    if (word.find(L'-') == std::wstring::npos) continue;
    std::wstring joined, underscored = word;
    for (wchar_t ch : word)
      if (ch != L'-') joined += ch;
    for (wchar_t& ch : underscored)
      if (ch == L'-') ch = L'_';
    ShapeKind kind = OtherThan(c.kind);
    EXPECT_TRUE(parseShapeKind(joined, kind)) << joined;
    EXPECT_EQ(kind, c.kind) << joined;
    kind = OtherThan(c.kind);
    EXPECT_FALSE(parseShapeKind(underscored, kind)) << underscored;
    EXPECT_EQ(kind, OtherThan(c.kind)) << underscored;
  }
}

TEST(ParseShapeKind, UnknownSpellingLeavesTheValue) {
  // Shape words are not key-normalized: underscores and inner blanks make a different word.
  const wchar_t* const kUnknown[] = {L"",    L"   ",   L"cut_corner", L"rounded rect",
                                     L"hex", L"slant", L"circle",     L"pill-shaped",
                                     L"0",   L"2"};
  for (const wchar_t* text : kUnknown) {
    ShapeKind kind = ShapeKind::SlantLeft;
    EXPECT_FALSE(parseShapeKind(text, kind)) << text;
    EXPECT_EQ(kind, ShapeKind::SlantLeft) << text;
  }
}

struct ModeCase {
  const wchar_t* text;
  GeometryMode mode;
};

const ModeCase kModeCases[] = {
    {L"visualonly", GeometryMode::FallbackShape},
    {L"skinalphahittest", GeometryMode::SkinAlphaHitTest},
    {L"alpha", GeometryMode::SkinAlphaLayout},
    {L"bitmapmaskedlayout", GeometryMode::MaskAlphaLayout},
};

TEST(ParseGeometryMode, WordsReachEveryModeAndAreComparedAsKeys) {
  std::set<GeometryMode> reached;
  for (const ModeCase& c : kModeCases) {
    // Compared as keys: case, "_", "-" and blanks do not matter.
    std::wstring spaced;
    for (const wchar_t ch : std::wstring(c.text))
      spaced += spaced.empty() ? std::wstring(1, ch) : std::wstring(L"_-") + ch;
    for (const std::wstring& text : {std::wstring(c.text), Upper(c.text), L" " + spaced + L" "}) {
      GeometryMode mode = c.mode == GeometryMode::MaskAlphaLayout ? GeometryMode::FallbackShape
                                                                  : GeometryMode::MaskAlphaLayout;
      EXPECT_TRUE(parseGeometryMode(text, mode)) << text;
      EXPECT_EQ(mode, c.mode) << text;
    }
    reached.insert(c.mode);
  }
  for (int32_t number = 0; number <= static_cast<int32_t>(GeometryMode::MaskAlphaLayout); ++number)
    EXPECT_EQ(reached.count(static_cast<GeometryMode>(number)), 1u) << "no word for " << number;
}

TEST(ParseGeometryMode, UnknownSpellingLeavesTheValue) {
  const wchar_t* const kUnknown[] = {L"", L"_-", L"bitmap", L"hit", L"layout", L"masked", L"1"};
  for (const wchar_t* text : kUnknown) {
    GeometryMode mode = GeometryMode::SkinAlphaHitTest;
    EXPECT_FALSE(parseGeometryMode(text, mode)) << text;
    EXPECT_EQ(mode, GeometryMode::SkinAlphaHitTest) << text;
  }
}

}  // namespace
}  // namespace tessel
