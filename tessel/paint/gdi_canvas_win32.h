// The canvas of the Windows build: a device context (a window's back buffer, a memory bitmap)
// behind the painter's seam. Images are blended with AlphaBlend, text goes through GDI fonts
// made from the text style at the device's DPI, shared by every canvas and kept until exit.
// The first font made loads the program's private fonts (private_fonts_win32.h).
#pragma once

#include <windows.h>

#include <vector>

#include "tessel/paint/canvas.h"

namespace tessel {

class GdiCanvas : public Canvas {
 public:
  GdiCanvas(HDC dc, Size size);
  ~GdiCanvas() override;
  GdiCanvas(const GdiCanvas&) = delete;
  GdiCanvas& operator=(const GdiCanvas&) = delete;

  Size size() const override;
  void save() override;
  void restore() override;
  void clipToRects(const std::vector<Rect>& rects) override;
  Rect clipBox() const override;
  void fillRect(const Rect& rect, Color color) override;
  void blendImage(const Image& image, const Rect& source, const Rect& target,
                  uint8_t opacity) override;
  Image copyPixels(const Rect& rect) const override;
  void putPixels(const Image& image, const Rect& source, Point target) override;
  void drawLine(Point from, Point to, Color color, int32_t width) override;
  Size measureText(const std::wstring& text, const TextStyle& style) const override;
  void drawText(const std::wstring& text, const Rect& rect, const TextStyle& style, Color color,
                uint32_t flags) override;

 private:
  HFONT fontFor(const TextStyle& style) const;

  HDC dc_;
  Size size_;
  std::vector<int> saved_;
};

}  // namespace tessel
