// The canvas of the Windows build: a device context (a window's back buffer, a memory bitmap)
// behind the painter's seam. Images are blended with AlphaBlend, text goes through GDI fonts
// made from the text style at the device's DPI and kept for the canvas's life.
#pragma once

#include <windows.h>

#include <map>
#include <tuple>

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
  Size measureText(const std::wstring& text, const TextStyle& style) const override;
  void drawText(const std::wstring& text, const Rect& rect, const TextStyle& style, Color color,
                uint32_t flags) override;

 private:
  HFONT fontFor(const TextStyle& style) const;

  HDC dc_;
  Size size_;
  std::vector<int> saved_;
  mutable std::map<std::tuple<std::wstring, int32_t, int32_t, bool, bool>, HFONT> fonts_;
};

}  // namespace tessel
