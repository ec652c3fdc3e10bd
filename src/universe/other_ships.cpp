#include "universe/other_ships.h"

#include <algorithm>

#include "shell/game_state.h"

namespace lf {

namespace {

constexpr int kPatrolClass[7] = {0, 3, 7, 11, 12, 16, 18};
constexpr int kHeavyClass[7] = {0, 4, 7, 11, 13, 16, 18};
// The trader of each quadrant's free traffic.
constexpr int kTraderClass[5] = {0, 2, 10, 15, 17};

// Row OtherShipCount takes a ship, and the count moves on behind it. The
// table ends at 500; the row at the count stays empty.
OtherShipRecord* NextRow() {
  if (G.OtherShipCount < 1 || G.OtherShipCount >= decltype(G.OtherShip)::kHi) return nullptr;
  OtherShipRecord* row = &G.OtherShip[G.OtherShipCount];
  ++G.OtherShipCount;
  return row;
}

void SetTarget(OtherShipRecord& s) {
  Assign(s.TargetX, s.X);
  Assign(s.TargetY, s.Y);
}

void PlaceAtBody(const PlanetRecord& body, int shipClass, double spread) {
  OtherShipRecord* s = NextRow();
  if (!s) return;
  s->ShipClass = static_cast<std::int16_t>(shipClass);
  s->X = body.X + Int(Rnd() * spread - spread / 2);
  s->Y = body.Y + Int(Rnd() * spread - spread / 2);
  Assign(s->HomeX, body.X);
  Assign(s->HomeY, body.Y);
  SetTarget(*s);
  s->StepX = 0;
  s->StepY = 0;
  s->WantsTrade = False;
}

}  // namespace

int PatrolClass(int race) { return (race >= 1 && race <= 6) ? kPatrolClass[race] : 0; }
int HeavyClass(int race) { return (race >= 1 && race <= 6) ? kHeavyClass[race] : 0; }

void PlaceOtherShips() {
  G.OtherShipCount = 1;
  const int bodies = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= bodies; ++i) {
    const PlanetRecord& p = G.Planet[i];
    if (p.Race == 0) continue;
    int patrols = 0, heavies = 0;
    switch (p.Society) {
      case 3: patrols = 1; break;
      case 4: patrols = 2; break;
      case 5:
      case 6: patrols = 1; heavies = 1; break;
      case 7: patrols = 3; break;
      case 8: patrols = 2; heavies = 2; break;
      case 9:
        for (int n = 0; n < 6; ++n) PlaceAtBody(p, 5, 1000);
        break;
      default: break;
    }
    for (int n = 0; n < patrols; ++n) PlaceAtBody(p, PatrolClass(p.Race), 150);
    for (int n = 0; n < heavies; ++n) PlaceAtBody(p, HeavyClass(p.Race), 150);
  }

  const int freeTraffic = G.OtherShipCount + 50;
  const int trader =
      (G.CurrentQuadrant >= 1 && G.CurrentQuadrant <= 4) ? kTraderClass[G.CurrentQuadrant] : 0;
  for (int n = 0; n < freeTraffic; ++n) {
    OtherShipRecord* s = NextRow();
    if (!s) break;
    s->X = Int(Rnd() * 4800 + 100);
    s->Y = Int(Rnd() * 4800 + 100);
    SetTarget(*s);
    s->StepX = 0;
    s->StepY = 0;
    s->WantsTrade = False;
    const double c = Rnd();
    if (c < 0.2) {
      s->ShipClass = 1;
    } else if (c < 0.9) {
      s->ShipClass = static_cast<std::int16_t>(trader);
      s->WantsTrade = c < 0.6 ? True : False;
    } else {
      s->ShipClass = 6;
    }
  }
  // The row at the count holds no ship.
  if (G.OtherShipCount >= 1 && G.OtherShipCount <= decltype(G.OtherShip)::kHi)
    G.OtherShip[G.OtherShipCount].ShipClass = 0;
}

}  // namespace lf
