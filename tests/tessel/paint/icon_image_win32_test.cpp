// Icons become premultiplied images: alpha icons keep their alpha, old icons take their mask.
#include "tessel/paint/icon_image_win32.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessel {
namespace {

HBITMAP Section(int size, const std::vector<uint32_t>& argb) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size;
  info.bmiHeader.biHeight = -size;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  memcpy(bits, argb.data(), argb.size() * 4);
  return bitmap;
}

TEST(IconImage, AlphaIconsArePremultiplied) {
  // Left half opaque red, right half half-transparent white.
  std::vector<uint32_t> pixels(16 * 16);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x)
      pixels[y * 16 + x] = x < 8 ? 0xFFFF0000u : 0x80FFFFFFu;
  ICONINFO parts{};
  parts.fIcon = TRUE;
  parts.hbmColor = Section(16, pixels);
  parts.hbmMask = CreateBitmap(16, 16, 1, 1, nullptr);
  HICON icon = CreateIconIndirect(&parts);
  ASSERT_NE(icon, nullptr);
  const Image image = imageFromIcon(icon);
  ASSERT_EQ(image.width, 16);
  EXPECT_EQ(image.pixel(2, 2)[2], 255);  // red
  EXPECT_EQ(image.pixel(2, 2)[3], 255);
  EXPECT_EQ(image.pixel(12, 2)[3], 0x80);
  EXPECT_EQ(image.pixel(12, 2)[0], 0x80);  // white at half alpha, premultiplied
  DestroyIcon(icon);
  DeleteObject(parts.hbmColor);
  DeleteObject(parts.hbmMask);
}

TEST(IconImage, IconsWithoutAlphaTakeTheirMaskAndNullIsEmpty) {
  std::vector<uint32_t> pixels(16 * 16, 0x0000FF00u);  // green, no alpha anywhere
  // Mask bits set (outside) on the top half.
  std::vector<uint16_t> maskRows(16, 0);
  for (int y = 0; y < 8; ++y)
    maskRows[y] = 0xFFFF;
  ICONINFO parts{};
  parts.fIcon = TRUE;
  parts.hbmColor = Section(16, pixels);
  parts.hbmMask = CreateBitmap(16, 16, 1, 1, maskRows.data());
  HICON icon = CreateIconIndirect(&parts);
  ASSERT_NE(icon, nullptr);
  const Image image = imageFromIcon(icon);
  ASSERT_EQ(image.height, 16);
  EXPECT_EQ(image.pixel(4, 2)[3], 0);
  EXPECT_EQ(image.pixel(4, 12)[3], 255);
  EXPECT_EQ(image.pixel(4, 12)[1], 255);
  DestroyIcon(icon);
  DeleteObject(parts.hbmColor);
  DeleteObject(parts.hbmMask);
  EXPECT_TRUE(imageFromIcon(nullptr).empty());
}

}  // namespace
}  // namespace tessel
