#include "shell/numeric.h"

#include <cstdio>

namespace lf {

std::string IntText(double x) {
  char buf[48];
  std::snprintf(buf, sizeof buf, "%.0f", Int(x));
  return buf;
}

void SeedRandom(RandomState& r, std::uint64_t seed) {
  // splitmix64 scrambles the seed so that nearby seeds give unrelated games.
  std::uint64_t z = seed + 0x9E3779B97F4A7C15ull;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  z ^= z >> 31;
  r.State = z ? z : 0x9E3779B97F4A7C15ull;
}

double NextRandom(RandomState& r) {
  // xorshift64*; the top 53 bits make a double in [0, 1).
  std::uint64_t x = r.State;
  x ^= x >> 12;
  x ^= x << 25;
  x ^= x >> 27;
  r.State = x;
  const std::uint64_t out = x * 0x2545F4914F6CDD1Dull;
  return static_cast<double>(out >> 11) * (1.0 / 9007199254740992.0);
}

}  // namespace lf
