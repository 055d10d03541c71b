#include "tessel/controls/text_fit.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(TextFit, EstimateWithoutAScreenMeasure) {
  struct Case {
    const char* what;
    const wchar_t* text;
    int32_t pointSize;
    int32_t width;
    bool clipped;
  };
  // 9 points: 6 pixels a character; 6 points and below: at least 5.
  const Case kCases[] = {
      {"empty text never clips", L"", 9, 0, false},
      {"no width clips", L"A", 9, 0, true},
      {"exact fit", L"ABCD", 9, 24, false},
      {"one pixel short", L"ABCD", 9, 23, true},
      {"small fonts take five a character", L"ABCD", 6, 19, true},
      {"small fonts fit at five", L"ABCD", 6, 20, false},
      {"large font", L"AB", 15, 20, false},
      {"large font short", L"AB", 15, 19, true},
  };
  for (const Case& c : kCases) {
    TextStyle style;
    style.pointSize = c.pointSize;
    EXPECT_EQ(textIsClipped(c.text, style, c.width), c.clipped) << c.what;
  }
}

TEST(TextFit, ScreenMeasureWinsWhenInstalled) {
  TextStyle style;
  setScreenTextMeasure([](const std::wstring& text, const TextStyle&) {
    return static_cast<int32_t>(text.size()) * 2;
  });
  EXPECT_EQ(measuredTextWidth(L"ABCD", style), 8);
  EXPECT_FALSE(textIsClipped(L"ABCD", style, 8));
  EXPECT_TRUE(textIsClipped(L"ABCD", style, 7));
  setScreenTextMeasure(nullptr);
  EXPECT_EQ(measuredTextWidth(L"ABCD", style), 24);
}

}  // namespace
}  // namespace tessel
