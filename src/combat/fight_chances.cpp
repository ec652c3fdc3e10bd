// The four chance values, worked out anew each frame from the grades of the
// models, the tactical officer and the range.
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

int Evasion(int model) { return static_cast<int>(ComponentValue(5, model, kColEvasion)); }
int Grade(int model) { return static_cast<int>(ComponentValue(2, model, kColGrade)); }

// The tactical officer's skill; -1 when the post is empty.
int TacticalSkill() {
  const int person = G.CrewPost[3].Person;
  if (person == 0) return -1;
  int skill = 0;
  Skip([&] { skill = G.Character[person].Skill; });
  return skill;
}

// A beam's chance against an engine: better evasion takes more off.
int BeamEvasion(int evasion) {
  switch (evasion) {
    case 5: return -20;
    case 4: return -15;
    case 3: return -10;
    case 2: return -5;
    default: return 0;
  }
}
// A missile's chance against an engine: better evasion takes less off.
int MissileEvasion(int evasion) {
  switch (evasion) {
    case 1: return -50;
    case 2: return -45;
    case 3: return -40;
    case 4: return -35;
    case 5: return -30;
    default: return 0;
  }
}
int ComputerBonus(int grade) {
  switch (grade) {
    case 3: return 20;
    case 2: return 15;
    case 1: return 10;
    default: return 0;
  }
}

// What the missile chance takes from the weapon: the one in flight, else the
// selected line.
int WeaponBonus() {
  const bool flying = G.AnimMissile >= 0 || G.AnimBeam >= 0;
  const int v = flying ? G.FiredWeapon : RackValue(G.WeaponSelected);
  if (!flying && G.WeaponSelected == 0) return 0;
  if (v == kDragon) return 80;
  if (v == kRapier) return 70;
  if (v == kShrike) return 80;
  if (!decltype(G.FittedComp)::InBounds(v) || v == 0) return 0;
  const int group = G.FittedComp[v][1];
  if (group != 1 && group != 3) return 0;
  switch (static_cast<int>(ComponentValue(group, G.FittedComp[v][2], kColAccuracy))) {
    case 1: return 30;
    case 2: return 35;
    case 3: return 40;
    case 4: return 45;
    case 5: return 50;
    default: return 0;
  }
}

double Distance() { return 50 - G.FightRange; }

}  // namespace

void d_CalculateProbabilities() {
  const int enemyEngine = FirstLoadoutModel(5), enemyComputer = FirstLoadoutModel(2);
  const int ownEngine = FirstFittedModel(5), ownComputer = FirstFittedModel(2);
  const int skill = TacticalSkill();

  double laser = 0;
  if (G.EnemyPropulsion > 0) laser += BeamEvasion(Evasion(enemyEngine));
  switch (Grade(ownComputer)) {
    case 1: laser += 10; break;
    case 2: laser += 20; break;
    case 3: laser += 30; break;
    default: break;
  }
  if (skill <= 1) laser += 20;  // nobody at the post, or a poor officer
  else if (skill <= 4) laser += 10 * (skill + 1);
  laser = CIntReal(laser - Int(Distance() / 2));
  if (G.TargetingComputer != 0) laser += 10;

  double missile = WeaponBonus();
  if (G.EnemyPropulsion > 0) missile += MissileEvasion(Evasion(enemyEngine));
  missile += ComputerBonus(Grade(ownComputer));
  if (skill >= 2 && skill <= 5) missile += 5 * (skill - 1);
  missile = CIntReal(missile - Int(Distance() / 5));

  double enemyLaser = BeamEvasion(Evasion(ownEngine)) + ComputerBonus(Grade(enemyComputer));
  enemyLaser = CIntReal(enemyLaser - Int(Distance() / 2));
  double enemyMissile = MissileEvasion(Evasion(ownEngine)) + ComputerBonus(Grade(enemyComputer));
  enemyMissile = CIntReal(enemyMissile - Int(Distance() / 5));

  if (G.EnemyPower <= 0 || G.EnemyPropulsion <= 15) missile = 100;
  for (double* v : {&laser, &missile, &enemyLaser, &enemyMissile})
    if (*v <= 0) *v = 15;
  Assign(G.LaserChance, laser);
  Assign(G.MissileChance, missile);
  Assign(G.EnemyLaserChance, enemyLaser);
  Assign(G.EnemyMissileChance, enemyMissile);
}

}  // namespace lf
