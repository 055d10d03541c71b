#include "tessel/paint/shape_kind.h"

#include "guard/wide_text.h"
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

}  // namespace tessel
