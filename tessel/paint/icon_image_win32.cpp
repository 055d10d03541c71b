#include "tessel/paint/icon_image_win32.h"

#include <vector>

namespace tessel {

namespace {

// The bitmap's pixels as 32-bit top-down rows.
bool readBits(HBITMAP bitmap, int32_t width, int32_t height, std::vector<uint8_t>& bits) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  bits.assign(size_t(width) * height * 4, 0);
  HDC dc = GetDC(nullptr);
  const int rows = GetDIBits(dc, bitmap, 0, UINT(height), bits.data(), &info, DIB_RGB_COLORS);
  ReleaseDC(nullptr, dc);
  return rows == height;
}

}  // namespace

Image imageFromIcon(HICON icon) {
  ICONINFO parts{};
  if (icon == nullptr || !GetIconInfo(icon, &parts)) return Image{};
  Image image;
  BITMAP colour{};
  if (parts.hbmColor != nullptr && GetObjectW(parts.hbmColor, sizeof(colour), &colour) != 0) {
    const int32_t width = colour.bmWidth, height = colour.bmHeight;
    std::vector<uint8_t> bits, mask;
    if (readBits(parts.hbmColor, width, height, bits)) {
      bool hasAlpha = false;
      for (size_t i = 3; i < bits.size() && !hasAlpha; i += 4)
        hasAlpha = bits[i] != 0;
      // Without alpha the mask says what is transparent: set bits are outside.
      const bool masked =
          !hasAlpha && parts.hbmMask != nullptr && readBits(parts.hbmMask, width, height, mask);
      image = Image::blank(width, height);
      for (int32_t y = 0; y < height; ++y) {
        for (int32_t x = 0; x < width; ++x) {
          const uint8_t* s = &bits[(size_t(y) * width + x) * 4];
          uint32_t alpha = hasAlpha ? s[3] : 255;
          if (masked && mask[(size_t(y) * width + x) * 4] != 0) alpha = 0;
          uint8_t* d = image.pixel(x, y);
          for (int c = 0; c < 3; ++c)
            d[c] = uint8_t((s[c] * alpha + 127) / 255);
          d[3] = uint8_t(alpha);
        }
      }
    }
  }
  if (parts.hbmColor != nullptr) DeleteObject(parts.hbmColor);
  if (parts.hbmMask != nullptr) DeleteObject(parts.hbmMask);
  return image;
}

}  // namespace tessel
