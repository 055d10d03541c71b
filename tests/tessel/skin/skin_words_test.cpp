#include "tessel/skin/skin_words.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

using Parser = bool (*)(const std::wstring&, int32_t&);

template <typename T, bool (*parse)(const std::wstring&, T&)>
bool As(const std::wstring& text, int32_t& value) {
  T typed = static_cast<T>(value);
  const bool parsed = parse(text, typed);
  value = static_cast<int32_t>(typed);
  return parsed;
}

constexpr Parser kShape = As<ShapeKind, parseShapeKind>;
constexpr Parser kGeometry = As<GeometryMode, parseGeometryMode>;
constexpr Parser kDirection = parseGradientDirection;
constexpr Parser kGradient = parseGradientKind;

using Words = std::pair<const wchar_t*, int32_t>[];

// A refused word (-1) leaves the value.
template <size_t N>
void ExpectWords(Parser parse, const std::pair<const wchar_t*, int32_t> (&cases)[N]) {
  for (const auto& [text, expected] : cases) {
    int32_t value = 99;
    EXPECT_EQ(parse(text, value), expected >= 0) << text;
    EXPECT_EQ(value, expected >= 0 ? expected : 99) << text;
  }
}

// Shape words are only trimmed and lower-cased; the others are compared as keys. Numbers are the
// stored values of the kinds.
TEST(SkinWords, WordsAndRefusals) {
  const Words kShapes = {
      {L"parallelogram", 7}, {L"rounded rect", -1}, {L"Rounded-Rect", 1}, {L"pill-shaped", -1},
      {L"cut_corner", -1},   {L"cut-corner", 4},    {L"slant-left", 8},   {L" PILL\t\n", 2},
      {L"cutcorner", 4},     {L"SLANTLEFT", 8},     {L"hexagonal", 6},    {L"rhombus", 3},
      {L"octagon", 5},       {L"rect", 0},          {L"   ", -1},         {L"", -1}};
  const Words kModes = {{L"visualonly", 0}, {L" Skin_Alpha-Hit Test ", 1},
                        {L"ALPHA", 2},      {L"bitmapmaskedlayout", 3},
                        {L"_-", -1},        {L"bitmap", -1},
                        {L"masked", -1},    {L"1", -1}};
  const Words kDirections = {
      {L"Top_To_Bottom", 0}, {L"up", 1},       {L"right", 2},   {L"right-to-left", 3},
      {L"diagonal", 4},      {L"downleft", 5}, {L"upright", 6}, {L"upleft", 7},
      {L"sideways", -1},     {L"7", 7},        {L"8", -1}};
  const Words kGradients = {{L"linear", 0}, {L"0", 0},       {L"mirrored", 1},
                            {L"circle", 2}, {L"diamond", 3}, {L"Angular", 4},
                            {L"5", -1},     {L"spiral", -1}, {L"", -1}};
  ExpectWords(kShape, kShapes);
  ExpectWords(kGeometry, kModes);
  ExpectWords(kDirection, kDirections);
  ExpectWords(kGradient, kGradients);
}

}  // namespace
}  // namespace tessel
