// The opponent: its systems and weapons from its class, the distance it
// wants, how the two ships move, and its volleys.
#include <algorithm>
#include <cmath>

#include "combat/combat_procedures.h"
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

int WeaponCount() { return std::clamp<int>(G.EnemyWeaponSlot[0], 0, 10); }
int WeaponGroup(int i) { return LoadoutGroup(G.EnemyWeaponSlot[i]); }
double WeaponValue(int i, int column) {
  const int slot = G.EnemyWeaponSlot[i];
  return ComponentValue(LoadoutGroup(slot), LoadoutModel(slot), column);
}

}  // namespace

void d_CalculateOpponent() {
  const int cls = OpponentClass();
  double hull = 0, shields = 0, power = 0, propulsion = 0, weapons = 0, computer = 0;
  hull = ClassHull(cls).HullPoints;
  for (int slot = 1; slot <= 16; ++slot) {
    const int group = LoadoutGroup(slot);
    const double health = ComponentFullHealth(group, LoadoutModel(slot));
    switch (group) {
      case 1:
      case 3: weapons += health; break;
      case 4: power += health; break;
      case 5: propulsion += health; break;
      case 6: computer += health; break;
      case 7: shields += health; break;
      default: break;
    }
  }
  Assign(G.EnemyHullMax, hull + 1);
  Assign(G.EnemyShieldsMax, shields + 1);
  Assign(G.EnemyPowerMax, power + 1);
  Assign(G.EnemyPropulsionMax, propulsion + 1);
  Assign(G.EnemyWeaponsMax, weapons + 1);
  Assign(G.EnemyComputerMax, computer + 1);
  G.EnemyHull = G.EnemyHullMax;
  G.EnemyShields = G.EnemyShieldsMax;
  G.EnemyPower = G.EnemyPowerMax;
  G.EnemyPropulsion = G.EnemyPropulsionMax;
  G.EnemyWeapons = G.EnemyWeaponsMax;
  G.EnemyComputer = G.EnemyComputerMax;
}

void d_OpponentsWeapons() {
  G.EnemyWeaponSlot.Items.fill(0);
  G.EnemyAmmo.Items.fill(0);
  int n = 0;
  for (int slot = 1; slot <= 16 && n < 10; ++slot) {
    const int group = LoadoutGroup(slot);
    if (group != 1 && group != 3) continue;
    ++n;
    G.EnemyWeaponSlot[n] = static_cast<std::int16_t>(slot);
    if (group == 3) Assign(G.EnemyAmmo[n], ComponentValue(3, LoadoutModel(slot), kColAmmo));
  }
  G.EnemyWeaponSlot[0] = static_cast<std::int16_t>(n);
  G.EnemyReload.Items.fill(0);
}

void d_CheckOShipMovement() {
  double r = -1;
  for (int i = 1; i <= WeaponCount(); ++i) {
    if (G.EnemyReload[i] != 0) continue;
    if (WeaponGroup(i) == 3 && G.EnemyAmmo[i] <= 0) continue;
    r = std::max(r, WeaponValue(i, kColRange));
  }
  G.EnemyRangeGoal = r == -1 ? 0 : 50 - r * 10;

  if (G.EnemyWeapons <= 0 || G.EnemyPower <= 0 || G.EnemyPropulsion <= 15 || G.EnemyHull <= 30) {
    G.EnemyRangeGoal = 0;
    G.SurrenderOffered = 3;
  }
  switch (G.FightHullClass) {
    case 1:
    case 2:
      if (G.EnemyHull <= G.EnemyHullMax / 3.3) G.SurrenderOffered = 3;
      if (G.EnemyWeapons <= 0) G.EnemyRangeGoal = 0;
      if (G.EnemyPropulsion <= 5 || G.EnemyPower <= 0) G.SurrenderOffered = 3;
      break;
    case 3:
    case 4:
      if (G.EnemyHull <= G.EnemyHullMax / 10.0) G.SurrenderOffered = 3;
      if (G.EnemyHull <= G.EnemyHullMax / 3.3) G.EnemyRangeGoal = 0;
      if (G.EnemyWeapons <= 0) G.EnemyRangeGoal = 0;
      if (G.EnemyPower <= 0) G.SurrenderOffered = 3;
      break;
    case 5:
      if (G.EnemyHull <= G.EnemyHullMax / 10.0) G.EnemyRangeGoal = 0;
      break;
    default: break;
  }
}

void d_OShipMovement() {
  double speed = 0;
  for (int slot = 1; slot <= 16; ++slot)
    if (LoadoutGroup(slot) == 5) speed += ComponentValue(5, LoadoutModel(slot), kColSpeed);
  double enemyRate = 0;
  if (G.EnemyPropulsionMax > 0) enemyRate = speed * std::max<int>(G.EnemyPropulsion, 0) / G.EnemyPropulsionMax;
  const double playerRate = enemyRate != 0 ? enemyRate * 1.2 : 1;
  if (G.EnemyPropulsion <= 0 || G.EnemyPower <= 0) enemyRate = 0;

  double step = 0;
  if (G.FightRange < G.OrderedRange) step += playerRate;
  if (G.FightRange > G.OrderedRange) step -= playerRate;
  if (G.FightRange < G.EnemyRangeGoal) step += enemyRate;
  if (G.FightRange > G.EnemyRangeGoal) step -= enemyRate;
  step /= 15;

  if (G.AnimExplosion >= 0 && G.FightRange != 0) {
    // The wreck drifts back to the far limit before it blows up; it stops
    // there rather than passing it.
    G.FightRange = std::max(0.0, G.FightRange - 2 * std::abs(playerRate));
    return;
  }
  if (std::abs(Int(G.FightRange)) != std::abs(Int(G.OrderedRange)) && playerRate > enemyRate) G.FightRange += step;
  if (std::abs(Int(G.FightRange)) != std::abs(Int(G.EnemyRangeGoal)) && enemyRate > playerRate) G.FightRange += step;
  if (G.FightRange < 0) G.FightRange = 0;
}

void d_OpponentFireWeapon() {
  for (int i = 1; i <= WeaponCount(); ++i)
    if (G.EnemyReload[i] > 0) return;  // one volley at a time
  const double d = std::abs(50 - G.FightRange);
  for (int i = 1; i <= WeaponCount(); ++i) {
    const bool chance = 0.2 > Rnd();
    if (!chance || G.EnemyPower <= 0 || G.EnemyWeapons <= 0 || G.SurrenderOffered != 0) continue;
    if (!(WeaponValue(i, kColRange) >= (50 - G.FightRange) / 10) || G.EnemyReload[i] != 0) continue;
    if (WeaponGroup(i) == 3 && G.EnemyAmmo[i] > 0) {
      Assign(G.EnemyReload[i], CIntReal(Int(d / 10 + 1) * 1.5) + 1);
      G.EnemyAmmo[i] -= 1;
      PlaySoundFx(22, 6);
      G.FightLog[3] = "... ENEMY SHIP FIRES A ROCKET!";
    } else {
      PlaySoundFx(25, 7);
      Assign(G.EnemyReload[i], CIntReal(Int(d / 20 + 1) * 1.5) + 1);
      G.FightLog[3] = "... ENEMY SHIP FIRES A LASER!";
    }
  }
}

}  // namespace lf
