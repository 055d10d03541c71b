#include "tessel/paint/material_noise.h"

#include <cmath>
#include <cstdint>

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Expected values worked out step by step on 32-bit unsigned arithmetic, outside this code base.
struct HashCase {
  const char* what;
  uint32_t seed;
  int32_t x, y;
  uint32_t expected;
};

const HashCase kHashCases[] = {
    {"all zero", 0, 0, 0, 0x79370D7Fu},
    {"golden-ratio seed", 0x9E3779B9u, 1, 2, 0x9395DB00u},
    {"negative coordinates", 12345, -7, -300, 0xA355B8DCu},
    {"minus one both ways", 0xDEADBEEFu, -1, -1, 0x0FFEA9FAu},
    {"noise seed, negative cell", 0x9E3779B9u, -3, -2, 0x3CE36D6Eu},
    {"overlay grain tag, negative cell", 0x9E3779B9u ^ kOverlayGrainTag, -3, -2, 0x0D45A4F1u},
};

TEST(MaterialNoise, HashCellMatchesValuesWorkedOutByHand) {
  for (const HashCase& c : kHashCases)
    EXPECT_EQ(hashCell(c.seed, uint32_t(c.x), uint32_t(c.y)), c.expected) << c.what;
}

TEST(MaterialNoise, NegativeCoordinatesHashAsTheirTwosComplement) {
  EXPECT_EQ(hashCell(77, uint32_t(-1), uint32_t(-2)), hashCell(77, 0xFFFFFFFFu, 0xFFFFFFFEu));
  EXPECT_NE(hashCell(77, uint32_t(-1), 0), hashCell(77, 1, 0));
}

TEST(MaterialNoise, TagsAreTheirFourLettersAsBigEndianWords) {
  const auto word = [](const char* s) {
    return uint32_t(uint8_t(s[0])) << 24 | uint32_t(uint8_t(s[1])) << 16 |
           uint32_t(uint8_t(s[2])) << 8 | uint32_t(uint8_t(s[3]));
  };
  EXPECT_EQ(kOverlayGrainTag, word("matu"));
  EXPECT_EQ(kReliefTag, word("relf"));
  EXPECT_EQ(kStrataTag, word("layr"));
  EXPECT_EQ(kMicroTag, word("micr"));
  EXPECT_EQ(kGemGlintTag, word("gems"));
  EXPECT_EQ(kFractureTag, word("obsi"));
  EXPECT_EQ(kPitsTag, word("pits"));
  EXPECT_EQ(kGraniteATag, word("gran"));
  EXPECT_EQ(kGraniteBTag, word("mine"));
  EXPECT_EQ(kMarbleVeinsTag, word("marb"));
  EXPECT_EQ(kMarbleCloudsTag, word("clou"));
  EXPECT_EQ(kFinishTag, word("fini"));
}

// Worked out with an independent transcription (interpolating along x first).
struct NoiseCase {
  double x, y, frequency;
  uint32_t seed;
  double expected;
};

const NoiseCase kNoiseCases[] = {
    {0.0, 0.0, 1.0, 0, 0.4212738018973472},
    {10.5, -3.25, 0.1, 0x9E3779B9u, 0.5354616849304055},
    {123.0, 45.0, 1 / 12.96, 0x9E3779B9u ^ kGraniteATag, 0.5496350673787668},
    {-17.2, 9.9, 4.2, 7, 0.7785145517651699},
};

TEST(MaterialNoise, FractalNoiseMatchesIndependentValues) {
  for (const NoiseCase& c : kNoiseCases)
    EXPECT_NEAR(fractalNoise(c.x, c.y, c.frequency, c.seed), c.expected, 1e-12)
        << c.x << ", " << c.y;
}

TEST(MaterialNoise, FractalNoiseStaysWithinZeroAndOneAndRepeats) {
  double low = 1, high = 0;
  for (int i = 0; i < 4000; ++i) {
    const double x = (i % 97) * 3.31 - 150, y = (i / 97) * 2.17 - 40;
    const double n = fractalNoise(x, y, 0.37, 0xC0FFEEu);
    ASSERT_GE(n, 0.0);
    ASSERT_LE(n, 1.0);
    ASSERT_EQ(n, fractalNoise(x, y, 0.37, 0xC0FFEEu));
    low = std::min(low, n);
    high = std::max(high, n);
  }
  // It is noise, not a constant: the values spread over much of the range.
  EXPECT_LT(low, 0.3);
  EXPECT_GT(high, 0.7);
}

TEST(MaterialNoise, FractalNoiseIsContinuousAndSeedDependent) {
  int differing = 0;
  for (int i = 0; i < 200; ++i) {
    const double x = i * 0.731, y = i * 0.297;
    // Smoothstep interpolation: a tiny step moves the value a tiny amount.
    EXPECT_NEAR(fractalNoise(x, y, 0.5, 9), fractalNoise(x + 1e-6, y, 0.5, 9), 1e-4);
    if (fractalNoise(x, y, 0.5, 9) != fractalNoise(x, y, 0.5, 10)) ++differing;
  }
  EXPECT_GT(differing, 190);
}

TEST(MaterialNoise, LatticeCellsWrapModulo32Bits) {
  EXPECT_EQ(latticeCell(-1.0), 0xFFFFFFFFu);
  EXPECT_EQ(latticeCell(4294967296.0 + 5), 5u);
  EXPECT_EQ(latticeCell(std::nan("")), 0u);
}

}  // namespace
}  // namespace tessel
