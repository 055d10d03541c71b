#include "tessel/paint/image_canvas.h"

#include <algorithm>
#include <cstring>

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

namespace {

// Source-over of one premultiplied pixel scaled by a constant alpha, as AlphaBlend does it.
inline void blendPixel(uint8_t* d, const uint8_t* s, uint32_t opacity) {
  if (opacity == 255) {
    const uint32_t keep = 255 - s[3];
    for (int c = 0; c < 4; ++c)
      d[c] = static_cast<uint8_t>(std::min<uint32_t>(255, s[c] + (d[c] * keep + 127) / 255));
    return;
  }
  const uint32_t alpha = (s[3] * opacity + 127) / 255;
  const uint32_t keep = 255 - alpha;
  for (int c = 0; c < 3; ++c) {
    const uint32_t color = (s[c] * opacity + 127) / 255;
    d[c] = static_cast<uint8_t>(std::min<uint32_t>(255, color + (d[c] * keep + 127) / 255));
  }
  d[3] = static_cast<uint8_t>(std::min<uint32_t>(255, alpha + (d[3] * keep + 127) / 255));
}

}  // namespace

void ImageCanvas::blendImage(const Image& image, const Rect& source, const Rect& target,
                             uint8_t opacity) {
  if (image.empty() || image_.empty() || source.empty() || target.empty() || opacity == 0) return;
  const bool unscaled = source.width == target.width && source.height == target.height;
  const Rect box =
      intersectRects(intersectRects(target, clipBox()), Rect{0, 0, image_.width, image_.height});
  std::vector<std::pair<int32_t, int32_t>> runs;
  for (int32_t y = box.y; y < box.bottom(); ++y) {
    const int32_t sy = unscaled ? source.y + (y - target.y)
                                : source.y + static_cast<int32_t>(int64_t(y - target.y) *
                                                                  source.height / target.height);
    if (sy < 0 || sy >= image.height) continue;
    // The clip of this row as disjoint runs, so overlapping clip rectangles blend once.
    runs.clear();
    for (const Rect& clip : clip_) {
      if (y < clip.y || y >= clip.bottom()) continue;
      const int32_t from = std::max(clip.x, box.x);
      const int32_t to = std::min(clip.right(), box.right());
      if (from < to) runs.emplace_back(from, to);
    }
    std::sort(runs.begin(), runs.end());
    int32_t done = INT32_MIN;
    for (auto [from, to] : runs) {
      from = std::max(from, done);
      if (from >= to) continue;
      done = to;
      uint8_t* d = image_.pixel(from, y);
      if (unscaled) {
        const int32_t sx0 = source.x + (from - target.x);
        const int32_t first = std::max(0, -sx0);
        const int32_t last = std::min(to - from, image.width - sx0);
        const uint8_t* s = image.pixel(std::max(sx0, 0), sy);
        d += size_t(first) * 4;
        for (int32_t i = first; i < last;) {
          if (opacity == 255 && s[3] == 255) {
            // An opaque run replaces what is under it: a plain copy.
            int32_t end = i + 1;
            while (end < last && s[size_t(end - i) * 4 + 3] == 255)
              ++end;
            std::memcpy(d, s, size_t(end - i) * 4);
            s += size_t(end - i) * 4;
            d += size_t(end - i) * 4;
            i = end;
            continue;
          }
          if (s[3] != 0 || (s[0] | s[1] | s[2]) != 0) blendPixel(d, s, opacity);
          s += 4;
          d += 4;
          ++i;
        }
        continue;
      }
      for (int32_t x = from; x < to; ++x, d += 4) {
        const int32_t sx =
            source.x + static_cast<int32_t>(int64_t(x - target.x) * source.width / target.width);
        if (sx < 0 || sx >= image.width) continue;
        blendPixel(d, image.pixel(sx, sy), opacity);
      }
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
