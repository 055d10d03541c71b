#include "tessel/core/window_frame.h"

#include <algorithm>

namespace tessel {

int32_t frameHitTest(Point p, Size client, int32_t thickness, bool customFrame, bool zoomed) {
  if (!customFrame || thickness < 1 || zoomed) return kHitClient;
  const int32_t t = std::max(thickness, 1);
  const bool left = p.x >= 0 && p.x < t;
  const bool right = p.x >= client.width - t && p.x < client.width;
  const bool top = p.y >= 0 && p.y < t;
  const bool bottom = p.y >= client.height - t && p.y < client.height;
  if (top && left) return kHitTopLeft;
  if (top && right) return kHitTopRight;
  if (bottom && left) return kHitBottomLeft;
  if (bottom && right) return kHitBottomRight;
  if (top) return kHitTop;
  if (bottom) return kHitBottom;
  if (left) return kHitLeft;
  if (right) return kHitRight;
  return kHitClient;
}

Rect keepInsideWorkArea(const Rect& window, const Rect& work) {
  Rect r = window;
  if (r.right() > work.right()) r.x = work.right() - r.width;
  if (r.bottom() > work.bottom()) r.y = work.bottom() - r.height;
  r.x = std::max(r.x, work.x);
  r.y = std::max(r.y, work.y);
  return r;
}

Rect centreOnWorkArea(Size size, const Rect& work) {
  const Rect centred{work.x + (work.width - size.width) / 2,
                     work.y + (work.height - size.height) / 2, size.width, size.height};
  return keepInsideWorkArea(centred, work);
}

Rect centreOnOwner(Size size, const Rect* owner, const Rect& work) {
  const Rect& around = owner != nullptr ? *owner : work;
  const Rect centred{around.x + (around.width - size.width) / 2,
                     around.y + (around.height - size.height) / 2, size.width, size.height};
  return keepInsideWorkArea(centred, work);
}

Size effectiveMinimumClientSize(Size configured, Size content, bool automatic) {
  Size minimum = configured;
  if (automatic) {
    minimum.width = std::max(minimum.width, content.width);
    minimum.height = std::max(minimum.height, content.height);
  }
  if (minimum.width < 1) minimum.width = 0;
  if (minimum.height < 1) minimum.height = 0;
  return minimum;
}

Rect holdMinimumWhileSizing(const Rect& proposed, int32_t edge, Size minimum) {
  Rect r = proposed;
  if (r.width < minimum.width) {
    const bool leftSide = edge == kSizeLeft || edge == kSizeTopLeft || edge == kSizeBottomLeft;
    if (leftSide) r.x = r.right() - minimum.width;
    r.width = minimum.width;
  }
  if (r.height < minimum.height) {
    const bool topSide = edge == kSizeTop || edge == kSizeTopLeft || edge == kSizeTopRight;
    if (topSide) r.y = r.bottom() - minimum.height;
    r.height = minimum.height;
  }
  return r;
}

WindowLimits windowLimits(const WindowLimits& current, const Rect& monitor, const Rect& work,
                          Size minimumWindow) {
  WindowLimits limits = current;
  limits.maxSize = Size{std::max(work.width, 1), std::max(work.height, 1)};
  limits.maxPosition = Point{work.x - monitor.x, work.y - monitor.y};
  limits.maxTrackSize.width = std::max(limits.maxTrackSize.width, work.width);
  limits.maxTrackSize.height = std::max(limits.maxTrackSize.height, work.height);
  if (minimumWindow.width > 0)
    limits.minTrackSize.width =
        std::max(limits.minTrackSize.width, std::min(minimumWindow.width, std::max(work.width, 1)));
  if (minimumWindow.height > 0)
    limits.minTrackSize.height = std::max(limits.minTrackSize.height,
                                          std::min(minimumWindow.height, std::max(work.height, 1)));
  return limits;
}

}  // namespace tessel
