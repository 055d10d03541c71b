// What a window needs of the system beneath it, as operations on one top-level surface with a
// client area. The Windows build implements them on a window handle; tests record them.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"

namespace tessel {

class WindowPlatform {
 public:
  virtual ~WindowPlatform() = default;
  // Repaint requests without erasing, in client coordinates.
  virtual void invalidate(const Rect& rect) = 0;
  virtual void invalidateAll() = 0;
  virtual void setCapture() = 0;
  virtual void releaseCapture() = 0;
  // Asks for one notice when the pointer leaves the client area.
  virtual void trackPointerLeave() = 0;
  // A monotonic clock in milliseconds.
  virtual uint64_t tickMs() const = 0;
  // Whether a mouse button is held right now.
  virtual bool buttonHeld() const = 0;
  virtual void postClose() = 0;
  // Destroys the window now (a dialog that ends).
  virtual void destroy() {}
  // Hides the window (a popup closing on deactivation goes at once).
  virtual void hide() {}
  // The frame changed (a skin with or without a custom frame): the system recomputes it.
  virtual void frameChanged() {}
  // The window's shape: the union of `rects` in client coordinates, or no region at all.
  virtual void setRegion(const std::vector<Rect>& rects, bool shaped) = 0;
};

}  // namespace tessel
