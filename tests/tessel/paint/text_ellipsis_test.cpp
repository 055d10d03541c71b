#include "tessel/paint/text_ellipsis.h"

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

// One pixel a character, as simple as widths get.
int32_t CountWidth(const std::wstring& text) {
  return static_cast<int32_t>(text.size());
}

TEST(TextEllipsis, LongestPrefixThatFitsWithTheDots) {
  struct Case {
    const wchar_t* text;
    int32_t width;
    const wchar_t* shown;
  };
  const Case kCases[] = {
      {L"abcdef", 6, L"abcdef"}, {L"abcdef", 10, L"abcdef"}, {L"abcdef", 5, L"ab..."},
      {L"abcdef", 3, L"..."},    {L"abcdef", 0, L"..."},     {L"", 0, L""},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(endEllipsisText(c.text, c.width, CountWidth), c.shown) << c.text << " " << c.width;
  }
}

TEST(TextEllipsis, ImageCanvasShortensOnlyWithTheFlag) {
  TextStyle style;
  style.color = rgbColor(255, 255, 255);
  // 6 pixels a character less the last gap: 36 pixels hold "ABC..." (35).
  const Rect rect{0, 0, 36, 10};
  const auto draw = [&](const std::wstring& text, uint32_t flags) {
    Image image = Image::blank(40, 10);
    ImageCanvas canvas(image);
    canvas.drawText(text, rect, style, style.color, flags);
    return image;
  };
  EXPECT_TRUE(CompareImages(draw(L"ABCDEFGHIJ", kTextEndEllipsis), draw(L"ABC...", 0), "text", 0));
  EXPECT_TRUE(CompareImages(draw(L"ABCDEFGHIJ", 0), draw(L"ABCDEF", 0), "text", 0));
  EXPECT_TRUE(CompareImages(draw(L"ABCDEF", kTextEndEllipsis), draw(L"ABCDEF", 0), "text", 0));
}

}  // namespace
}  // namespace tessel
