#include "tessel/paint/image_canvas.h"

#include <algorithm>

#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/stand_in_font.h"

namespace tessel {

namespace {

Rect bounding(const std::vector<Rect>& rects) {
  int32_t left = INT32_MAX, top = INT32_MAX, right = INT32_MIN, bottom = INT32_MIN;
  for (const Rect& r : rects) {
    if (r.empty()) continue;
    left = std::min(left, r.x);
    top = std::min(top, r.y);
    right = std::max(right, r.right());
    bottom = std::max(bottom, r.bottom());
  }
  if (left >= right || top >= bottom) return Rect{};
  return Rect{left, top, right - left, bottom - top};
}

}  // namespace

int standInTextScale(int32_t pointSize) {
  return std::max(1, (pointSize + 4) / 9);
}

ImageCanvas::ImageCanvas(Image& image) : image_(image) {
  clip_.push_back(Rect{0, 0, image.width, image.height});
}

Size ImageCanvas::size() const {
  return Size{image_.width, image_.height};
}

void ImageCanvas::save() {
  saved_.push_back(clip_);
}

void ImageCanvas::restore() {
  if (saved_.empty()) return;
  clip_ = std::move(saved_.back());
  saved_.pop_back();
}

void ImageCanvas::clipToRects(const std::vector<Rect>& rects) {
  std::vector<Rect> result;
  for (const Rect& a : clip_) {
    for (const Rect& b : rects) {
      const Rect both = intersectRects(a, b);
      if (!both.empty()) result.push_back(both);
    }
  }
  clip_ = std::move(result);
}

Rect ImageCanvas::clipBox() const {
  return bounding(clip_);
}

bool ImageCanvas::clipped(int32_t x, int32_t y) const {
  for (const Rect& r : clip_)
    if (r.contains(x, y)) return false;
  return true;
}

void ImageCanvas::fillRect(const Rect& rect, Color color) {
  if (image_.empty()) return;
  for (const Rect& clip : clip_) {
    const Rect area = intersectRects(rect, clip);
    for (int32_t y = area.y; y < area.bottom(); ++y) {
      for (int32_t x = area.x; x < area.right(); ++x) {
        uint8_t* p = image_.pixel(x, y);
        p[0] = static_cast<uint8_t>(blueOf(color));
        p[1] = static_cast<uint8_t>(greenOf(color));
        p[2] = static_cast<uint8_t>(redOf(color));
        p[3] = 255;
      }
    }
  }
}

void ImageCanvas::blendImage(const Image& image, const Rect& source, const Rect& target,
                             uint8_t opacity) {
  if (image.empty() || image_.empty() || source.empty() || target.empty() || opacity == 0) return;
  const Rect box = intersectRects(target, Rect{0, 0, image_.width, image_.height});
  for (int32_t y = box.y; y < box.bottom(); ++y) {
    const int32_t sy =
        source.y + static_cast<int32_t>(int64_t(y - target.y) * source.height / target.height);
    if (sy < 0 || sy >= image.height) continue;
    for (int32_t x = box.x; x < box.right(); ++x) {
      if (clipped(x, y)) continue;
      const int32_t sx =
          source.x + static_cast<int32_t>(int64_t(x - target.x) * source.width / target.width);
      if (sx < 0 || sx >= image.width) continue;
      const uint8_t* s = image.pixel(sx, sy);
      uint8_t* d = image_.pixel(x, y);
      // Source-over of premultiplied pixels scaled by the constant alpha, as AlphaBlend does.
      const uint32_t alpha = (s[3] * opacity + 127) / 255;
      for (int c = 0; c < 3; ++c) {
        const uint32_t color = (s[c] * opacity + 127) / 255;
        d[c] = static_cast<uint8_t>(
            std::min<uint32_t>(255, color + (d[c] * (255 - alpha) + 127) / 255));
      }
      d[3] =
          static_cast<uint8_t>(std::min<uint32_t>(255, alpha + (d[3] * (255 - alpha) + 127) / 255));
    }
  }
}

Image ImageCanvas::copyPixels(const Rect& rect) const {
  Image copy = Image::blank(rect.width, rect.height);
  if (copy.empty() || image_.empty()) return copy;
  const Rect area = intersectRects(rect, Rect{0, 0, image_.width, image_.height});
  for (int32_t y = area.y; y < area.bottom(); ++y) {
    std::copy_n(image_.pixel(area.x, y), size_t(area.width) * 4,
                copy.pixel(area.x - rect.x, y - rect.y));
  }
  return copy;
}

void ImageCanvas::putPixels(const Image& image, const Rect& source, Point target) {
  if (image.empty() || image_.empty()) return;
  const Rect from = intersectRects(source, Rect{0, 0, image.width, image.height});
  for (int32_t y = from.y; y < from.bottom(); ++y) {
    for (int32_t x = from.x; x < from.right(); ++x) {
      const int32_t tx = target.x + x - source.x;
      const int32_t ty = target.y + y - source.y;
      if (tx < 0 || ty < 0 || tx >= image_.width || ty >= image_.height || clipped(tx, ty)) {
        continue;
      }
      std::copy_n(image.pixel(x, y), 4, image_.pixel(tx, ty));
    }
  }
}

Size ImageCanvas::measureText(const std::wstring& text, const TextStyle& style) const {
  const int scale = standInTextScale(style.pointSize);
  return Size{BitmapTextWidth(StandInText(text), scale), BitmapTextHeight(scale) + 2 * scale};
}

void ImageCanvas::drawText(const std::wstring& text, const Rect& rect, const TextStyle& style,
                           Color color, uint32_t flags) {
  if (image_.empty() || text.empty()) return;
  const Size extent = measureText(text, style);
  int32_t x = rect.x;
  if (flags & kTextCenter) x = rect.x + (rect.width - extent.width) / 2;
  if (flags & kTextRight) x = rect.right() - extent.width;
  int32_t y = rect.y;
  if (flags & kTextMiddle) y = rect.y + (rect.height - extent.height) / 2;
  if (flags & kTextBottom) y = rect.bottom() - extent.height;
  // Drawn off-screen first so that the clip and the rectangle both hold.
  const int scale = standInTextScale(style.pointSize);
  Image glyphs = Image::blank(std::max(extent.width, 1), extent.height);
  DrawBitmapText(glyphs, 0, scale, StandInText(text), color, scale);
  save();
  clipToRects({rect});
  blendImage(glyphs, Rect{0, 0, glyphs.width, glyphs.height},
             Rect{x, y, glyphs.width, glyphs.height}, 255);
  restore();
}

}  // namespace tessel
