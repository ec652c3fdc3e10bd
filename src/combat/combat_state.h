// The fight's share of the Game record: weapons, reloads, special systems,
// warning lamps and the three exit countdowns.
#pragma once

#include <cstdint>

#include "shell/table.h"

namespace lf {

struct CombatState {
  Table<std::int16_t, 10> WeaponRack{};
  Table<std::int16_t, 10> WeaponReload{};
  Table<std::int16_t, 5> SpecialTimer{};
  Table<std::int16_t, 10> EnemyWeaponSlot{};
  Table<std::int16_t, 10> EnemyReload{};
  Table<std::int16_t, 10> EnemyAmmo{};
  Table<std::int16_t, 5> Warning{};
  std::int16_t SurrenderTimer = 0;
  std::int16_t FleeTimer = 0;
  std::int16_t AutodestructTimer = 0;
};

template <class V>
void VisitFields(V& v, CombatState& s) {
  v("WeaponRack", s.WeaponRack);
  v("WeaponReload", s.WeaponReload);
  v("SpecialTimer", s.SpecialTimer);
  v("EnemyWeaponSlot", s.EnemyWeaponSlot);
  v("EnemyReload", s.EnemyReload);
  v("EnemyAmmo", s.EnemyAmmo);
  v("Warning", s.Warning);
  v("SurrenderTimer", s.SurrenderTimer);
  v("FleeTimer", s.FleeTimer);
  v("AutodestructTimer", s.AutodestructTimer);
}

}  // namespace lf
