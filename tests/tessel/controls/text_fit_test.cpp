#include "tessel/controls/text_fit.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(TextFit, EstimatesWithoutAScreenMeasureWhichWinsWhenInstalled) {
  struct Case {
    const wchar_t* text;
    int32_t pointSize, width;
    bool clipped;
  };
  // 9 points: 6 pixels a character; 6 points and below: at least 5.
  const Case cases[] = {
      {L"", 9, 0, false}, {L"ABCD", 9, 24, false}, {L"ABCD", 9, 23, true}, {L"ABCD", 6, 19, true}};
  TextStyle style;
  for (const Case& c : cases) {
    style.pointSize = c.pointSize;
    EXPECT_EQ(textIsClipped(c.text, style, c.width), c.clipped) << c.pointSize << " " << c.width;
  }
  style.pointSize = 9;
  setScreenTextMeasure([](const std::wstring& text, const TextStyle&) {
    return static_cast<int32_t>(text.size()) * 2;
  });
  EXPECT_TRUE(textIsClipped(L"ABCD", style, 7));
  setScreenTextMeasure(nullptr);
  EXPECT_EQ(measuredTextWidth(L"ABCD", style), 24);
}

}  // namespace
}  // namespace tessel
