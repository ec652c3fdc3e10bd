// The game's numeric conventions: flags, rounding, random numbers and the
// 16/32-bit assignments that are skipped when the value does not fit.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace lf {

// A flag is a 16-bit integer: True is -1, False is 0. Some writers set 1, so
// "set" (non-zero) and "= True" are different tests.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;

constexpr bool IsSet(Flag f) { return f != 0; }

// Round to the nearest integer, ties to even: CInt(2.5) = 2, CInt(-2.5) = -2.
inline double CIntReal(double x) { return std::nearbyint(x); }
// Floor: Int(-0.5) = -1.
inline double Int(double x) { return std::floor(x); }
// What Int leaves: Frac(-0.25) = 0.75.
inline double Frac(double x) { return x - std::floor(x); }

// A rounding conversion into an integer type. Returns false, leaving the
// target untouched, when the rounded value does not fit: the statement that
// would have overflowed is skipped.
template <class I>
bool Assign(I& target, double value) {
  static_assert(std::is_integral_v<I>);
  if (!std::isfinite(value)) return false;
  const double r = std::nearbyint(value);
  // The bounds as doubles: the lowest is exact, the highest is not for 64
  // bits (it rounds up to 2^63 or 2^64), so the first value past it is the
  // limit instead.
  if (r < static_cast<double>(std::numeric_limits<I>::min()) ||
      r >= std::ldexp(1.0, std::numeric_limits<I>::digits))
    return false;
  target = static_cast<I>(r);
  return true;
}

// CInt into a 32-bit integer; out-of-range values saturate (callers that
// must skip on overflow use Assign).
inline std::int32_t CInt(double x) {
  const double r = std::nearbyint(x);
  if (!(r >= -2147483648.0)) return std::numeric_limits<std::int32_t>::min();
  if (r > 2147483647.0) return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(r);
}

// Money and other reals are shown through Int(), as text without decimals.
std::string IntText(double x);

// The game's one random generator, held in the record so that a seed gives
// the same game. xorshift-style 64-bit state, output uniform in [0, 1).
struct RandomState {
  std::uint64_t State = 0x9E3779B97F4A7C15ull;
};
void SeedRandom(RandomState& r, std::uint64_t seed);
double NextRandom(RandomState& r);

}  // namespace lf
