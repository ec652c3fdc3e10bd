// Seeded value noise and small deterministic random numbers: the same
// seed gives the same picture on every run and machine.
#pragma once

#include <cstdint>

namespace assetgen {

uint32_t Hash(uint32_t a, uint32_t b = 0, uint32_t c = 0);
uint32_t HashString(const char* s);

// Smooth noise in 0..1 at (x, y), lattice spacing 1.
double ValueNoise(double x, double y, uint32_t seed);
// Sum of octaves, each twice the frequency and half the amplitude; 0..1.
double Fbm(double x, double y, uint32_t seed, int octaves);
// Noise that wraps with period px along x (for rotating surfaces).
double FbmWrapX(double x, double y, int period, uint32_t seed, int octaves);

// A small generator for placing things.
class Rng {
 public:
  explicit Rng(uint32_t seed) : state_(seed * 2654435761u + 0x9e3779b9u) {}
  uint32_t Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_;
  }
  double Unit() { return (Next() >> 8) / 16777216.0; }         // [0,1)
  double Range(double lo, double hi) { return lo + (hi - lo) * Unit(); }
  int Int(int n) { return int(Unit() * n); }                     // 0..n-1

 private:
  uint32_t state_;
};

}  // namespace assetgen
