// The colours of the default art: dark steel, amber and cyan readouts, and
// one colour scheme for each race.
#pragma once

namespace assetgen {

struct Rgb {
  double r, g, b;  // 0..1
};

inline constexpr Rgb kSteelDark{0.10, 0.12, 0.15};
inline constexpr Rgb kSteel{0.22, 0.25, 0.30};
inline constexpr Rgb kSteelLight{0.45, 0.50, 0.58};
inline constexpr Rgb kAmber{1.00, 0.70, 0.20};
inline constexpr Rgb kAmberDim{0.55, 0.35, 0.08};
inline constexpr Rgb kCyan{0.35, 0.90, 1.00};
inline constexpr Rgb kCyanDim{0.12, 0.40, 0.50};
inline constexpr Rgb kRed{0.95, 0.25, 0.20};
inline constexpr Rgb kGreen{0.35, 0.95, 0.40};
inline constexpr Rgb kWhite{0.92, 0.94, 0.96};

// Races 1..7 (7 the pirates): hull colour and accent colour.
Rgb RaceHull(int race);
Rgb RaceAccent(int race);

Rgb Mix(Rgb a, Rgb b, double t);
Rgb Scale(Rgb a, double k);

}  // namespace assetgen
