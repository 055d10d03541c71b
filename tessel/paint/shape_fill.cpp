#include "tessel/paint/shape_fill.h"

#include <algorithm>
#include <vector>

#include "tessel/paint/pixel_blend.h"
#include "tessel/paint/shape_geometry.h"

namespace tessel {

namespace {

void putOpaque(uint8_t* pixel, Color color) {
  pixel[0] = uint8_t(blueOf(color));
  pixel[1] = uint8_t(greenOf(color));
  pixel[2] = uint8_t(redOf(color));
  pixel[3] = 255;
}

// Calls `visit(row, from, count)` for each row of the shape that lies on the image, with its
// inside pixels clipped to the image.
template <typename Visit>
void forEachSpan(Image& image, const Rect& rect, ShapeKind kind, Visit visit) {
  if (image.empty() || rect.empty()) return;
  const Rect clip = intersectRects(rect, {0, 0, image.width, image.height});
  for (int32_t py = clip.y; py < clip.bottom(); ++py) {
    int32_t first = 0, last = 0;
    if (!shapeRowSpan(kind, rect.width, rect.height, py - rect.y, first, last)) continue;
    const int32_t from = std::max(clip.x, rect.x + first);
    const int32_t to = std::min(clip.right(), rect.x + last + 1);
    if (from < to) visit(image.pixel(from, py), to - from);
  }
}

}  // namespace

void fillShape(Image& image, const Rect& rect, ShapeKind kind, Color color) {
  const uint32_t word = opaquePixelWord(color);
  forEachSpan(image, rect, kind,
              [&](uint8_t* pixels, int32_t count) { fillRow(pixels, word, count); });
}

void strokeShape(Image& image, const Rect& rect, ShapeKind kind, Color color, int32_t width) {
  if (width < 1 || image.empty() || rect.empty()) return;
  // No pixel of a shape lies farther than this from the outside of its rectangle.
  if (width >= (int64_t(std::min(rect.width, rect.height)) + 1) / 2) {
    fillShape(image, rect, kind, color);
    return;
  }
  const Rect clip = intersectRects(rect, {0, 0, image.width, image.height});
  if (clip.empty()) return;
  // Shape coordinates from here on. Rows within `width` of the clip are looked at, limited to
  // the one-pixel frame around the shape: that frame is outside, and any pixel beyond it is
  // farther away than the frame pixel next to it.
  const int32_t left = clip.x - rect.x;
  const int32_t top = clip.y - rect.y;
  const int32_t columns = clip.width;
  const int32_t firstRow = int32_t(std::max<int64_t>(int64_t(top) - width, -1));
  const int32_t lastRow =
      int32_t(std::min<int64_t>(int64_t(top) + clip.height - 1 + width, rect.height));
  const int64_t tooFar = int64_t(width) + 1;

  // Each row's inside is one run, so the horizontal distance from a column to the nearest
  // pixel outside is a difference of ends, capped at width + 1; 0 means the pixel is outside.
  struct Span {
    int32_t first = 0, last = -1;  // last < first: the whole row is outside
  };
  std::vector<Span> spans(size_t(lastRow - firstRow + 1));
  for (int32_t y = firstRow; y <= lastRow; ++y) {
    Span& span = spans[size_t(y - firstRow)];
    if (!shapeRowSpan(kind, rect.width, rect.height, y, span.first, span.last)) span = Span{};
  }
  const auto across = [&](int64_t y, int64_t x) -> int64_t {
    const Span& span = spans[size_t(y - firstRow)];
    if (x < span.first || x > span.last) return 0;
    return std::min({x - span.first + 1, span.last - x + 1, tooFar});
  };

  // A pixel of the shape is stroked when some pixel outside lies within `width` of it.
  const int64_t reach = int64_t(width) * width;
  for (int32_t r = 0; r < clip.height; ++r) {
    const int32_t y = top + r;
    // Columns more than `width` inside on every row in reach can't be stroked: skip them.
    int64_t deepFirst = INT64_MIN, deepLast = INT64_MAX;
    for (int64_t yy = std::max<int64_t>(int64_t(y) - width, firstRow);
         yy <= std::min<int64_t>(int64_t(y) + width, lastRow); ++yy) {
      const Span& span = spans[size_t(yy - firstRow)];
      deepFirst = std::max<int64_t>(deepFirst, int64_t(span.first) + width);
      deepLast = std::min<int64_t>(deepLast, int64_t(span.last) - width);
    }
    for (int32_t c = 0; c < columns; ++c) {
      const int64_t x = int64_t(left) + c;
      if (x >= deepFirst && x <= deepLast) {
        c = int32_t(deepLast - left);
        continue;
      }
      if (across(y, x) == 0) continue;
      bool edge = false;
      for (int64_t dy = 0; dy <= width && !edge; ++dy) {
        for (const int64_t yy : {y - dy, y + dy}) {
          if (yy < firstRow || yy > lastRow) continue;
          const int64_t dx = across(yy, x);
          if (dx * dx + dy * dy <= reach) edge = true;
        }
      }
      if (edge) putOpaque(image.pixel(clip.x + c, clip.y + r), color);
    }
  }
}

void fillShapeAlpha(Image& image, const Rect& rect, ShapeKind kind, Color color, uint8_t alpha) {
  if (alpha == 0) return;
  const uint32_t source[3] = {blueOf(color) * alpha / 255, greenOf(color) * alpha / 255,
                              redOf(color) * alpha / 255};
  const uint32_t keep = 255u - alpha;
  forEachSpan(image, rect, kind, [&](uint8_t* pixel, int32_t count) {
    for (int32_t i = 0; i < count; ++i, pixel += 4) {
      for (int channel = 0; channel < 3; ++channel)
        pixel[channel] = uint8_t(source[channel] + (pixel[channel] * keep + 127) / 255);
      pixel[3] = uint8_t(alpha + (pixel[3] * keep + 127) / 255);
    }
  });
}

}  // namespace tessel
