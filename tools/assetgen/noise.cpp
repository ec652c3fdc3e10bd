#include "noise.h"

#include <cmath>

namespace assetgen {

uint32_t Hash(uint32_t a, uint32_t b, uint32_t c) {
  uint32_t h = a * 0x27d4eb2du ^ (b + 0x165667b1u) * 0x9e3779b1u ^ (c + 0x85ebca77u) * 0xc2b2ae3du;
  h ^= h >> 15;
  h *= 0x2c1b3c6du;
  h ^= h >> 12;
  h *= 0x297a2d39u;
  h ^= h >> 15;
  return h;
}

uint32_t HashString(const char* s) {
  uint32_t h = 2166136261u;
  for (; *s; ++s) h = (h ^ uint8_t(*s)) * 16777619u;
  return h;
}

namespace {

double Lattice(int x, int y, uint32_t seed) { return Hash(uint32_t(x), uint32_t(y), seed) / 4294967295.0; }
double Smooth(double t) { return t * t * (3 - 2 * t); }

double ValueNoiseWrap(double x, double y, int period, uint32_t seed) {
  const double fx = std::floor(x), fy = std::floor(y);
  int x0 = int(fx), y0 = int(fy);
  const double tx = Smooth(x - fx), ty = Smooth(y - fy);
  int x1 = x0 + 1;
  if (period > 0) {
    x0 = ((x0 % period) + period) % period;
    x1 = ((x1 % period) + period) % period;
  }
  const double a = Lattice(x0, y0, seed), b = Lattice(x1, y0, seed);
  const double c = Lattice(x0, y0 + 1, seed), d = Lattice(x1, y0 + 1, seed);
  return (a + (b - a) * tx) + ((c + (d - c) * tx) - (a + (b - a) * tx)) * ty;
}

}  // namespace

double ValueNoise(double x, double y, uint32_t seed) { return ValueNoiseWrap(x, y, 0, seed); }

double Fbm(double x, double y, uint32_t seed, int octaves) {
  double sum = 0, amp = 0.5, norm = 0;
  for (int i = 0; i < octaves; ++i) {
    sum += amp * ValueNoise(x, y, seed + uint32_t(i) * 1013u);
    norm += amp;
    x *= 2.03;
    y *= 2.03;
    amp *= 0.5;
  }
  return sum / norm;
}

double FbmWrapX(double x, double y, int period, uint32_t seed, int octaves) {
  double sum = 0, amp = 0.5, norm = 0;
  for (int i = 0; i < octaves; ++i) {
    sum += amp * ValueNoiseWrap(x, y, period, seed + uint32_t(i) * 1013u);
    norm += amp;
    x *= 2;
    y *= 2;
    period *= 2;
    amp *= 0.5;
  }
  return sum / norm;
}

}  // namespace assetgen
