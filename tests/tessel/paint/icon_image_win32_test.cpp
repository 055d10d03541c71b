// Icons become premultiplied images: alpha icons keep their alpha, old icons take their mask.
#include "tessel/paint/icon_image_win32.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessel {
namespace {

// The image of an icon made of a 16 x 16 colour section and a monochrome mask.
Image ImageOfIcon(const std::vector<uint32_t>& argb, const std::vector<uint16_t>& maskRows) {
  BITMAPINFO info{{sizeof(BITMAPINFOHEADER), 16, -16, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
  void* bits = nullptr;
  ICONINFO parts{};
  parts.fIcon = TRUE;
  parts.hbmColor = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  memcpy(bits, argb.data(), argb.size() * 4);
  parts.hbmMask = CreateBitmap(16, 16, 1, 1, maskRows.data());
  HICON icon = CreateIconIndirect(&parts);
  EXPECT_NE(icon, nullptr);
  const Image image = imageFromIcon(icon);
  DestroyIcon(icon);
  DeleteObject(parts.hbmColor);
  DeleteObject(parts.hbmMask);
  EXPECT_EQ(image.width, 16);
  EXPECT_EQ(image.height, 16);
  return image;
}

TEST(IconImage, AlphaIconsArePremultipliedOthersTakeTheirMask) {
  // Left half opaque red, right half white at half alpha.
  std::vector<uint32_t> pixels(16 * 16);
  for (size_t i = 0; i < pixels.size(); ++i)
    pixels[i] = i % 16 < 8 ? 0xFFFF0000u : 0x80FFFFFFu;
  Image image = ImageOfIcon(pixels, std::vector<uint16_t>(16, 0));
  EXPECT_EQ(image.pixel(2, 2)[2], 255);  // red
  EXPECT_EQ(image.pixel(2, 2)[3], 255);
  EXPECT_EQ(image.pixel(12, 2)[3], 0x80);
  EXPECT_EQ(image.pixel(12, 2)[0], 0x80);  // white at half alpha, premultiplied
  // Green without alpha anywhere; mask bits set (outside) on the top half.
  std::vector<uint16_t> maskRows(16, 0);
  std::fill(maskRows.begin(), maskRows.begin() + 8, 0xFFFF);
  image = ImageOfIcon(std::vector<uint32_t>(16 * 16, 0x0000FF00u), maskRows);
  EXPECT_EQ(image.pixel(4, 2)[3], 0);
  EXPECT_EQ(image.pixel(4, 12)[3], 255);
  EXPECT_EQ(image.pixel(4, 12)[1], 255);
  EXPECT_TRUE(imageFromIcon(nullptr).empty());
}

}  // namespace
}  // namespace tessel
