// Combat power: the energy stored for weapons and shields, its charging each
// frame, the two sliders and the transfer buttons; and the range orders.
#include <algorithm>

#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

double SumOverFitted(int group, int column) {
  double sum = 0;
  const int last = std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi);
  for (int i = 1; i <= last; ++i)
    if (G.FittedComp[i][1] == group) sum += ComponentValue(group, G.FittedComp[i][2], column);
  return sum;
}

bool Within(double v, double lo, double hi) { return v > lo && v < hi; }

// A slider: the click sets the level it points at, taking what it needs
// from the free power, or giving back what it frees.
void MoveSlider(std::int16_t& set, double max) {
  PlaySoundFx(4, 1);
  const double markerY = 446 - set / max * 100;
  const double c = (markerY - G.MouseY) / 100 * max;
  if (c < 0 || G.PowerFree > c) {
    Assign(set, set + c);
    Assign(G.PowerFree, G.PowerFree - c);
  } else {
    Assign(set, static_cast<double>(set) + G.PowerFree);
    G.PowerFree = 1;
  }
}

void WeaponsToShields() {
  PlaySoundFx(4, 1);
  const double amount = std::min(G.WeaponPowerSet * 0.2, static_cast<double>(G.ShieldEnergyMax - G.ShieldPowerSet));
  Assign(G.ShieldPowerSet, G.ShieldPowerSet + amount);
  G.ShieldEnergy += (G.ShieldPowerSet - G.ShieldEnergy) / 5;
  G.WeaponEnergy = 0;
}

void ShieldsToWeapons() {
  PlaySoundFx(4, 1);
  const double amount = std::min(G.ShieldPowerSet * 0.2, static_cast<double>(G.WeaponEnergyMax - G.WeaponPowerSet));
  Assign(G.WeaponPowerSet, G.WeaponPowerSet + amount);
  G.WeaponEnergy += (G.WeaponPowerSet - G.WeaponEnergy) / 5;
  G.ShieldEnergy = std::max(0.0, G.ShieldEnergy - (G.WeaponPowerSet - G.WeaponEnergy) / 5);
}

}  // namespace

void d_CalculateEnergyLevels() {
  Assign(G.WeaponEnergyMax, SumOverFitted(1, kColEnergy) + 10);
  Assign(G.WeaponPowerSet, G.WeaponSetting / 100 * G.WeaponEnergyMax);
  G.WeaponEnergy = G.WeaponLevel / 100 * G.WeaponEnergyMax;
  Assign(G.ShieldEnergyMax, SumOverFitted(7, kColShieldPower) + 10);
  Assign(G.ShieldPowerSet, G.ShieldSetting / 100 * G.ShieldEnergyMax);
  G.ShieldEnergy = G.ShieldLevel / 100 * G.ShieldEnergyMax;
  Assign(G.PowerTotal, G.WeaponPowerSet + G.ShieldPowerSet + 1.0);
  G.PowerFree = 1;
}

void d_UpdateEnergy() {
  if (G.ShieldEnergy > G.ShieldPowerSet)
    G.ShieldEnergy = G.ShieldPowerSet;
  else
    G.ShieldEnergy = std::min<double>(G.ShieldEnergy + G.ShieldEnergyMax / 5000.0, G.ShieldEnergyMax);
  if (G.WeaponEnergy > G.WeaponPowerSet)
    G.WeaponEnergy = G.WeaponPowerSet;
  else
    G.WeaponEnergy = std::min<double>(G.WeaponEnergy + G.WeaponEnergyMax / 100.0, G.WeaponEnergyMax);
}

void d_CheckPowerDistribution() {
  if (G.PowerTotal <= 5) return;
  const bool sliderRows = Within(G.MouseY, 346, 446);
  if (sliderRows && Within(G.MouseX, 473, 493) && G.WeaponEnergyMax > 10) MoveSlider(G.WeaponPowerSet, G.WeaponEnergyMax);
  if (sliderRows && Within(G.MouseX, 500, 520) && G.ShieldEnergyMax > 10) MoveSlider(G.ShieldPowerSet, G.ShieldEnergyMax);
  if (Within(G.MouseY, 449, 463)) {
    if (Within(G.MouseX, 474, 494) && G.WeaponPowerSet > 5) WeaponsToShields();
    if (Within(G.MouseX, 499, 519) && G.ShieldPowerSet > 5) ShieldsToWeapons();
  }
}

void d_CheckShipMovement() {
  if (!Within(G.MouseX, 535, 618)) return;
  if (Within(G.MouseY, 429, 441) && G.OrderedRange <= 40) G.OrderedRange += 10;
  if (G.MouseY > 445 && G.OrderedRange >= 10) G.OrderedRange -= 10;
}

}  // namespace lf
