#include "tessel/paint/material_noise.h"

#include <algorithm>
#include <cmath>

namespace tessel {

uint32_t latticeCell(double floored) {
  // Through 64 bits, so that cells beyond the 32-bit range wrap instead of being undefined.
  if (!(std::abs(floored) < 9.0e18)) return 0;
  return uint32_t(uint64_t(int64_t(floored)));
}

double fractalNoise(double x, double y, double frequency, uint32_t seed) {
  double value = 0.0;
  double total = 0.0;
  double amplitude = 0.56;
  uint32_t s = seed;
  for (int octave = 0; octave < 3; ++octave) {
    const double fx = x * frequency;
    const double fy = y * frequency;
    const double ix = std::floor(fx);
    const double iy = std::floor(fy);
    const uint32_t cx = latticeCell(ix);
    const uint32_t cy = latticeCell(iy);
    const double c00 = (hashCell(s, cx, cy) & 0xFF) / 255.0;
    const double c10 = (hashCell(s, cx + 1, cy) & 0xFF) / 255.0;
    const double c01 = (hashCell(s, cx, cy + 1) & 0xFF) / 255.0;
    const double c11 = (hashCell(s, cx + 1, cy + 1) & 0xFF) / 255.0;
    const double dx = fx - ix;
    const double dy = fy - iy;
    const double u = (3 - 2 * dx) * dx * dx;
    const double v = (3 - 2 * dy) * dy * dy;
    // Down each lattice column first, then across: a row of pixels shares the first step.
    const double left = c00 + (c01 - c00) * v;
    const double right = c10 + (c11 - c10) * v;
    value += (left + (right - left) * u) * amplitude;
    total += amplitude;
    amplitude *= 0.48;
    frequency *= 2.13;
    x += 3.7;
    y += 5.1;
    s = nextOctaveSeed(s, octave);
  }
  return std::clamp(value / total, 0.0, 1.0);
}

}  // namespace tessel
