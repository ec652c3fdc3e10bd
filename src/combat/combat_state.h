// The fight's share of the Game record: range, power, weapons and reloads,
// special systems, warning lamps, the opponent's systems and weapons, the
// chance values, the three exit countdowns, the animations and the text
// panel; and the guilds' special equipment that the fight uses.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct CombatState {
  // FightShip (the OtherShip fought) stands in the bridge's record.
  std::int16_t FightHullClass = 0;
  double FightRange = 0;     // closeness 0 (far limit) .. 50 (touching)
  double OrderedRange = 0;   // the player's order, in steps of 10
  double EnemyRangeGoal = 0;

  // Weapon lines: [0] the last line, then a fitted slot or 20..22.
  Table<std::int16_t, 10> WeaponRack{};
  Table<std::int16_t, 10> WeaponReload{};
  std::int16_t WeaponSelected = 0;
  std::int16_t TargetSelected = 0;
  // What the selected line held when the shot in flight was fired (a slot
  // or 20..22): a spent Rapier or Shrike leaves its line empty at once.
  std::int16_t FiredWeapon = 0;

  double WeaponEnergy = 0, ShieldEnergy = 0;
  std::int16_t WeaponEnergyMax = 0, ShieldEnergyMax = 0;
  std::int16_t WeaponPowerSet = 0, ShieldPowerSet = 0;
  std::int16_t PowerTotal = 0, PowerFree = 0;

  Table<std::int16_t, 5> SpecialTimer{};
  Table<std::int16_t, 5> Warning{};

  // The opponent: -10000 marks a destroyed system.
  std::int16_t EnemyHull = 0, EnemyShields = 0, EnemyPower = 0;
  std::int16_t EnemyPropulsion = 0, EnemyWeapons = 0, EnemyComputer = 0;
  std::int16_t EnemyHullMax = 0, EnemyShieldsMax = 0, EnemyPowerMax = 0;
  std::int16_t EnemyPropulsionMax = 0, EnemyWeaponsMax = 0, EnemyComputerMax = 0;
  Table<std::int16_t, 10> EnemyWeaponSlot{};
  Table<std::int16_t, 10> EnemyReload{};
  Table<std::int16_t, 10> EnemyAmmo{};

  std::int16_t LaserChance = 0, MissileChance = 0;
  std::int16_t EnemyLaserChance = 0, EnemyMissileChance = 0;

  std::int16_t SurrenderOffered = 0;
  std::int16_t SurrenderTimer = 0;
  std::int16_t FleeTimer = 0;
  std::int16_t AutodestructTimer = 0;

  // Animation frames, -1 off.
  double AnimMissile = -1, AnimBeam = -1, AnimImpact = -1;
  double AnimEnemyShield = -1, AnimOwnShield = -1, AnimExplosion = -1;
  double EnemyFrameIcon = 0;

  // The text panel: lines 1 and 2 shown, line 3 the message waiting.
  Table<std::string, 3> FightLog{};
  // The guilds' and the pirates' special equipment the fight reads stands
  // with the station's record.
};

template <class V>
void VisitFields(V& v, CombatState& s) {
  v("FightHullClass", s.FightHullClass);
  v("FightRange", s.FightRange);
  v("OrderedRange", s.OrderedRange);
  v("EnemyRangeGoal", s.EnemyRangeGoal);
  v("WeaponRack", s.WeaponRack);
  v("WeaponReload", s.WeaponReload);
  v("WeaponSelected", s.WeaponSelected);
  v("TargetSelected", s.TargetSelected);
  v("FiredWeapon", s.FiredWeapon);
  v("WeaponEnergy", s.WeaponEnergy);
  v("ShieldEnergy", s.ShieldEnergy);
  v("WeaponEnergyMax", s.WeaponEnergyMax);
  v("ShieldEnergyMax", s.ShieldEnergyMax);
  v("WeaponPowerSet", s.WeaponPowerSet);
  v("ShieldPowerSet", s.ShieldPowerSet);
  v("PowerTotal", s.PowerTotal);
  v("PowerFree", s.PowerFree);
  v("SpecialTimer", s.SpecialTimer);
  v("Warning", s.Warning);
  v("EnemyHull", s.EnemyHull);
  v("EnemyShields", s.EnemyShields);
  v("EnemyPower", s.EnemyPower);
  v("EnemyPropulsion", s.EnemyPropulsion);
  v("EnemyWeapons", s.EnemyWeapons);
  v("EnemyComputer", s.EnemyComputer);
  v("EnemyHullMax", s.EnemyHullMax);
  v("EnemyShieldsMax", s.EnemyShieldsMax);
  v("EnemyPowerMax", s.EnemyPowerMax);
  v("EnemyPropulsionMax", s.EnemyPropulsionMax);
  v("EnemyWeaponsMax", s.EnemyWeaponsMax);
  v("EnemyComputerMax", s.EnemyComputerMax);
  v("EnemyWeaponSlot", s.EnemyWeaponSlot);
  v("EnemyReload", s.EnemyReload);
  v("EnemyAmmo", s.EnemyAmmo);
  v("LaserChance", s.LaserChance);
  v("MissileChance", s.MissileChance);
  v("EnemyLaserChance", s.EnemyLaserChance);
  v("EnemyMissileChance", s.EnemyMissileChance);
  v("SurrenderOffered", s.SurrenderOffered);
  v("SurrenderTimer", s.SurrenderTimer);
  v("FleeTimer", s.FleeTimer);
  v("AutodestructTimer", s.AutodestructTimer);
  v("AnimMissile", s.AnimMissile);
  v("AnimBeam", s.AnimBeam);
  v("AnimImpact", s.AnimImpact);
  v("AnimEnemyShield", s.AnimEnemyShield);
  v("AnimOwnShield", s.AnimOwnShield);
  v("AnimExplosion", s.AnimExplosion);
  v("EnemyFrameIcon", s.EnemyFrameIcon);
  v("FightLog", s.FightLog);
}

}  // namespace lf
