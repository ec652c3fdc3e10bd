// Small synthesis kit for the generated sounds and music: a seeded noise
// source, band-limited oscillators, envelopes and simple filters. Every
// result depends only on its inputs, so the data set is the same each run.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

namespace assetgen {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2 * kPi;

using Samples = std::vector<float>;

// Seeded white noise in -1..1.
struct Noise {
  std::uint32_t state = 0x9E3779B9u;
  explicit Noise(std::uint32_t seed = 1) : state(seed * 2654435761u + 1u) {}
  float Next() {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return static_cast<float>(state) / 2147483648.0f - 1.0f;
  }
  // Uniform in 0..1.
  double Unit() { return (Next() + 1.0) * 0.5; }
};

inline double MidiHz(double note) { return 440.0 * std::pow(2.0, (note - 69.0) / 12.0); }

// Corrects a step in a wave at phase t (0..1) for an increment dt.
inline double PolyBlep(double t, double dt) {
  if (t < dt) {
    t /= dt;
    return t + t - t * t - 1.0;
  }
  if (t > 1.0 - dt) {
    t = (t - 1.0) / dt;
    return t * t + t + t + 1.0;
  }
  return 0.0;
}

// An oscillator by phase; Saw and Square are band-limited.
struct Osc {
  double phase = 0;
  double Step(double hz, double rate) {
    const double dt = hz / rate;
    const double p = phase;
    phase += dt;
    phase -= std::floor(phase);
    return p;
  }
  double Sine(double hz, double rate) { return std::sin(kTwoPi * Step(hz, rate)); }
  double Saw(double hz, double rate) {
    const double dt = hz / rate;
    const double p = Step(hz, rate);
    return 2.0 * p - 1.0 - PolyBlep(p, dt);
  }
  double Square(double hz, double rate, double width = 0.5) {
    const double dt = hz / rate;
    const double p = Step(hz, rate);
    double v = p < width ? 1.0 : -1.0;
    v += PolyBlep(p, dt);
    double q = p - width;
    q -= std::floor(q);
    v -= PolyBlep(q, dt);
    return v;
  }
  double Triangle(double hz, double rate) {
    const double p = Step(hz, rate);
    return 1.0 - 4.0 * std::fabs(p - 0.5);
  }
};

// Attack, decay to a sustain level, release after `hold` seconds.
inline double Adsr(double t, double a, double d, double s, double r, double hold) {
  double level;
  if (t < a) {
    level = t / a;
  } else if (t < a + d) {
    level = 1.0 - (1.0 - s) * (t - a) / d;
  } else {
    level = s;
  }
  if (t > hold) {
    const double into = (t - hold) / r;
    level = into >= 1.0 ? 0.0 : level * (1.0 - into);
  }
  return level;
}

// Exponential fall from 1 with the given time constant.
inline double Decay(double t, double tau) { return std::exp(-t / tau); }

// One-pole low pass (and high pass as its complement).
struct OnePole {
  double y = 0;
  double Low(double x, double hz, double rate) {
    const double a = 1.0 - std::exp(-kTwoPi * hz / rate);
    y += a * (x - y);
    return y;
  }
  double High(double x, double hz, double rate) { return x - Low(x, hz, rate); }
  // With a coefficient from Coef, for cutoffs that change seldom.
  static double Coef(double hz, double rate) { return 1.0 - std::exp(-kTwoPi * hz / rate); }
  double LowK(double x, double a) {
    y += a * (x - y);
    return y;
  }
};

// State-variable filter with resonance (q 0.5 soft .. 10 sharp).
struct Svf {
  double low = 0, band = 0;
  struct Out {
    double low, band, high;
  };
  Out Run(double x, double hz, double q, double rate) {
    const double f = 2.0 * std::sin(kPi * std::fmin(hz, rate / 6.0) / rate);
    const double damp = 1.0 / q;
    const double high = x - low - damp * band;
    band += f * high;
    low += f * band;
    return {low, band, high};
  }
};

// Scales samples so that the loudest stands at `peak`.
void Normalize(Samples& s, double peak);
// Soft limiting of a mix.
inline float SoftClip(double x) { return static_cast<float>(std::tanh(x)); }

}  // namespace assetgen
