#include "tessel/paint/shape_geometry.h"

#include <algorithm>
#include <cstdlib>

namespace tessel {

namespace {

bool inRange(int32_t width, int32_t height, int32_t x, int32_t y) {
  return x >= 0 && y >= 0 && x < width && y < height;
}

bool insideRoundedRect(int64_t width, int64_t height, int64_t x, int64_t y) {
  // Doubled coordinates keep the pixel centres (x + 0.5) exact.
  const int64_t r2 = cornerDiameter(int32_t(width), int32_t(height)) / 2 * 2;
  const int64_t cx2 = 2 * x + 1;
  const int64_t cy2 = 2 * y + 1;
  if ((r2 <= cx2 && cx2 <= 2 * width - r2) || (r2 <= cy2 && cy2 <= 2 * height - r2)) return true;
  const int64_t ox = cx2 < r2 ? r2 : 2 * width - r2;
  const int64_t oy = cy2 < r2 ? r2 : 2 * height - r2;
  const int64_t dx = cx2 - ox;
  const int64_t dy = cy2 - oy;
  return dx * dx + dy * dy <= r2 * r2;
}

bool insideCapsule(int64_t width, int64_t height, int64_t x, int64_t y) {
  const int64_t radius = std::max<int64_t>(std::max<int64_t>(std::min(width, height), 1) / 2, 1);
  // Lying along the long axis; a square is a circle either way.
  int64_t along = x, across = y, length = width, thickness = height;
  if (width < height) {
    along = y;
    across = x;
    length = height;
    thickness = width;
  }
  if (radius <= along && along <= length - radius) return true;
  const int64_t centre = along < radius ? radius : length - radius;
  const int64_t da = along - centre;
  const int64_t dc = across - thickness / 2;
  return da * da + dc * dc <= radius * radius;
}

bool insideDiamond(int64_t width, int64_t height, int64_t x, int64_t y) {
  // |x - (w-1)/2| / max((w-1)/2, 1) + |y - (h-1)/2| / max((h-1)/2, 1) <= 1, with both
  // fractions doubled and cross-multiplied so that points on the edge are not lost to rounding.
  const int64_t spanX = std::max<int64_t>(width - 1, 2);
  const int64_t spanY = std::max<int64_t>(height - 1, 2);
  const int64_t dx = std::abs(2 * x - (width - 1));
  const int64_t dy = std::abs(2 * y - (height - 1));
  return dx * spanY + dy * spanX <= spanX * spanY;
}

bool insideCutCorners(int64_t width, int64_t height, int64_t x, int64_t y, int64_t cut) {
  const int64_t fromLeft = x;
  const int64_t fromTop = y;
  const int64_t fromRight = width - 1 - x;
  const int64_t fromBottom = height - 1 - y;
  const auto inCorner = [cut](int64_t a, int64_t b) { return a < cut && b < cut && a + b < cut; };
  return !inCorner(fromLeft, fromTop) && !inCorner(fromRight, fromTop) &&
         !inCorner(fromLeft, fromBottom) && !inCorner(fromRight, fromBottom);
}

bool insideHexagon(int64_t width, int64_t height, int64_t x, int64_t y) {
  // s = cut * |y - cyf| / hy, inside when s <= x + 0.5 <= width - s; multiplied out by
  // 2 * hy so that the test is exact.
  const int64_t cut = hexagonCut(int32_t(width), int32_t(height));
  const int64_t span = std::max<int64_t>(height - 1, 2);
  const int64_t s = 2 * cut * std::abs(2 * y - (height - 1));
  const int64_t centre = (2 * x + 1) * span;
  return s <= centre && centre <= 2 * width * span - s;
}

bool insideSlant(int64_t width, int64_t height, int64_t x, int64_t y, bool right) {
  // t = y / (height - 1), or 0 on a single row (where y is 0 anyway).
  const int64_t cut = hexagonCut(int32_t(width), int32_t(height));
  const int64_t span = std::max<int64_t>(height - 1, 1);
  const int64_t top = cut * (span - y);  // cut * (1 - t), times span
  const int64_t bottom = cut * y;        // cut * t, times span
  const int64_t leftCut = right ? top : bottom;
  const int64_t rightCut = right ? bottom : top;
  const int64_t centre = (2 * x + 1) * span;
  return 2 * leftCut <= centre && centre <= 2 * width * span - 2 * rightCut;
}

}  // namespace

int32_t cornerDiameter(int32_t width, int32_t height) {
  const int32_t m = std::max(std::min(width, height), 1);
  const int32_t r = std::clamp(m / 4, 4, 12);
  return std::max(std::min(r * 2, m), 1);
}

int32_t polygonCut(int32_t width, int32_t height, int32_t divisor) {
  const int32_t m = std::max(std::min(width, height), 1);
  const int32_t limit = m < 4 ? 1 : m / 2;
  return std::clamp(m / std::max(divisor, 1), 1, limit);
}

int32_t hexagonCut(int32_t width, int32_t height) {
  const int32_t limit = width / 2 < 2 ? 1 : width / 2;
  return std::clamp(std::min(width / 4, height / 2), 1, limit);
}

std::vector<Point> shapePolygon(ShapeKind kind, const Rect& rect) {
  if (rect.empty()) return {};
  const int32_t x = rect.x;
  const int32_t y = rect.y;
  const int32_t x2 = rect.right();
  const int32_t y2 = rect.bottom();
  const int32_t cx = x + rect.width / 2;
  const int32_t cy = y + rect.height / 2;
  switch (kind) {
    case ShapeKind::Diamond:
      return {{cx, y}, {x2, cy}, {cx, y2}, {x, cy}};
    case ShapeKind::Bevel:
    case ShapeKind::Octagon: {
      const int32_t c = polygonCut(rect.width, rect.height, kind == ShapeKind::Bevel ? 5 : 3);
      return {{x + c, y},   {x2 - c, y}, {x2, y + c}, {x2, y2 - c},
              {x2 - c, y2}, {x + c, y2}, {x, y2 - c}, {x, y + c}};
    }
    case ShapeKind::Hexagon: {
      const int32_t c = hexagonCut(rect.width, rect.height);
      return {{x + c, y}, {x2 - c, y}, {x2, cy}, {x2 - c, y2}, {x + c, y2}, {x, cy}};
    }
    case ShapeKind::SlantRight: {
      const int32_t c = hexagonCut(rect.width, rect.height);
      return {{x + c, y}, {x2, y}, {x2 - c, y2}, {x, y2}};
    }
    case ShapeKind::SlantLeft: {
      const int32_t c = hexagonCut(rect.width, rect.height);
      return {{x, y}, {x2 - c, y}, {x2, y2}, {x + c, y2}};
    }
    default:
      return {};
  }
}

bool isInsideShape(ShapeKind kind, int32_t width, int32_t height, int32_t x, int32_t y) {
  if (!inRange(width, height, x, y)) return false;
  switch (kind) {
    case ShapeKind::RoundedRect:
      return insideRoundedRect(width, height, x, y);
    case ShapeKind::Capsule:
      return insideCapsule(width, height, x, y);
    case ShapeKind::Diamond:
      return insideDiamond(width, height, x, y);
    case ShapeKind::Bevel:
      return insideCutCorners(width, height, x, y, polygonCut(width, height, 5));
    case ShapeKind::Octagon:
      return insideCutCorners(width, height, x, y, polygonCut(width, height, 3));
    case ShapeKind::Hexagon:
      return insideHexagon(width, height, x, y);
    case ShapeKind::SlantRight:
      return insideSlant(width, height, x, y, true);
    case ShapeKind::SlantLeft:
      return insideSlant(width, height, x, y, false);
    case ShapeKind::Rectangle:
    default:
      return true;
  }
}

bool shapeRowSpan(ShapeKind kind, int32_t width, int32_t height, int32_t y, int32_t& first,
                  int32_t& last) {
  if (!inRange(width, height, 0, y)) return false;
  // Scanning in from both ends costs what the corners are wide, not the whole row.
  first = 0;
  while (first < width && !isInsideShape(kind, width, height, first, y))
    ++first;
  if (first >= width) return false;
  last = width - 1;
  while (last > first && !isInsideShape(kind, width, height, last, y))
    --last;
  return true;
}

Rect strokePenRect(const Rect& rect, int32_t width) {
  const int32_t shrink = std::max(width, 1);
  return {rect.x + width / 2, rect.y + width / 2, std::max(rect.width - shrink, 1),
          std::max(rect.height - shrink, 1)};
}

Rect applyInsets(const Rect& rect, const Insets& insets) {
  const int32_t width = std::max(rect.width, 0);
  const int32_t height = std::max(rect.height, 0);
  const int32_t left = std::clamp(insets.left, 0, width);
  const int32_t top = std::clamp(insets.top, 0, height);
  const int32_t right = std::clamp(insets.right, 0, width - left);
  const int32_t bottom = std::clamp(insets.bottom, 0, height - top);
  return {rect.x + left, rect.y + top, width - left - right, height - top - bottom};
}

Rect intersectRects(const Rect& a, const Rect& b) {
  if (a.empty() || b.empty()) return {};
  const int64_t left = std::max<int64_t>(a.x, b.x);
  const int64_t top = std::max<int64_t>(a.y, b.y);
  const int64_t right = std::min<int64_t>(int64_t(a.x) + a.width, int64_t(b.x) + b.width);
  const int64_t bottom = std::min<int64_t>(int64_t(a.y) + a.height, int64_t(b.y) + b.height);
  if (left >= right || top >= bottom) return {};
  return {int32_t(left), int32_t(top), int32_t(right - left), int32_t(bottom - top)};
}

}  // namespace tessel
