// The player's shots: a missile decided when its flight ends, a beam at the
// moment it reaches the target; shields, the system aimed at, and what the
// opponent has lost.
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

constexpr std::int16_t kDestroyed = -10000;

// The system a target button aims at (2 power .. 5 computer), with its
// damage factor and the missile's log line.
struct TargetSystem {
  std::int16_t* Value;
  double Factor;
  const char* MissileLine;
  const char* ShrikeLine;
};

TargetSystem SystemOf(int target) {
  switch (target) {
    case 2: return {&G.EnemyPower, 1.15, "ENEMYS POWER SYSTEMS DAMAGED!",
                     "SHRIKE MISSILE DESTROYED THE POWER SYSTEMS ON THE ENEMY SHIP"};
    case 3: return {&G.EnemyPropulsion, 1.2, "ENEMYS PROPULSION SYSTEMS SEVERELY DAMAGED!",
                     "SHRIKE MISSILE DESTROYED THE PROPULSION SYSTEMS ON THE ENEMY SHIP"};
    case 4: return {&G.EnemyWeapons, 1.2, "ENEMYS WEAPONS SYSTEM DAMAGED!",
                     "SHRIKE MISSILE DESTROYED THE WEAPONS SYSTEMS ON THE ENEMY SHIP"};
    case 5: return {&G.EnemyComputer, 1.2, "ENEMYS SENSORS SYSTEMS DAMAGED!",
                     "SHRIKE MISSILE DESTROYED THE COMPUTER SYSTEMS ON THE ENEMY SHIP"};
    default: return {nullptr, 0, "", ""};
  }
}

// Each of the five systems becomes CInt(value - loss).
void AllSystemsLose(double loss) {
  for (std::int16_t* v : {&G.EnemyWeapons, &G.EnemyPower, &G.EnemyPropulsion, &G.EnemyComputer, &G.EnemyShields})
    Assign(*v, *v - loss);
}

// Damage D through the shields onto the target; the missile writes its
// log lines, the beam does not.
void DamageTarget(double d, bool missile) {
  const int target = G.TargetSelected;
  if (target == 1) {
    Assign(G.EnemyHull, G.EnemyHull - d);
    if (missile) G.FightLog[3] = "OUR MISSILE CAUSED SEVERE DAMAGE TO THE ENEMYS HULL!";
    AllSystemsLose(d / 10);
  } else if (const TargetSystem s = SystemOf(target); s.Value) {
    if (*s.Value > 0) {
      Assign(G.EnemyHull, G.EnemyHull - d / 10);
      Assign(*s.Value, *s.Value - CIntReal(d * s.Factor));
      if (missile) G.FightLog[3] = s.MissileLine;
    } else {
      Assign(G.EnemyHull, G.EnemyHull - d);
    }
  }
  G.AnimImpact = 0;
}

// Group and model of the slot a shot came from (0 for a special weapon or
// a slot lost since).
int FiredGroup() {
  const int v = G.FiredWeapon;
  if (IsSpecialWeapon(v) || v == 0 || !decltype(G.FittedComp)::InBounds(v)) return 0;
  return G.FittedComp[v][1];
}
int FiredModel() {
  const int v = G.FiredWeapon;
  if (IsSpecialWeapon(v) || v == 0 || !decltype(G.FittedComp)::InBounds(v)) return 0;
  return G.FittedComp[v][2];
}

