#include "tessel/paint/gdi_canvas_win32.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>
#include <tuple>

#include "tessel/paint/private_fonts_win32.h"

namespace tessel {

namespace {

// A top-down 32-bit section holding premultiplied pixels, as AlphaBlend wants them.
HBITMAP sectionOf(HDC dc, int32_t width, int32_t height, void** bits) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return CreateDIBSection(dc, &info, DIB_RGB_COLORS, bits, nullptr, 0);
}

// The process's fonts, kept until exit: canvases are made for every paint, and a UI uses a
// handful of styles. The height depends on the device's DPI, so the DPI joins the style in the
// key.
HFONT sharedFont(const TextStyle& style, int dpi) {
  using Key = std::tuple<std::wstring, int32_t, int32_t, bool, bool, int>;
  static std::mutex lock;
  static auto* fonts = new std::map<Key, HFONT>();
  const std::lock_guard<std::mutex> hold(lock);
  const Key key{style.fontFamily, style.pointSize, style.weight,
                style.italic,     style.underline, dpi};
  if (auto found = fonts->find(key); found != fonts->end()) return found->second;
  // The private fonts must be in place before the first font is mapped to a face: a mapping once
  // made is kept (Wine keeps it even after fonts are added).
  ensurePrivateFontsLoaded();
  // Point sizes become pixels at the device's DPI; negative heights ask for the em height.
  const int height = -MulDiv(style.pointSize, dpi, 72);
  HFONT font = CreateFontW(height, 0, 0, 0, style.weight, style.italic, style.underline, FALSE,
                           DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                           CLEARTYPE_QUALITY, DEFAULT_PITCH, style.fontFamily.c_str());
  if (font != nullptr) (*fonts)[key] = font;
  return font;
}

}  // namespace

GdiCanvas::GdiCanvas(HDC dc, Size size) : dc_(dc), size_(size) {}

GdiCanvas::~GdiCanvas() {
  while (!saved_.empty())
    restore();
}

Size GdiCanvas::size() const {
  return size_;
}

void GdiCanvas::save() {
  saved_.push_back(SaveDC(dc_));
}

void GdiCanvas::restore() {
  if (saved_.empty()) return;
  RestoreDC(dc_, saved_.back());
  saved_.pop_back();
}

void GdiCanvas::clipToRects(const std::vector<Rect>& rects) {
  HRGN region = CreateRectRgn(0, 0, 0, 0);
  for (const Rect& r : rects) {
    if (r.empty()) continue;
    HRGN part = CreateRectRgn(r.x, r.y, r.right(), r.bottom());
    CombineRgn(region, region, part, RGN_OR);
    DeleteObject(part);
  }
  ExtSelectClipRgn(dc_, region, RGN_AND);
  DeleteObject(region);
}

Rect GdiCanvas::clipBox() const {
  RECT box{};
  const int kind = GetClipBox(dc_, &box);
  if (kind == NULLREGION) return Rect{};
  // A failed query paints: the whole target counts.
  if (kind == ERROR) return Rect{0, 0, size_.width, size_.height};
  return Rect{box.left, box.top, box.right - box.left, box.bottom - box.top};
}

void GdiCanvas::fillRect(const Rect& rect, Color color) {
  if (rect.empty()) return;
  HBRUSH brush = CreateSolidBrush(color);
  const RECT r{rect.x, rect.y, rect.right(), rect.bottom()};
  FillRect(dc_, &r, brush);
  DeleteObject(brush);
}

void GdiCanvas::blendImage(const Image& image, const Rect& source, const Rect& target,
                           uint8_t opacity) {
  if (image.empty() || source.empty() || target.empty() || opacity == 0) return;
  HDC memory = CreateCompatibleDC(dc_);
  void* bits = nullptr;
  HBITMAP bitmap = sectionOf(dc_, image.width, image.height, &bits);
  if (memory == nullptr || bitmap == nullptr) {
    if (bitmap) DeleteObject(bitmap);
    if (memory) DeleteDC(memory);
    return;
  }
  std::memcpy(bits, image.pixels->data(), image.pixels->size());
  HGDIOBJ previous = SelectObject(memory, bitmap);
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, opacity, AC_SRC_ALPHA};
  AlphaBlend(dc_, target.x, target.y, target.width, target.height, memory, source.x, source.y,
             source.width, source.height, blend);
  SelectObject(memory, previous);
  DeleteObject(bitmap);
  DeleteDC(memory);
}

