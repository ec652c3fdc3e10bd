// The ship catalogue's lookups: what a component weighs, its full health and
// its demand on the power system; the health percentage of a fitted slot;
// the race, hull class and kind of a ship class. All read the tables that
// DefineShipSpecs filled, and a cell outside them reads empty.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "universe/universe_state.h"

namespace lf {

// Kinds of ship, by hull class: 1 scout, 2 trader, 3 and 4 military, 5 pirate.
enum class ShipKind : int { None = 0, Scout = 1, Trader = 2, Military = 3, Pirate = 5 };

struct ShipClassInfo {
  int Race = 0;       // 1..7
  int HullClass = 0;  // 1..5
  ShipKind Kind = ShipKind::None;
};

// Race, hull class and kind of ship class 1..19; all 0 for any other number.
ShipClassInfo ClassInfo(int shipClass);
// "SCOUT", "TRADER", "MILITARY", "PIRAT"; empty for None.
std::string_view KindLabel(ShipKind kind);
// The hull a ship class flies (an empty record for a class outside 1..19).
HullRecord ClassHull(int shipClass);

// "HUMAN" .. "PIRATES" for 1..7, empty otherwise.
std::string_view RaceName(int race);
// Grades 1..5 in words, as the station's pages write them: "VERY POOR",
// "POOR", "AVERAGE", "GOOD", "EXCELLENT" (the bridge's crew panel shortens
// the last to "EXCELL." with its own words).
std::string_view GradeName(int grade);

// A cell of ComponentTable as text, and read as a number (an empty or
// missing cell reads as "" and 0).
std::string ComponentText(int group, int model, int column);
double ComponentValue(int group, int model, int column);

// The three lookups: weight, full health, demand on the power system (for a
// generator its output). 0 for a group without the column.
double ComponentWeight(int group, int model);
double ComponentFullHealth(int group, int model);
double ComponentPowerDemand(int group, int model);

// Int(FittedHealth / full health x 100) of a fitted slot. Throws
// StatementFailed where the game's division fails (an empty slot, or a model
// without health) or the slot is outside 0..20: run it inside Skip.
std::int32_t HealthPercent(int slot);

}  // namespace lf
