#include "bridge/scan_targets.h"

#include <algorithm>
#include <cmath>

#include "shell/game_state.h"

namespace lf {

int BodyNearShip() {
  int found = 0;
  const int last = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= last; ++i) {
    const PlanetRecord& body = G.Planet[i];
    if (body.Width > std::hypot(G.ShipX - body.X, G.ShipY - body.Y)) found = i;
  }
  return found;
}

}  // namespace lf
