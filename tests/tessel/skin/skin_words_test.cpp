#include "tessel/skin/skin_words.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Shape words are only trimmed and lower-cased; the others are compared as keys. A refused word
// leaves the value.
TEST(SkinWords, WordsAndRefusals) {
  ShapeKind shape = ShapeKind::Bevel;
  EXPECT_TRUE(parseShapeKind(L" Rounded-Rect\t", shape));
  EXPECT_FALSE(parseShapeKind(L"rounded rect", shape) || parseShapeKind(L"", shape));
  EXPECT_EQ(shape, ShapeKind::RoundedRect);
  GeometryMode mode = GeometryMode::FallbackShape;
  EXPECT_TRUE(parseGeometryMode(L" Skin_Alpha-Hit Test ", mode));
  EXPECT_FALSE(parseGeometryMode(L"_-", mode) || parseGeometryMode(L"1", mode));
  EXPECT_EQ(mode, GeometryMode::SkinAlphaHitTest);
  // Numbers are the stored values of the kinds; -1: refused.
  const struct {
    bool (*parse)(const std::wstring&, int32_t&);
    const wchar_t* text;
    int32_t expected;
  } kCases[] = {{parseGradientDirection, L"Top_To_Bottom", 0},
                {parseGradientDirection, L"7", 7},
                {parseGradientDirection, L"8", -1},
                {parseGradientKind, L"Angular", 4},
                {parseGradientKind, L"5", -1},
                {parseGradientKind, L"spiral", -1}};
  for (const auto& c : kCases) {
    int32_t value = 99;
    EXPECT_EQ(c.parse(c.text, value), c.expected >= 0) << c.text;
    EXPECT_EQ(value, c.expected >= 0 ? c.expected : 99) << c.text;
  }
}

}  // namespace
}  // namespace tessel
