#include "tessel/paint/shape_fill.h"

#include <algorithm>
#include <vector>

#include "tessel/paint/shape_geometry.h"

namespace tessel {

namespace {

// Calls `visit(pixel, x, y)` for each pixel of `rect` that lies on the image, with x and y
// relative to the rectangle's origin.
template <typename Visit>
void forEachPixel(Image& image, const Rect& rect, Visit visit) {
  if (image.empty() || rect.empty()) return;
  const Rect clip = intersectRects(rect, {0, 0, image.width, image.height});
  for (int32_t py = clip.y; py < clip.bottom(); ++py) {
    for (int32_t px = clip.x; px < clip.right(); ++px)
      visit(image.pixel(px, py), px - rect.x, py - rect.y);
  }
}

void putOpaque(uint8_t* pixel, Color color) {
  pixel[0] = uint8_t(blueOf(color));
  pixel[1] = uint8_t(greenOf(color));
  pixel[2] = uint8_t(redOf(color));
  pixel[3] = 255;
}

}  // namespace

void fillShape(Image& image, const Rect& rect, ShapeKind kind, Color color) {
  forEachPixel(image, rect, [&](uint8_t* pixel, int32_t x, int32_t y) {
    if (isInsideShape(kind, rect.width, rect.height, x, y)) putOpaque(pixel, color);
  });
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
  // Shape coordinates from here on. Rows and columns within `width` of the clip are looked at,
  // limited to the one-pixel frame around the shape: that frame is outside, and any pixel
  // beyond it is farther away than the frame pixel next to it.
  const int32_t left = clip.x - rect.x;
  const int32_t top = clip.y - rect.y;
  const int32_t columns = clip.width;
  const int32_t firstRow = int32_t(std::max<int64_t>(int64_t(top) - width, -1));
  const int32_t lastRow =
      int32_t(std::min<int64_t>(int64_t(top) + clip.height - 1 + width, rect.height));
  const int32_t firstColumn = int32_t(std::max<int64_t>(int64_t(left) - width, -1));
  const int32_t lastColumn =
      int32_t(std::min<int64_t>(int64_t(left) + columns - 1 + width, rect.width));
  const int64_t tooFar = int64_t(width) + 1;

  // Per row, the horizontal distance from each clip column to the nearest pixel outside the
  // shape, capped at width + 1; 0 means the pixel itself is outside.
  std::vector<int32_t> across(size_t(lastRow - firstRow + 1) * columns);
  std::vector<bool> outside(size_t(lastColumn - firstColumn + 1));
  for (int32_t y = firstRow; y <= lastRow; ++y) {
    for (int32_t x = firstColumn; x <= lastColumn; ++x)
      outside[x - firstColumn] = !isInsideShape(kind, rect.width, rect.height, x, y);
    int32_t* row = &across[size_t(y - firstRow) * columns];
    int64_t previous = int64_t(firstColumn) - tooFar;
    for (int32_t x = firstColumn; x < left + columns; ++x) {
      if (outside[x - firstColumn]) previous = x;
      if (x >= left) row[x - left] = int32_t(std::min(x - previous, tooFar));
    }
    int64_t next = int64_t(lastColumn) + tooFar;
    for (int32_t x = lastColumn; x >= left; --x) {
      if (outside[x - firstColumn]) next = x;
      if (x < left + columns) row[x - left] = int32_t(std::min<int64_t>(row[x - left], next - x));
    }
  }

  // A pixel of the shape is stroked when some pixel outside lies within `width` of it.
  const int64_t reach = int64_t(width) * width;
  for (int32_t r = 0; r < clip.height; ++r) {
    const int32_t y = top + r;
    for (int32_t c = 0; c < columns; ++c) {
      if (across[size_t(y - firstRow) * columns + c] == 0) continue;
      bool edge = false;
      for (int64_t dy = 0; dy <= width && !edge; ++dy) {
        for (const int64_t yy : {y - dy, y + dy}) {
          if (yy < firstRow || yy > lastRow) continue;
          const int64_t dx = across[size_t(yy - firstRow) * columns + c];
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
  forEachPixel(image, rect, [&](uint8_t* pixel, int32_t x, int32_t y) {
    if (!isInsideShape(kind, rect.width, rect.height, x, y)) return;
    for (int channel = 0; channel < 3; ++channel)
      pixel[channel] = uint8_t(source[channel] + (pixel[channel] * keep + 127) / 255);
    pixel[3] = uint8_t(alpha + (pixel[3] * keep + 127) / 255);
  });
}

}  // namespace tessel
