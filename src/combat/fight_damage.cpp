// The opponent's shots landing on the player's ship: shields, the place
// hit, components lost, the crew hurt, and the game lost.
#include <algorithm>
#include <cctype>

#include "combat/combat_procedures.h"
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

int Slots() { return std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi); }

void EmptySlot(int slot) {
  const int group = G.FittedComp[slot][1], model = G.FittedComp[slot][2];
  Assign(G.FreeMass, G.FreeMass + ComponentWeight(group, model));
  G.FittedComp[slot][1] = 0;
  G.FittedComp[slot][2] = 0;
  G.RepairCrew[slot] = 0;
}

std::string Capitals(std::string s) {
  for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return s;
}

void HitHull(double a) {
  G.HullPoints -= a;
  d_CheckBlownComponent(0);
  d_DamageCrewmember(a);
}

// Draws 2..5: the group hit, its sound's message.
struct Place {
  int GroupA, GroupB;
  const char* Line;
};
constexpr Place kPlaces[6] = {
    {0, 0, ""},
    {0, 0, "YOUR HULL HAS BEEN HIT!"},
    {4, 4, "YOUR SHIP SUSTAINED SEVERE DAMAGE TO ITS GENERATORS!"},
    {5, 5, "YOUR SHIP SUSTAINED SEVERE DAMAGE TO ITS ENGINES!"},
    {1, 3, "YOUR SHIP SUSTAINED SEVERE DAMAGE TO ITS WEAPONS!"},
    {6, 6, "YOUR SHIP SUSTAINED SEVERE DAMAGE TO ITS SENSORS!"},
};

}  // namespace

void d_CheckOpponentWeaponHit(int i) {
  const int slot = G.EnemyWeaponSlot[i];
  const int group = LoadoutGroup(slot);
  double a = ComponentValue(group, LoadoutModel(slot), kColDamage) * 4;
  double p = G.EnemyLaserChance;
  if (group == 3) {
    p = G.EnemyMissileChance;
    if (G.SpecialTimer[1] > 0) p -= 25;
    if (G.SpecialTimer[4] > 0) p -= 20;
  }
  ReseedFromClock();
  if (!(Rnd() < p / 10)) {
    PlaySoundFx(31, -1);
    G.FightLog[3] = "ENEMY SHIP MISSED!";
    return;
  }
  if (G.ShieldEnergy >= a) {
    PlaySoundFx(32, -1);
    G.ShieldEnergy -= a;
    G.FightLog[3] = "YOUR SHIELDS HAVE BEEN HIT!";
    G.AnimOwnShield = 0;
    G.Warning[2] = 2;
    return;
  }
  a -= G.ShieldEnergy;
  G.ShieldEnergy = 0;
  G.Warning[5] = 2;
  G.Warning[2] = 2;

  const int draw = static_cast<int>(Int(Rnd() * 5 + 1));
  const Place& place = kPlaces[std::clamp(draw, 1, 5)];
  PlaySoundFx(draw == 1 ? 28 : 29, -1);
  G.FightLog[3] = place.Line;
  if (draw == 1) {
    HitHull(a);
    for (int s = 1; s <= Slots(); ++s) {
      G.FittedHealth[s] -= a / 10;
      d_CheckBlownComponent(s);
    }
    return;
  }
  bool any = false;
  for (int s = 1; s <= Slots(); ++s) {
    const int g = G.FittedComp[s][1];
    if (g != place.GroupA && g != place.GroupB) continue;
    any = true;
    G.FittedHealth[s] -= a;
    d_CheckBlownComponent(s);
    d_DamageCrewmember(a);
  }
  if (!any) {
    G.FightLog[3] = "YOUR HULL HAS BEEN HIT!";
    HitHull(a);
  }
}

void d_CheckBlownComponent(int slot) {
  if (!AnyCrew()) {
    G.StationActive = False;
    d_LoseGame(-1);  // the menu comes after the death picture
  }
  if (slot == 0 && G.HullPoints <= 0) {
    G.HullPoints = 0;
    d_LoseGame(1);
  }
  for (int s = 1; s <= Slots(); ++s)
    if (G.FittedComp[s][1] == 3 && G.AmmoLeft[s] == 0) EmptySlot(s);
  if (slot >= 1 && slot <= Slots() && G.FittedHealth[slot] <= 0 && G.FittedComp[slot][1] != 0) {
    PlaySoundFx(28, 0);
    G.FightLog[3] = "SHIP COMPONENT WAS DESTROYED: " +
                    Capitals(FightComponentName(G.FittedComp[slot][1], G.FittedComp[slot][2]));
    EmptySlot(slot);
  }
}

void d_DamageCrewmember(double amount) {
  for (int post = 1; post <= 6; ++post) {
    const bool struck = 0.5 > Rnd();
    CrewPostRecord& crew = G.CrewPost[post];
    if (!struck || crew.Person == 0) continue;
    ReseedFromClock();
    const double n = Int(Rnd() * 10) + 5;
    amount /= n;
    do amount /= 2;
    while (amount >= 20);
    crew.Health -= amount;
    if (crew.Health <= 0) crew.Person = 0;
  }
}

}  // namespace lf
