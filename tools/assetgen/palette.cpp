#include "palette.h"

namespace assetgen {

Rgb RaceHull(int race) {
  switch (race) {
    case 1: return {0.62, 0.66, 0.72};  // human: light grey steel
    case 2: return {0.55, 0.42, 0.30};  // hagel: bronze
    case 3: return {0.30, 0.55, 0.40};  // lagew: jade
    case 4: return {0.45, 0.35, 0.62};  // jaytees: violet
    case 5: return {0.70, 0.62, 0.35};  // markeen: sand gold
    case 6: return {0.30, 0.45, 0.65};  // woot-am: deep blue
    default: return {0.22, 0.20, 0.20}; // pirates: black iron
  }
}

Rgb RaceAccent(int race) {
  switch (race) {
    case 1: return {0.30, 0.60, 1.00};
    case 2: return {1.00, 0.55, 0.15};
    case 3: return {0.55, 1.00, 0.55};
    case 4: return {0.95, 0.45, 1.00};
    case 5: return {1.00, 0.90, 0.40};
    case 6: return {0.40, 0.95, 1.00};
    default: return {1.00, 0.10, 0.10};
  }
}

Rgb Mix(Rgb a, Rgb b, double t) { return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t}; }
Rgb Scale(Rgb a, double k) { return {a.r * k, a.g * k, a.b * k}; }

}  // namespace assetgen
