// A surface's usable area as a stack of rectangles that lie wholly inside its outline: the
// bands that shaped containers lay children into. A bitmap or mask outline gives its alpha
// bands; a vector shape gives, per band of rows, the columns every row of it covers.
#pragma once

#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// The bands of `area` (normally `rect` less a role's insets) inside the outline of `style`
// painted over `rect`, from the top, in `rect`'s coordinates. Bands of up to the style's
// bandHeight rows; a band equal in columns to the one above joins it.
std::vector<Rect> surfaceBands(const SurfaceStyle& style, const Rect& rect, const Rect& area);

}  // namespace tessel
