// Preparing the sector for a mission just taken: the pirates that wait on
// its route, and the pod it is about.
#include <algorithm>

#include "missions/mission_rules.h"
#include "shell/game_state.h"

namespace lf {
namespace {

// A sector without a ship of the class gives up instead of hanging.
constexpr int kShipDrawLimit = 5000;

// Draws a ship of the class and moves it near the point; it then hunts
// the player whatever the relations.
void PlaceShip(int shipClass, double x, double y) {
  const int count = std::min<int>(G.OtherShipCount, decltype(G.OtherShip)::kHi);
  if (count < 1) return;
  for (int tries = 0; tries < kShipDrawLimit; ++tries) {
    OtherShipRecord& s = G.OtherShip[static_cast<int>(Int(Rnd() * count)) + 1];
    if (s.ShipClass != shipClass) continue;
    s.X = x + Int(Rnd() * 100) - 50;
    s.Y = y + Int(Rnd() * 100) - 50;
    s.Free = False;
    return;
  }
}

void PlacePirates(int n, double x, double y) {
  for (int i = 0; i < n; ++i) PlaceShip(5, x, y);
}

void PlacePod(const MissionRecord& m) {
  CargoPodRecord& pod = G.CargoPod[static_cast<int>(Int(Rnd() * 50)) + 1];
  pod.X = m.TargetX;
  pod.Y = m.TargetY;
}

}  // namespace

void a_MissionInitialize(int slot) {
  const MissionRecord* found = MissionInSlot(slot);
  if (found == nullptr) return;
  const MissionRecord& m = *found;
  const double px = m.TargetX, py = m.TargetY;
  double sx = 0, sy = 0;
  if (m.TargetPlanet >= 1 && m.TargetPlanet <= decltype(G.Planet)::kHi) {
    sx = G.Planet[m.TargetPlanet].X;
    sy = G.Planet[m.TargetPlanet].Y;
  }
  switch (m.MissionType) {
    case 4: case 25: case 26: PlacePirates(1, sx, sy); break;
    case 5: case 15: case 17: case 28: case 29: case 34: PlacePirates(2, sx, sy); break;
    case 6: PlacePirates(1, px, py); break;
    case 7: case 30: case 37: PlacePirates(2, px, py); break;
    case 8: case 32: case 33:
      PlacePod(m);
      PlacePirates(1, px, py);
      break;
    case 9:
      PlacePod(m);
      PlacePirates(2, px, py);
      break;
    case 16: case 36:
      PlacePirates(1, m.NavX[1], m.NavY[1]);
      PlacePirates(1, m.NavX[2], m.NavY[2]);
      break;
    case 18: case 35: PlacePirates(3, px, py); break;
    case 19: PlacePirates(static_cast<int>(Int(Rnd() * 2)) + 3, px, py); break;
    case 38:
      for (int i = 0; i < 3; ++i) PlaceShip(2, px, py);
      break;
    default: break;
  }
}

}  // namespace lf