void ResolveMissile() {
  ReseedFromClock();
  const int v = G.FiredWeapon;
  const double d = IsSpecialWeapon(v) ? 0 : CIntReal(ComponentValue(FiredGroup(), FiredModel(), kColDamage) / 5);
  if (!(G.MissileChance / 10.0 > Rnd())) {
    PlaySoundFx(31, 4);
    G.FightLog[3] = "YOUR ROCKET MISSED!";
    d_CheckDestroyedComponent();
    return;
  }
  if (v == kRapier) {
    PlaySoundFx(27, 4);
    const double r = CIntReal(Rnd() * 37 - 37 + 370);
    Assign(G.EnemyHull, G.EnemyHull - r);
    AllSystemsLose(r / 10);
    G.FightLog[3] = "RAPIER MISSILE INFLICTED SEVERE DAMAGE ON THE ENEMY VESSEL";
    G.AnimImpact = 0;
    d_CheckDestroyedComponent();
    return;
  }
  if (v == kShrike) {
    if (const TargetSystem s = SystemOf(G.TargetSelected); s.Value) {
      PlaySoundFx(27, 4);
      *s.Value = kDestroyed;
      G.FightLog[3] = s.ShrikeLine;
      return;  // the target stays chosen
    }
  }
  if (d / 10 < G.EnemyShields) {
    bool stopped = G.SpecialTimer[2] == 0;
    if (!stopped) {
      ReseedFromClock();
      stopped = 0.2 > Rnd();
    }
    if (stopped) {
      PlaySoundFx(27, 4);
      G.FightLog[3] = "ENEMYS SHIELDS SUSTAINED SIGNIFICANT DAMAGE";
      Assign(G.EnemyShields, G.EnemyShields - d);
      G.AnimEnemyShield = 0;
      return;  // the target stays chosen
    }
  }
  G.EnemyShields = 0;
  PlaySoundFx(29, 5);
  DamageTarget(d, true);
  d_CheckDestroyedComponent();
}

void ResolveBeam() {
  const int v = G.FiredWeapon;
  const double d = v == kDragon ? 0 : CIntReal(ComponentValue(FiredGroup(), FiredModel(), kColDamage) * 3);
  if (!(G.LaserChance / 40.0 > Rnd())) {
    G.FightLog[3] = "YOUR LASER MISSED!";
  } else if (v == kDragon) {
    PlaySoundFx(27, 4);
    G.EnemyShields = 0;
    G.AnimEnemyShield = 0;
  } else if (G.EnemyShields > d) {
    PlaySoundFx(27, 4);
    Assign(G.EnemyShields, G.EnemyShields - d);
    G.AnimEnemyShield = 0;
  } else {
    G.FightLog[3] = "ENEMY SHIP SUSTAINED TOTAL DAMAGE TO THEIR SHIELDS";
    G.EnemyShields = kDestroyed;
    PlaySoundFx(29, 5);
    DamageTarget(d, false);
  }
  d_CheckDestroyedComponent();
}

}  // namespace

void d_CheckWeaponHit(int kind) {
  if (kind == 1) ResolveMissile();
  if (kind == 2) ResolveBeam();
}

void d_CheckDestroyedComponent() {
  G.TargetSelected = 1;
  G.AnimMissile = -1;
  G.AnimBeam = -1;
  if (G.EnemyHull <= 5) {
    G.EnemyHull = 0;
    G.FightLog[2] = "  .... VICTORY! .... VICTORY! .... VICTORY! ....";
    G.FightLog[3] = "ENEMY SHIP HAS BEEN OBLITERATED. YOU ARE VICTORIOUS!";
    // A shot landing on the wreck does not start its explosion over.
    if (G.AnimExplosion < 0) G.AnimExplosion = 0;
  }
  struct Lost {
    std::int16_t* Value;
    const char* Line;
  };
  const Lost systems[] = {
      {&G.EnemyWeapons, "WEAPONS SYSTEMS ON THE ENEMY SHIP WERE DESTROYED"},
      {&G.EnemyPropulsion, "PROPULSION SYSTEMS ON THE ENEMY SHIP WERE DESTROYED"},
      {&G.EnemyPower, "POWER SYSTEMS ON THE ENEMY SHIP WERE DESTROYED"},
      {&G.EnemyComputer, "COMPUTER SYSTEMS ON THE ENEMY SHIP WERE DESTROYED"},
  };
  for (const Lost& s : systems) {
    if (*s.Value <= 0 && *s.Value > kDestroyed) {
      *s.Value = kDestroyed;
      G.FightLog[3] = s.Line;
    }
  }
}

}  // namespace lf
