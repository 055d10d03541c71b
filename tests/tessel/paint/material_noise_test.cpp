#include "tessel/paint/material_noise.h"

#include <cmath>
#include <cstdint>

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Expected values worked out step by step on 32-bit unsigned arithmetic, outside this code base.
TEST(MaterialNoise, HashCellMatchesValuesWorkedOutByHand) {
  const struct {
    uint32_t seed;
    int32_t x, y;
    uint32_t expected;
  } kCases[] = {
      {0, 0, 0, 0x79370D7Fu},
      {0x9E3779B9u, 1, 2, 0x9395DB00u},
      {12345, -7, -300, 0xA355B8DCu},
      {0xDEADBEEFu, -1, -1, 0x0FFEA9FAu},
      {0x9E3779B9u ^ kOverlayGrainTag, -3, -2, 0x0D45A4F1u},
  };
  for (const auto& c : kCases)
    EXPECT_EQ(hashCell(c.seed, uint32_t(c.x), uint32_t(c.y)), c.expected) << c.seed;
  EXPECT_EQ(latticeCell(-1.0), 0xFFFFFFFFu);
  EXPECT_EQ(latticeCell(4294967296.0 + 5), 5u);
  EXPECT_EQ(latticeCell(std::nan("")), 0u);
}

// Worked out with an independent transcription (interpolating along x first).
TEST(MaterialNoise, FractalNoiseMatchesIndependentValues) {
  const struct {
    double x, y, frequency;
    uint32_t seed;
    double expected;
  } kCases[] = {
      {0.0, 0.0, 1.0, 0, 0.4212738018973472},
      {10.5, -3.25, 0.1, 0x9E3779B9u, 0.5354616849304055},
      {123.0, 45.0, 1 / 12.96, 0x9E3779B9u ^ kGraniteATag, 0.5496350673787668},
      {-17.2, 9.9, 4.2, 7, 0.7785145517651699},
  };
  for (const auto& c : kCases)
    EXPECT_NEAR(fractalNoise(c.x, c.y, c.frequency, c.seed), c.expected, 1e-12) << c.x;
}

// Within 0 and 1, spread over much of that, continuous (smoothstep: a tiny step moves the value
// a tiny amount) and dependent on the seed.
TEST(MaterialNoise, FractalNoiseIsBoundedContinuousAndSeedDependent) {
  double low = 1, high = 0;
  int sameUnderOtherSeed = 0;
  for (int i = 0; i < 4000; ++i) {
    const double x = (i % 97) * 3.31 - 150, y = (i / 97) * 2.17 - 40;
    const double n = fractalNoise(x, y, 0.37, 0xC0FFEEu);
    ASSERT_GE(n, 0.0);
    ASSERT_LE(n, 1.0);
    ASSERT_NEAR(n, fractalNoise(x + 1e-6, y, 0.37, 0xC0FFEEu), 1e-4);
    low = std::min(low, n);
    high = std::max(high, n);
    sameUnderOtherSeed += n == fractalNoise(x, y, 0.37, 0xC0FFEFu);
  }
  EXPECT_LT(low, 0.3);
  EXPECT_GT(high, 0.7);
  EXPECT_LT(sameUnderOtherSeed, 40);
}

}  // namespace
}  // namespace tessel
