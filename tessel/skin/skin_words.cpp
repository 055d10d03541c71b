#include "tessel/skin/skin_words.h"

#include <initializer_list>

#include "base/wide_text.h"
#include "tessel/skin/property_table.h"

namespace tessel {

namespace {

struct ShapeSpelling {
  const wchar_t* text;
  ShapeKind kind;
};

// Shape words are matched whole: "cut-corner" and "cutcorner" are both listed, "cut_corner" is not.
const ShapeSpelling kShapeSpellings[] = {
    {L"rectangle", ShapeKind::Rectangle},
    {L"rect", ShapeKind::Rectangle},
    {L"square", ShapeKind::Rectangle},
    {L"box", ShapeKind::Rectangle},
    {L"rounded-rect", ShapeKind::RoundedRect},
    {L"roundedrect", ShapeKind::RoundedRect},
    {L"rounded-rectangle", ShapeKind::RoundedRect},
    {L"roundedrectangle", ShapeKind::RoundedRect},
    {L"round-rect", ShapeKind::RoundedRect},
    {L"roundrect", ShapeKind::RoundedRect},
    {L"win11-rounded", ShapeKind::RoundedRect},
    {L"windows11-rounded", ShapeKind::RoundedRect},
    {L"capsule", ShapeKind::Capsule},
    {L"pill", ShapeKind::Capsule},
    {L"round", ShapeKind::Capsule},
    {L"rounded", ShapeKind::Capsule},
    {L"diamond", ShapeKind::Diamond},
    {L"rhombus", ShapeKind::Diamond},
    {L"gem", ShapeKind::Diamond},
    {L"beveled", ShapeKind::Bevel},
    {L"bevel", ShapeKind::Bevel},
    {L"cut-corner", ShapeKind::Bevel},
    {L"cutcorner", ShapeKind::Bevel},
    {L"chamfer", ShapeKind::Bevel},
    {L"chamfered", ShapeKind::Bevel},
    {L"octagon", ShapeKind::Octagon},
    {L"octagonal", ShapeKind::Octagon},
    {L"hexagon", ShapeKind::Hexagon},
    {L"hexagonal", ShapeKind::Hexagon},
    {L"slant-right", ShapeKind::SlantRight},
    {L"slantright", ShapeKind::SlantRight},
    {L"parallelogram", ShapeKind::SlantRight},
    {L"parallelogram-right", ShapeKind::SlantRight},
    {L"parallelogramright", ShapeKind::SlantRight},
    {L"slant-left", ShapeKind::SlantLeft},
    {L"slantleft", ShapeKind::SlantLeft},
    {L"parallelogram-left", ShapeKind::SlantLeft},
    {L"parallelogramleft", ShapeKind::SlantLeft},
};

struct ModeSpelling {
  const wchar_t* text;
  GeometryMode mode;
};

// Already in normalized form, since the input is normalized before the lookup.
const ModeSpelling kModeSpellings[] = {
    {L"fallback", GeometryMode::FallbackShape},
    {L"fallbackshape", GeometryMode::FallbackShape},
    {L"shape", GeometryMode::FallbackShape},
    {L"visualonly", GeometryMode::FallbackShape},
    {L"bitmapvisualonly", GeometryMode::FallbackShape},
    {L"skinalphahit", GeometryMode::SkinAlphaHitTest},
    {L"skinalphahittest", GeometryMode::SkinAlphaHitTest},
    {L"alphahit", GeometryMode::SkinAlphaHitTest},
    {L"bitmapalphahit", GeometryMode::SkinAlphaHitTest},
    {L"skinalphalayout", GeometryMode::SkinAlphaLayout},
    {L"alpha", GeometryMode::SkinAlphaLayout},
    {L"alphalayout", GeometryMode::SkinAlphaLayout},
    {L"bitmapalphashape", GeometryMode::SkinAlphaLayout},
    {L"bitmapalphalayout", GeometryMode::SkinAlphaLayout},
    {L"mask", GeometryMode::MaskAlphaLayout},
    {L"maskalpha", GeometryMode::MaskAlphaLayout},
    {L"maskalphalayout", GeometryMode::MaskAlphaLayout},
    {L"bitmapmaskedlayout", GeometryMode::MaskAlphaLayout},
};

struct Word {
  const wchar_t* text;
  int32_t value;
};

bool lookUp(const std::wstring& text, std::initializer_list<Word> words, int32_t last,
            int32_t& value) {
  const std::wstring key = normalizeKey(text);
  for (const Word& word : words) {
    if (key == word.text) {
      value = word.value;
      return true;
    }
  }
  // A skin may give the number itself.
  if (key.size() == 1 && key[0] >= L'0' && key[0] <= L'0' + last) {
    value = key[0] - L'0';
    return true;
  }
  return false;
}

}  // namespace

bool parseShapeKind(const std::wstring& text, ShapeKind& kind) {
  const std::wstring word = LowerCase(TrimWhiteSpace(text));
  for (const ShapeSpelling& spelling : kShapeSpellings) {
    if (word == spelling.text) {
      kind = spelling.kind;
      return true;
    }
  }
  return false;
}

bool parseGeometryMode(const std::wstring& text, GeometryMode& mode) {
  const std::wstring word = normalizeKey(text);
  for (const ModeSpelling& spelling : kModeSpellings) {
    if (word == spelling.text) {
      mode = spelling.mode;
      return true;
    }
  }
  return false;
}

bool parseGradientDirection(const std::wstring& text, int32_t& direction) {
  return lookUp(text,
                {{L"vertical", 0},
                 {L"down", 0},
                 {L"toptobottom", 0},
                 {L"verticalup", 1},
                 {L"up", 1},
                 {L"bottomtotop", 1},
                 {L"horizontal", 2},
                 {L"right", 2},
                 {L"lefttoright", 2},
                 {L"horizontalleft", 3},
                 {L"left", 3},
                 {L"righttoleft", 3},
                 {L"diagonaldown", 4},
                 {L"downright", 4},
                 {L"diagonal", 4},
                 {L"diagonaldownreverse", 5},
                 {L"downleft", 5},
                 {L"diagonalreverse", 5},
                 {L"diagonalup", 6},
                 {L"upright", 6},
                 {L"diagonalupreverse", 7},
                 {L"upleft", 7}},
                7, direction);
}

bool parseGradientKind(const std::wstring& text, int32_t& kind) {
  return lookUp(text,
                {{L"linear", 0},
                 {L"reflected", 1},
                 {L"mirror", 1},
                 {L"mirrored", 1},
                 {L"radial", 2},
                 {L"circle", 2},
                 {L"circular", 2},
                 {L"diamond", 3},
                 {L"conic", 4},
                 {L"angular", 4}},
                4, kind);
}

SurfaceMode parseSurfaceMode(const std::wstring& text) {
  const std::wstring word = LowerCase(TrimWhiteSpace(text));
  if (word == L"flat-2d" || word == L"flat2d" || word == L"2d" || word == L"flat") {
    return SurfaceMode::Flat2d;
  }
  if (word == L"textured" || word == L"texture" || word == L"material") {
    return SurfaceMode::Textured;
  }
  if (word == L"bitmap-plates" || word == L"bitmap" || word == L"plates") {
    return SurfaceMode::BitmapPlates;
  }
  if (word == L"windows-clean" || word == L"windows" || word == L"clean") {
    return SurfaceMode::WindowsClean;
  }
  return SurfaceMode::Sculpted3d;
}

}  // namespace tessel
