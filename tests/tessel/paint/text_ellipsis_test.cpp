#include "tessel/paint/text_ellipsis.h"

#include <gtest/gtest.h>

#include "tessel/paint/image_canvas.h"
#include "tests/support/golden_image.h"

namespace tessel {
namespace {

TEST(TextEllipsis, LongestPrefixThatFitsWithTheDots) {
  const auto count = [](const std::wstring& text) { return int32_t(text.size()); };
  const struct {
    const wchar_t *text, *shown;
    int32_t width;
  } kCases[] = {{L"abcdef", L"abcdef", 6},
                {L"abcdef", L"ab...", 5},
                {L"abcdef", L"...", 3},
                {L"abcdef", L"...", 0},
                {L"", L"", 0}};
  for (const auto& c : kCases)
    EXPECT_EQ(endEllipsisText(c.text, c.width, count), c.shown) << c.text << " " << c.width;
}

TEST(TextEllipsis, ImageCanvasShortensOnlyWithTheFlag) {
  TextStyle style;
  // 6 pixels a character less the last gap: 36 pixels hold "ABC..." (35).
  const auto draw = [&](const std::wstring& text, uint32_t flags) {
    Image image = Image::blank(40, 10);
    ImageCanvas(image).drawText(text, {0, 0, 36, 10}, style, rgbColor(255, 255, 255), flags);
    return image;
  };
  EXPECT_TRUE(CompareImages(draw(L"ABCDEFGHIJ", kTextEndEllipsis), draw(L"ABC...", 0), "text", 0));
  EXPECT_TRUE(CompareImages(draw(L"ABCDEFGHIJ", 0), draw(L"ABCDEF", 0), "text", 0));
  EXPECT_TRUE(CompareImages(draw(L"ABCDEF", kTextEndEllipsis), draw(L"ABCDEF", 0), "text", 0));
}

}  // namespace
}  // namespace tessel
