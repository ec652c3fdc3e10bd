// What the fight's procedures share: the fitted slots and the opponent's
// loadout read by group, the weapon lines, the clock's reseeding, and the
// loss of the game in a fight.
#pragma once

#include <string>

namespace lf {

// Columns of the component table read in a fight.
inline constexpr int kColName = 1;
inline constexpr int kColDamage = 6;      // beams and launchers
inline constexpr int kColEnergy = 7;      // beams
inline constexpr int kColReload = 8;      // beams and launchers
inline constexpr int kColRange = 9;       // beams and launchers
inline constexpr int kColAmmo = 10;       // launchers
inline constexpr int kColAccuracy = 11;   // launchers
inline constexpr int kColGrade = 7;       // computers
inline constexpr int kColSpeed = 7;       // engines
inline constexpr int kColEvasion = 8;     // engines
inline constexpr int kColShieldPower = 6; // shields

// The special weapons of the rack.
inline constexpr int kDragon = 20, kRapier = 21, kShrike = 22;

// The generator reseeded from the clock. The clock's seed is mixed with the
// generator's state, so two reseeds in one frame do not repeat their draws.
void ReseedFromClock();

// The name cell of a component (empty outside the table); no copy made.
const std::string& FightComponentName(int group, int model);

// The model in the first fitted slot of a group on the player's ship, 0 none.
int FirstFittedModel(int group);

// The opponent's ship class (0 for a ship number outside the table), and a
// slot 1..16 of its loadout: group and model, 0 outside the table.
int OpponentClass();
int LoadoutGroup(int slot);
int LoadoutModel(int slot);
// The model in the first loadout slot of a group, 0 none.
int FirstLoadoutModel(int group);

// Weapon line i: what the rack holds (0 outside it), and for a fitted slot
// its group and model (0 for a special, an empty line or an empty slot).
int RackValue(int line);
bool IsSpecialWeapon(int value);
int LineGroup(int line);
int LineModel(int line);
// A special weapon still owned.
bool SpecialOwned(int value);

// Special system i (1 countermeasure rack .. 5 electronic counter-CM) owned.
bool SpecialSystemOwned(int i);

// True while some post 1..6 has a person.
bool AnyCrew();


}  // namespace lf
