// Plain integer geometry shared by the whole toolkit: points, sizes, rectangles given by their
// origin and size, and insets given per side. No operation here clips or normalizes on its own;
// the union below only leaves empty rectangles out.
#pragma once

#include <cstdint>

namespace tessel {

struct Point {
  int32_t x = 0;
  int32_t y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  int32_t width = 0;
  int32_t height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  int32_t x = 0;
  int32_t y = 0;
  int32_t width = 0;
  int32_t height = 0;
  int32_t right() const { return x + width; }
  int32_t bottom() const { return y + height; }
  bool empty() const { return width <= 0 || height <= 0; }
  bool contains(int32_t px, int32_t py) const {
    return px >= x && py >= y && px < right() && py < bottom();
  }
  bool operator==(const Rect&) const = default;
};

struct Insets {
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;
  bool operator==(const Insets&) const = default;
};

// The smallest rectangle holding both; an empty one counts for nothing.
inline Rect uniteRects(const Rect& a, const Rect& b) {
  if (a.empty()) return b;
  if (b.empty()) return a;
  const int32_t left = a.x < b.x ? a.x : b.x;
  const int32_t top = a.y < b.y ? a.y : b.y;
  const int32_t right = a.right() > b.right() ? a.right() : b.right();
  const int32_t bottom = a.bottom() > b.bottom() ? a.bottom() : b.bottom();
  return Rect{left, top, right - left, bottom - top};
}

// Grown by `margin` on every side (shrunk when it is negative).
inline Rect inflateRect(const Rect& r, int32_t margin) {
  return Rect{r.x - margin, r.y - margin, r.width + 2 * margin, r.height + 2 * margin};
}

}  // namespace tessel
