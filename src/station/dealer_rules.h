// What the dealer's actions, its press handler and its drawing share.
#pragma once

namespace lf {

// The catalogue column of a launcher's rounds.
inline constexpr int kAmmoColumn = 10;

// Hardpoints of the hull that the slot tables can hold (0..20).
int HardpointSlots();
// The first empty slot from 1 to HardpointCount, 0 when all hold one.
int FirstFreeHardpoint();
// Cost of a component in credits (0 for a model outside the catalogue).
double ComponentCost(int group, int model);
// Line 1..10 of the right list that DealerSelection names (below 1 for none).
int DealerLine();
// The model on sale on the selected line of the chosen group (0 for none).
int LineModel();
// What a fitted slot sells for: Int(Cost x health / full health). Throws
// StatementFailed for a model without health: run it inside Skip.
double SellValue(int slot);
// Price of a hull cell, 0 for no hull.
double HullPrice(int race, int hullClass);

}  // namespace lf
