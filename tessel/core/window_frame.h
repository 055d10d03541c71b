// The geometry a top-level window decides for itself: which part of a custom frame the pointer
// is on, where a window goes on its monitor, and how minimum sizes hold while the user drags an
// edge or the system asks for limits. Plain values in and out; the platform supplies monitors
// and turns client sizes into window sizes.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"

namespace tessel {

// Hit-test results, with the platform's numbers.
enum FrameHit : int32_t {
  kHitClient = 1,
  kHitLeft = 10,
  kHitRight = 11,
  kHitTop = 12,
  kHitTopLeft = 13,
  kHitTopRight = 14,
  kHitBottom = 15,
  kHitBottomLeft = 16,
  kHitBottomRight = 17,
};

// The resize border of a custom frame: `thickness` pixels inside each client edge, corners
// first. Without a custom frame, with a thickness below 1, or when zoomed, all is client.
int32_t frameHitTest(Point client, Size clientSize, int32_t thickness, bool customFrame,
                     bool zoomed);

// A window rectangle moved (not resized) to lie inside `workArea`; one larger than the work area
// keeps its size and is aligned to the work area's top-left corner.
Rect keepInsideWorkArea(const Rect& window, const Rect& workArea);

// A window of `size` centred on `workArea`, then kept inside it.
Rect centreOnWorkArea(Size size, const Rect& workArea);

// A dialog's window of `size` centred on its owner's rectangle (on the work area when there is
// no owner), then kept inside the work area.
Rect centreOnOwner(Size size, const Rect* owner, const Rect& workArea);

// The client minimum that holds: the configured one, raised to the content's demand when
// `automatic`; zero in each direction where both are below 1.
Size effectiveMinimumClientSize(Size configured, Size content, bool automatic);

// The edges of a sizing drag, with the platform's numbers.
enum SizingEdge : int32_t {
  kSizeLeft = 1,
  kSizeRight = 2,
  kSizeTop = 3,
  kSizeTopLeft = 4,
  kSizeTopRight = 5,
  kSizeBottom = 6,
  kSizeBottomLeft = 7,
  kSizeBottomRight = 8,
};

// A proposed window rectangle grown back to `minimum` (already capped by the work area and at
// least 1): the edge being dragged moves, the opposite one stays.
Rect holdMinimumWhileSizing(const Rect& proposed, int32_t edge, Size minimum);

// What the system is told of a window's size limits on its monitor.
struct WindowLimits {
  Size maxSize;       // the maximised size
  Point maxPosition;  // the maximised position, relative to the monitor
  Size minTrackSize;  // the smallest size a drag can reach
  Size maxTrackSize;  // the largest
};

// `current` holds the system's defaults; `minimumWindow` is the effective minimum as a window
// size (zero when there is none).
WindowLimits windowLimits(const WindowLimits& current, const Rect& monitor, const Rect& workArea,
                          Size minimumWindow);

}  // namespace tessel
