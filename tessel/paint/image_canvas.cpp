#include "tessel/paint/image_canvas.h"

#include <algorithm>
#include <cstring>

#include "tessel/paint/pixel_blend.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/stand_in_font.h"
#include "tessel/paint/text_ellipsis.h"

namespace tessel {

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
  Rect box;
  for (const Rect& r : clip_)
    box = uniteRects(box, r);
  return box;
}

bool ImageCanvas::clipped(int32_t x, int32_t y) const {
  for (const Rect& r : clip_)
    if (r.contains(x, y)) return false;
  return true;
}

void ImageCanvas::fillRect(const Rect& rect, Color color) {
  if (image_.empty()) return;
  const uint32_t word = opaquePixelWord(color);
  for (const Rect& clip : clip_) {
    const Rect area = intersectRects(rect, clip);
    for (int32_t y = area.y; y < area.bottom(); ++y)
      fillRow(image_.pixel(area.x, y), word, area.width);
  }
}

void ImageCanvas::rowClipRuns(int32_t y, const Rect& box,
                              std::vector<std::pair<int32_t, int32_t>>& runs) const {
  runs.clear();
  for (const Rect& clip : clip_) {
    if (y < clip.y || y >= clip.bottom()) continue;
    const int32_t from = std::max(clip.x, box.x);
    const int32_t to = std::min(clip.right(), box.right());
    if (from < to) runs.emplace_back(from, to);
  }
  std::sort(runs.begin(), runs.end());
  // Overlapping clip rectangles merge, so that nothing is blended twice.
  size_t kept = 0;
  for (const auto& run : runs) {
    if (kept > 0 && run.first <= runs[kept - 1].second) {
      runs[kept - 1].second = std::max(runs[kept - 1].second, run.second);
      continue;
    }
    runs[kept++] = run;
  }
  runs.resize(kept);
}

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
    rowClipRuns(y, box, runs);
    for (const auto& [from, to] : runs) {
      uint8_t* d = image_.pixel(from, y);
      if (unscaled) {
        const int32_t sx0 = source.x + (from - target.x);
        const int32_t first = std::max(0, -sx0);
        const int32_t last = std::min(to - from, image.width - sx0);
        if (first < last)
          blendRow(d + size_t(first) * 4, image.pixel(sx0 + first, sy), last - first, opacity);
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

void ImageCanvas::blendLayer(const Image& layer, const std::vector<LayerRun>& layerRuns, Point at) {
  if (layer.empty() || image_.empty()) return;
  const Rect box =
      intersectRects(intersectRects(Rect{at.x, at.y, layer.width, layer.height}, clipBox()),
                     Rect{0, 0, image_.width, image_.height});
  if (box.empty()) return;
  std::vector<std::pair<int32_t, int32_t>> clips;
  // One clip rectangle is the common case: its runs are the same on every row of the box.
  const bool oneClip = clip_.size() == 1;
  if (oneClip) clips.emplace_back(box.x, box.right());
  int32_t clipsOfRow = INT32_MIN;
  for (const LayerRun& run : layerRuns) {
    const int32_t y = at.y + run.y;
    if (y < box.y || y >= box.bottom()) continue;
    if (!oneClip && y != clipsOfRow) {
      rowClipRuns(y, box, clips);
      clipsOfRow = y;
    }
    for (const auto& [clipFrom, clipTo] : clips) {
      const int32_t from = std::max(clipFrom, at.x + run.from);
      const int32_t to = std::min(clipTo, at.x + run.to);
      if (from >= to) continue;
      if (run.solid != 0)
        fillRow(image_.pixel(from, y), run.solid, to - from);
      else
        blendRow(image_.pixel(from, y), layer.pixel(from - at.x, run.y), to - from, 255);
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
  if (flags & kTextEndEllipsis) {
    const std::wstring shortened = endEllipsisText(
        text, rect.width, [&](const std::wstring& t) { return measureText(t, style).width; });
    if (shortened != text) {
      drawText(shortened, rect, style, color, flags & ~uint32_t{kTextEndEllipsis});
      return;
    }
  }
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
