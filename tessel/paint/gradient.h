// Where a pixel lies along a surface's gradient: the axis value of a direction and the
// position of a gradient kind, both from 0 to 1 over the sample extent.
#pragma once

#include <cstdint>

namespace tessel {

// The axis value a of `direction` (0..7) at normalized coordinates; unknown directions act
// as 0 (top to bottom).
double gradientAxis(int32_t direction, double tx, double ty);

// The gradient position of `kind` (linear, reflected, radial, diamond, conic) and `direction`
// for pixel (x, y) of a width x height extent, clamped to 0..1.
double gradientPosition(int32_t kind, int32_t direction, double x, double y, double width,
                        double height);

}  // namespace tessel
