// The integer noise behind every grain of the procedural materials, and the three-octave fractal
// noise built on it. Both are pure functions of their arguments, so a layer computed twice (or
// by another path) comes out the same.
#pragma once

#include <cstdint>

namespace tessel {

// Words xored into the seed by each use of the hash, so that the layers don't correlate: four
// letters as big-endian ASCII.
constexpr uint32_t kOverlayGrainTag = 0x6D617475;  // "matu"
constexpr uint32_t kReliefTag = 0x72656C66;        // "relf"
constexpr uint32_t kStrataTag = 0x6C617972;        // "layr"
constexpr uint32_t kMicroTag = 0x6D696372;         // "micr"
constexpr uint32_t kGemGlintTag = 0x67656D73;      // "gems"
constexpr uint32_t kFractureTag = 0x6F627369;      // "obsi"
constexpr uint32_t kPitsTag = 0x70697473;          // "pits"
constexpr uint32_t kGraniteATag = 0x6772616E;      // "gran"
constexpr uint32_t kGraniteBTag = 0x6D696E65;      // "mine"
constexpr uint32_t kMarbleVeinsTag = 0x6D617262;   // "marb"
constexpr uint32_t kMarbleCloudsTag = 0x636C6F75;  // "clou"
constexpr uint32_t kFinishTag = 0x66696E69;        // "fini"

// A well-mixed 32-bit value for one lattice cell. Coordinates are taken as unsigned, so a
// negative one hashes as its two's complement.
constexpr uint32_t hashCell(uint32_t seed, uint32_t x, uint32_t y) {
  const uint32_t a = seed ^ (x + 0x9E3779B9u + (seed << 6) + (seed >> 2));
  uint32_t b = a ^ (y + 0x85EBCA6Bu + (a << 6) + (a >> 2));
  b ^= b >> 16;
  b *= 0x7FEB352Du;
  b ^= b >> 15;
  b *= 0x846CA68Bu;
  b ^= b >> 16;
  return b;
}

// Three octaves of value noise over the low byte of hashCell, smoothstep-interpolated, from 0
// to 1. Each octave doubles the detail roughly (frequency * 2.13), weighs 0.48 of the one
// before, shifts by (3.7, 5.1) and changes the seed.
double fractalNoise(double x, double y, double frequency, uint32_t seed);

// The seed of octave `octave` + 1 from that of `octave`.
constexpr uint32_t nextOctaveSeed(uint32_t seed, int octave) {
  return seed ^ (uint32_t(octave) * 977u + 0x9E3779B9u);
}

// The cell of a lattice coordinate: floor, taken modulo 2^32 like every hash coordinate.
uint32_t latticeCell(double floored);

}  // namespace tessel
