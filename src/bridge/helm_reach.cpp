#include "bridge/helm_reach.h"

#include <algorithm>
#include <cmath>

#include "shell/game_state.h"

namespace lf {

namespace {

constexpr double kObjectReach = 20;

double DistanceToShip(double x, double y) { return std::hypot(G.ShipX - x, G.ShipY - y); }

}  // namespace

int FirstNearBody() {
  const int last = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= last; ++i) {
    const PlanetRecord& body = G.Planet[i];
    if (DistanceToShip(body.X, body.Y) < body.Width) return i;
  }
  return 0;
}

bool NearDebris(int i) {
  const DebrisRecord& d = G.Debris[i];
  return DistanceToShip(d.X, d.Y) < kObjectReach;
}

bool NearPod(int i) {
  const CargoPodRecord& c = G.CargoPod[i];
  return DistanceToShip(c.X, c.Y) < kObjectReach;
}

int DrawHealthyPost() {
  for (int draw = 1; draw <= 100; ++draw) {
    const int post = static_cast<int>(Int(Rnd() * 6)) + 1;
    const CrewPostRecord& p = G.CrewPost[post];
    if (p.Person != 0 && p.Infected == 0) return post;
  }
  return 0;
}

}  // namespace lf
