#include "combat/fight_helpers.h"

#include "combat/combat_procedures.h"

#include <algorithm>

#include "shell/clocks.h"
#include "shell/death.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "universe/catalogue.h"

namespace lf {

void ReseedFromClock() {
  SeedRandom(G.Random, CurrentHost().ClockSeed() ^ (G.Random.State * 0x9E3779B97F4A7C15ull));
}

const std::string& FightComponentName(int group, int model) {
  static const std::string kEmpty;
  using T = decltype(G.ComponentTable);
  using M = std::remove_reference_t<decltype(G.ComponentTable[0])>;
  if (!T::InBounds(group) || !M::InBounds(model)) return kEmpty;
  return G.ComponentTable[group][model][kColName];
}

int FirstFittedModel(int group) {
  const int last = std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi);
  for (int i = 1; i <= last; ++i)
    if (G.FittedComp[i][1] == group) return G.FittedComp[i][2];
  return 0;
}

int OpponentClass() {
  if (!decltype(G.OtherShip)::InBounds(G.FightShip)) return 0;
  return G.OtherShip[G.FightShip].ShipClass;
}

int LoadoutGroup(int slot) {
  const int c = OpponentClass();
  if (!decltype(G.ShipLoadout)::InBounds(c) || slot < 1 || slot > 16) return 0;
  return G.ShipLoadout[c][slot][1];
}

int LoadoutModel(int slot) {
  const int c = OpponentClass();
  if (!decltype(G.ShipLoadout)::InBounds(c) || slot < 1 || slot > 16) return 0;
  return G.ShipLoadout[c][slot][2];
}

int FirstLoadoutModel(int group) {
  for (int slot = 1; slot <= 16; ++slot)
    if (LoadoutGroup(slot) == group) return LoadoutModel(slot);
  return 0;
}

int RackValue(int line) {
  if (line < 1 || line > 10) return 0;
  return G.WeaponRack[line];
}

bool IsSpecialWeapon(int value) { return value >= kDragon && value <= kShrike; }

int LineGroup(int line) {
  const int v = RackValue(line);
  if (IsSpecialWeapon(v) || !decltype(G.FittedComp)::InBounds(v) || v == 0) return 0;
  return G.FittedComp[v][1];
}

int LineModel(int line) {
  const int v = RackValue(line);
  if (IsSpecialWeapon(v) || !decltype(G.FittedComp)::InBounds(v) || v == 0) return 0;
  return G.FittedComp[v][2];
}

bool SpecialOwned(int value) {
  switch (value) {
    case kDragon: return G.DragonIonBeam != 0;
    case kRapier: return G.RapierMissile != 0;
    case kShrike: return G.ShrikeMissile != 0;
    default: return false;
  }
}

bool SpecialSystemOwned(int i) {
  switch (i) {
    case 1: return G.CountermeasureRack != 0;
    case 2: return G.ComputerVirus != 0;
    case 3: return G.VirusProtection != 0;
    case 4: return G.ElectronicCM != 0;
    case 5: return G.ElectronicCCM != 0;
    default: return false;
  }
}

bool AnyCrew() {
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person != 0) return true;
  return false;
}

void d_LoseGame(int deadValue) {
  StopTimer2();
  G.FightActive = False;
  G.StatusSlot[DeadSlot].Active = True;
  if (deadValue >= 0) G.StatusSlot[DeadSlot].Value = static_cast<std::int16_t>(deadValue);
  EventHandler();
}

}  // namespace lf
