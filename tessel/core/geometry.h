// Plain integer geometry shared by the whole toolkit: points, sizes, rectangles given by their
// origin and size, and insets given per side. No operation here clips or normalizes on its own.
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

}  // namespace tessel