Image GdiCanvas::copyPixels(const Rect& rect) const {
  Image copy = Image::blank(rect.width, rect.height);
  if (copy.empty()) return copy;
  HDC memory = CreateCompatibleDC(dc_);
  void* bits = nullptr;
  HBITMAP bitmap = sectionOf(dc_, rect.width, rect.height, &bits);
  if (memory != nullptr && bitmap != nullptr) {
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, rect.width, rect.height, dc_, rect.x, rect.y, SRCCOPY);
    GdiFlush();
    std::memcpy(copy.pixels->data(), bits, copy.pixels->size());
    SelectObject(memory, previous);
  }
  if (bitmap) DeleteObject(bitmap);
  if (memory) DeleteDC(memory);
  return copy;
}

void GdiCanvas::putPixels(const Image& image, const Rect& source, Point target) {
  if (image.empty() || source.empty()) return;
  HDC memory = CreateCompatibleDC(dc_);
  void* bits = nullptr;
  HBITMAP bitmap = sectionOf(dc_, image.width, image.height, &bits);
  if (memory != nullptr && bitmap != nullptr) {
    std::memcpy(bits, image.pixels->data(), image.pixels->size());
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(dc_, target.x, target.y, source.width, source.height, memory, source.x, source.y,
           SRCCOPY);
    SelectObject(memory, previous);
  }
  if (bitmap) DeleteObject(bitmap);
  if (memory) DeleteDC(memory);
}

void GdiCanvas::drawLine(Point from, Point to, Color color, int32_t width) {
  if (width < 1) return;
  HPEN pen = CreatePen(PS_SOLID, width, color);
  if (!pen) return;
  HGDIOBJ previous = SelectObject(dc_, pen);
  MoveToEx(dc_, from.x, from.y, nullptr);
  LineTo(dc_, to.x, to.y);
  // A one-pixel pen leaves out the last point; wider pens cover it with their round caps.
  if (width == 1) SetPixelV(dc_, to.x, to.y, color);
  SelectObject(dc_, previous);
  DeleteObject(pen);
}

HFONT GdiCanvas::fontFor(const TextStyle& style) const {
  return sharedFont(style, GetDeviceCaps(dc_, LOGPIXELSY));
}

Size GdiCanvas::measureText(const std::wstring& text, const TextStyle& style) const {
  HGDIOBJ previous = SelectObject(dc_, fontFor(style));
  SIZE extent{};
  GetTextExtentPoint32W(dc_, text.c_str(), static_cast<int>(text.size()), &extent);
  SelectObject(dc_, previous);
  return Size{extent.cx, extent.cy};
}

void GdiCanvas::drawText(const std::wstring& text, const Rect& rect, const TextStyle& style,
                         Color color, uint32_t flags) {
  if (text.empty() || rect.empty()) return;
  HGDIOBJ previous = SelectObject(dc_, fontFor(style));
  SetBkMode(dc_, TRANSPARENT);
  SetTextColor(dc_, color);
  UINT format = DT_NOPREFIX | DT_SINGLELINE;
  if (flags & kTextCenter) format |= DT_CENTER;
  if (flags & kTextRight) format |= DT_RIGHT;
  if (flags & kTextMiddle) format |= DT_VCENTER;
  if (flags & kTextBottom) format |= DT_BOTTOM;
  if (flags & kTextEndEllipsis) format |= DT_END_ELLIPSIS;
  RECT r{rect.x, rect.y, rect.right(), rect.bottom()};
  DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &r, format);
  SelectObject(dc_, previous);
}

}  // namespace tessel
