// Whether an interactive tooltip stays open while the pointer travels from its owner towards
// it: near the tooltip, or inside the triangle from the pointer's last position to the facing
// edge of the tooltip grown by 10 pixels, it stays; outside, it lingers 220 ms while the pointer
// is on that grown rectangle or 320 ms while it still comes closer, then closes. A pointer that
// has entered the tooltip pins it; a pinned tooltip closes after the grace time outside.
#pragma once

#include <cstdint>

#include "tessel/style/geometry.h"

namespace tessel {

struct TooltipPath {
  Rect tooltip;                 // where the tooltip is shown
  Point last;                   // the pointer's last position
  uint64_t lastSafeMs = 0;      // the last moment the pointer was on its way
  uint64_t leftPinnedAtMs = 0;  // when a pinned tooltip was left (0: not left)
  bool pinned = false;
};

// Starts following from the owner: the pointer at `from`, now.
TooltipPath beginTooltipPath(const Rect& tooltip, Point from, uint64_t nowMs);

// The pointer is at `point` (outside the owner) at `nowMs`: true to keep the tooltip open.
// `moved` is false for a check between moves (the timer): a resting pointer is on its way no
// longer, so only the lingering times count then.
bool followTooltipPath(TooltipPath& path, Point point, uint64_t nowMs, int32_t graceMs,
                       bool moved = true);

// Distance from a point to a rectangle (0 inside), and the safe triangle's test.
double distanceToRect(const Rect& rect, Point point);
bool insideSafeTriangle(const Rect& tooltip, Point from, Point point);

}  // namespace tessel
