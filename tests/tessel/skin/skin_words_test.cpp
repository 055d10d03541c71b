#include "tessel/skin/skin_words.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

struct ShapeCase {
  const wchar_t* text;
  ShapeKind kind;
};

const ShapeCase kShapeCases[] = {
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
    // Trimmed and lower-cased before the comparison.
    {L"  Pill\t", ShapeKind::Capsule},
    {L"HEXAGON", ShapeKind::Hexagon},
    {L"\nCut-Corner ", ShapeKind::Bevel},
};

TEST(ParseShapeKind, AcceptsEverySkinSpelling) {
  for (const ShapeCase& c : kShapeCases) {
    // Start from a kind the text does not name, so that a no-op cannot pass.
    ShapeKind kind = c.kind == ShapeKind::Octagon ? ShapeKind::Diamond : ShapeKind::Octagon;
    EXPECT_TRUE(parseShapeKind(c.text, kind)) << c.text;
    EXPECT_EQ(kind, c.kind) << c.text;
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
    // Compared as keys: case, "_", "-" and blanks do not matter.
    {L"skin_alpha_hit_test", GeometryMode::SkinAlphaHitTest},
    {L"fallback_shape", GeometryMode::FallbackShape},
    {L"Mask-Alpha-Layout", GeometryMode::MaskAlphaLayout},
    {L" Skin Alpha Layout ", GeometryMode::SkinAlphaLayout},
    {L"VISUAL_ONLY", GeometryMode::FallbackShape},
};

TEST(ParseGeometryMode, AcceptsEverySpellingAsAKey) {
  for (const ModeCase& c : kModeCases) {
    GeometryMode mode = c.mode == GeometryMode::MaskAlphaLayout ? GeometryMode::FallbackShape
                                                                : GeometryMode::MaskAlphaLayout;
    EXPECT_TRUE(parseGeometryMode(c.text, mode)) << c.text;
    EXPECT_EQ(mode, c.mode) << c.text;
  }
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
