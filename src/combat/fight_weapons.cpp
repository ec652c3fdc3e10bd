// The weapon lines: the rack built at the start of a fight, the reach of
// each line, choosing a weapon, firing it at a target, and the special
// systems.
#include <algorithm>

#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

bool Within(double v, double lo, double hi) { return v > lo && v < hi; }

// Start values, click bands and sounds of the five special systems.
struct SpecialSystem {
  std::int16_t Start;
  int Top, Bottom;
  int Sound;
};
constexpr SpecialSystem kSpecial[6] = {
    {0, 0, 0, 0}, {3, 347, 367, 20}, {7, 371, 395, 21}, {21, 395, 419, 21}, {7, 419, 443, 21}, {7, 443, 467, 21},
};


void BeamSound() { PlaySoundFx(static_cast<int>(Int(Rnd() * 3)) + 22, 2); }
void MissileSound() { PlaySoundFx(static_cast<int>(Int(Rnd() * 2)) + 25, 2); }

void Fire() {
  const int line = G.WeaponSelected;
  const int v = RackValue(line);
  const int group = LineGroup(line), model = LineModel(line);
  if (v == kDragon) {
    if (!(G.WeaponEnergy > 205)) return;
    BeamSound();
    G.AnimBeam = 0;
    G.FiredWeapon = static_cast<std::int16_t>(v);
    G.WeaponEnergy -= 200;
    G.WeaponReload[line] = 5;
  } else if (v == kRapier || v == kShrike) {
    MissileSound();
    G.AnimMissile = 0;
    G.FiredWeapon = static_cast<std::int16_t>(v);
    (v == kRapier ? G.RapierMissile : G.ShrikeMissile) = False;
    G.WeaponRack[line] = 0;
    G.WeaponReload[line] = 3;
  } else if (group == 1) {
    const double energy = ComponentValue(1, model, kColEnergy);
    if (!(G.WeaponEnergy - 5 >= energy)) return;
    BeamSound();
    G.AnimBeam = 0;
    G.FiredWeapon = static_cast<std::int16_t>(v);
    G.WeaponEnergy -= energy;
    Assign(G.WeaponReload[line], ComponentValue(1, model, kColReload));
  } else if (group == 3) {
    std::int16_t& ammo = G.AmmoLeft[v];
    if (ammo <= 0) return;
    MissileSound();
    G.AnimMissile = 0;
    G.FiredWeapon = static_cast<std::int16_t>(v);
    ammo -= 1;
    const double reload = ComponentValue(3, model, kColReload);
    if (ammo == 0) d_CheckBlownComponent(kSweepOnly);
    Assign(G.WeaponReload[line], reload);
  }
}

}  // namespace

void d_DetermineWeapons() {
  G.WeaponRack.Items.fill(0);
  int line = 2;
  auto add = [&line](int value) {
    if (line >= decltype(G.WeaponRack)::kHi) return;  // no room for an eleventh line
    G.WeaponRack[++line] = static_cast<std::int16_t>(value);
  };
  const int last = std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi);
  for (int slot = 1; slot <= last; ++slot)
    if (G.FittedComp[slot][1] == 1 || G.FittedComp[slot][1] == 3) add(slot);
  if (G.DragonIonBeam != 0) add(kDragon);
  if (G.RapierMissile != 0) add(kRapier);
  if (G.ShrikeMissile != 0) add(kShrike);
  G.WeaponRack[0] = static_cast<std::int16_t>(line);
  for (int i = 1; i <= line; ++i) G.WeaponReload[i] = 0;
}

void d_CheckWeaponRange() {
  const double d = 50 - G.FightRange;
  const int lines = std::clamp<int>(G.WeaponRack[0], 0, 10);
  for (int i = 1; i <= lines; ++i) {
    const int v = G.WeaponRack[i];
    bool out;
    if (v == kDragon) {
      out = d > 15;
    } else if (v == kRapier || v == kShrike) {
      out = d > 25;
    } else {
      const int group = LineGroup(i);
      const double range = (group == 1 || group == 3) ? ComponentValue(group, LineModel(i), kColRange) : 0;
      out = d > range * 10 - 5;
    }
    if (out) G.WeaponReload[i] = 1;
  }
}

void d_CheckWeaponSelection() {
  if (!Within(G.MouseX, 254, 360)) return;
  const int lines = std::clamp<int>(G.WeaponRack[0], 0, 10);
  for (int i = 1; i <= lines; ++i) {
    if (!Within(G.MouseY, 348 + (i - 1) * 11, 348 + i * 11)) continue;
    const int v = G.WeaponRack[i];
    const int group = LineGroup(i);
    if ((IsSpecialWeapon(v) && SpecialOwned(v)) || group == 1 || group == 3) {
      G.WeaponSelected = static_cast<std::int16_t>(i);
      PlaySoundFx(4, 1);
    }
  }
}

void d_CheckTargetSelection() {
  if (!Within(G.MouseX, 376, 426)) return;
  for (int i = 1; i <= 5; ++i) {
    if (!Within(G.MouseY, 346 + (i - 1) * 23, 346 + i * 23)) continue;
    PlaySoundFx(4, 1);
    G.TargetSelected = static_cast<std::int16_t>(i);
    Fire();
  }
}

void d_CheckSpecialSelection() {
  if (!Within(G.MouseX, 130, 230)) return;
  for (int i = 1; i <= 5; ++i) {
    const SpecialSystem& s = kSpecial[i];
    if (!Within(G.MouseY, s.Top, s.Bottom) || !SpecialSystemOwned(i) || G.SpecialTimer[i] != 0) continue;
    G.SpecialTimer[i] = s.Start;
    PlaySoundFx(s.Sound, 3);
  }
}

}  // namespace lf
