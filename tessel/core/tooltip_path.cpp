#include "tessel/core/tooltip_path.h"

#include <algorithm>
#include <cmath>

namespace tessel {

namespace {

constexpr double kNear = 5;
constexpr int32_t kGrow = 10;
constexpr uint64_t kLingerOnRect = 220;
constexpr uint64_t kLingerCloser = 320;

double cross(Point o, Point a, Point b) {
  return double(a.x - o.x) * (b.y - o.y) - double(a.y - o.y) * (b.x - o.x);
}

bool insideTriangle(Point p, Point a, Point b, Point c) {
  const double d1 = cross(a, b, p), d2 = cross(b, c, p), d3 = cross(c, a, p);
  const bool negative = d1 < 0 || d2 < 0 || d3 < 0;
  const bool positive = d1 > 0 || d2 > 0 || d3 > 0;
  return !(negative && positive);
}

}  // namespace

double distanceToRect(const Rect& r, Point p) {
  const double dx = std::max({double(r.x) - p.x, 0.0, double(p.x) - (r.right() - 1)});
  const double dy = std::max({double(r.y) - p.y, 0.0, double(p.y) - (r.bottom() - 1)});
  return std::sqrt(dx * dx + dy * dy);
}

bool insideSafeTriangle(const Rect& tooltip, Point from, Point point) {
  const Rect grown = inflateRect(tooltip, kGrow);
  // The edge that faces the starting point: along the axis on which it lies farthest out.
  const int32_t outLeft = grown.x - from.x, outRight = from.x - (grown.right() - 1);
  const int32_t outTop = grown.y - from.y, outBottom = from.y - (grown.bottom() - 1);
  const int32_t most = std::max({outLeft, outRight, outTop, outBottom});
  // From on or inside the grown rectangle there is no way to point along: only nearness counts.
  if (most <= 0) return false;
  Point a, b;
  if (most == outTop) {
    a = {grown.x, grown.y};
    b = {grown.right() - 1, grown.y};
  } else if (most == outBottom) {
    a = {grown.x, grown.bottom() - 1};
    b = {grown.right() - 1, grown.bottom() - 1};
  } else if (most == outLeft) {
    a = {grown.x, grown.y};
    b = {grown.x, grown.bottom() - 1};
  } else {
    a = {grown.right() - 1, grown.y};
    b = {grown.right() - 1, grown.bottom() - 1};
  }
  return insideTriangle(point, from, a, b);
}

TooltipPath beginTooltipPath(const Rect& tooltip, Point from, uint64_t nowMs) {
  TooltipPath path;
  path.tooltip = tooltip;
  path.last = from;
  path.lastSafeMs = nowMs;
  return path;
}

bool followTooltipPath(TooltipPath& path, Point point, uint64_t nowMs, int32_t graceMs,
                       bool moved) {
  if (path.tooltip.contains(point.x, point.y)) {
    path.pinned = true;
    path.leftPinnedAtMs = 0;
    path.last = point;
    path.lastSafeMs = nowMs;
    return true;
  }
  if (path.pinned) {
    if (path.leftPinnedAtMs == 0) path.leftPinnedAtMs = nowMs;
    path.last = point;
    return nowMs - path.leftPinnedAtMs < uint64_t(std::max(graceMs, 0));
  }
  const double before = distanceToRect(path.tooltip, path.last);
  const double now = distanceToRect(path.tooltip, point);
  const bool safe = now <= kNear || (moved && insideSafeTriangle(path.tooltip, path.last, point));
  path.last = point;
  if (safe) {
    path.lastSafeMs = nowMs;
    return true;
  }
  const uint64_t since = nowMs - path.lastSafeMs;
  if (inflateRect(path.tooltip, kGrow).contains(point.x, point.y) && since <= kLingerOnRect)
    return true;
  return now < before && since <= kLingerCloser;
}

}  // namespace tessel
