// How a fight ends: the flee, self-destruct and surrender buttons, the
// booking of the result when the loop has ended, a further attacker, and
// the way back to the bridge.
#include <algorithm>
#include <cmath>

#include "bridge/bridge_procedures.h"
#include "combat/combat_procedures.h"
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "display/bitmap_sets.h"
#include "media/media.h"
#include "missions/mission_rules.h"
#include "shell/clocks.h"
#include "shell/game_state.h"
#include "shell/screens.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

bool Within(double v, double lo, double hi) { return v > lo && v < hi; }

// Reputation for a beaten opponent, by hull class.
double VictoryReputation(int hullClass) {
  switch (hullClass) {
    case 1: return 50;
    case 2: return 70;
    case 3: return 120;
    case 4: return 150;
    case 5: return 100;
    default: return 0;
  }
}

// The opponent is free again and moves somewhere else in the sector.
void TakeOutOfTheWay() {
  OtherShipRecord& ship = G.OtherShip[G.FightShip];
  ship.Free = True;
  ship.X = Int(Rnd() * (G.SectorSize - 200) + 100);
  ship.Y = Int(Rnd() * (G.SectorSize - 200) + 100);
}

void Victory() {
  const int n = static_cast<int>(Int(Rnd() * 50)) + 1;
  DebrisRecord& wreck = G.Debris[n];
  wreck.X = CIntReal(G.ShipX + Int(Rnd() * 50) - 50);
  wreck.Y = CIntReal(G.ShipY + Int(Rnd() * 50) - 50);
  wreck.Visible = True;
  G.Reputation += VictoryReputation(G.FightHullClass);
  Skip(MissionFightWon);
  Skip(TakeOutOfTheWay);
}

void PlayerSurrendered() {
  if (G.FightHullClass == 1 || G.FightHullClass == 2) {
    G.Cash = G.Cash - Int(Rnd() * 4000) + 1000;
  } else if (G.FightHullClass >= 3 && G.FightHullClass <= 5) {
    Skip([] { G.OtherShip[G.FightShip].Free = True; });
    const double price = Int(Rnd() * 4000) + 1000;
    G.Cash = std::max(0.0, G.Cash - price);
    const int race = ClassInfo(OpponentClass()).Race;
    if (race >= 1 && race <= 7) G.RaceRelation[race] = 36;
  }
}

void BookResult() {
  if (G.EnemyHull <= 5) {
    Victory();
  } else if (G.FleeTimer > 0) {
    G.HullPoints -= G.HullPoints / 3;
    Skip(TakeOutOfTheWay);
  } else if (G.SurrenderOffered > 0) {
    Skip(TakeOutOfTheWay);
  } else if (G.SurrenderTimer > 0) {
    PlayerSurrendered();
  } else if (G.AutodestructTimer > 0) {
    d_LoseGame(1);
  }
}

bool AttacksNext(int i) {
  const OtherShipRecord& ship = G.OtherShip[i];
  const double dx = ship.X - G.ShipX, dy = ship.Y - G.ShipY;
  if (!(std::sqrt(dx * dx + dy * dy) < G.SensorRange) || G.InNebula != 0) return false;
  const int race = ClassInfo(ship.ShipClass).Race;
  const int relation = race >= 1 && race <= 7 ? G.RaceRelation[race] : 0;
  if (relation >= 35 && ship.Free != 0) return false;
  switch (ship.ShipClass) {
    case 3: case 4: case 5: case 7: case 8: case 11: case 12: case 13: case 16: case 18: case 19: return true;
    default: return false;
  }
}

}  // namespace

void d_CheckSurrenderSelection() {
  if (!Within(G.MouseX, 19, 109)) return;
  if (Within(G.MouseY, 39, 48)) {
    if (G.SurrenderOffered > 0) {
      PlaySoundFx(2, 3);
      G.FightActive = False;
    } else {
      PlaySoundFx(4, 3);
      G.SurrenderTimer = 5;
    }
  }
  if (Within(G.MouseY, 16, 25)) {
    ReseedFromClock();
    if (0.1 > Rnd()) {
      PlaySoundFx(4, 3);
      G.FleeTimer = 6;
    }
  }
  if (Within(G.MouseY, 25, 39)) {
    PlaySoundFx(4, 3);
    G.AutodestructTimer = 5;
  }
}

void d_FightLoopEnd() {
  Skip(UnloadFightBitmaps);
  Skip(BookResult);

  const int last = std::min<int>(G.OtherShipCount, decltype(G.OtherShip)::kHi);
  for (int i = 1; i <= last; ++i) {
    if (!AttacksNext(i)) continue;
    G.FightShip = static_cast<std::int16_t>(i);
    d_FightLoop();
  }

  StartTimer1();
  Skip(UnloadFightBitmaps);
  G.ProgressCount = 0;
  G.ProgressMode = 1;
  Skip(LoadMainBitmaps);
  G.ProgressMode = 0;
  Skip(DistributeEnergy);
  G.MenuActive = False;
  G.StationActive = False;
  G.BridgeActive = True;
  G.FightActive = False;
  G.DestX = G.ShipX;
  G.DestY = G.ShipY;
  StopTimer2();
  RunLoop();
}

}  // namespace lf
