#include "audio/synth.h"

#include <algorithm>

namespace assetgen {

void Normalize(Samples& s, double peak) {
  float top = 0;
  for (float v : s) top = std::max(top, std::fabs(v));
  if (top <= 0) return;
  const float k = static_cast<float>(peak / top);
  for (float& v : s) v *= k;
}

}  // namespace assetgen
