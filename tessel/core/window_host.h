// What a control tree needs of the window it lives in: invalidation, the window's region, its
// client size and the roots under which controls are found. The window host implements it;
// trees without a window simply skip these calls.
#pragma once

#include <vector>

#include "tessel/style/geometry.h"

namespace tessel {

class Control;

class WindowHost {
 public:
  virtual ~WindowHost() = default;
  // Repaint without erasing; the rectangle is in client coordinates.
  virtual void invalidateRect(const Rect& rect) = 0;
  virtual void invalidateAll() = 0;
  // The region follows the skin's shapes of the tree; recomputed after geometry changes.
  virtual void updateRegion() = 0;
  virtual Size clientSize() const = 0;
  // The root of the tree, and the controls of a showing tooltip, for finding a control's place.
  virtual Control* rootControl() = 0;
  virtual std::vector<Control*> tooltipControls() { return {}; }
  // A control's tooltip style lookups, focus and capture arrive with the window itself.
};

}  // namespace tessel
