// What the communications officer's procedures share: the hailed ship's
// race and kind, the relation bands, the steps of a relation, opening the
// comms page and closing a hail.
#pragma once

#include <cstdint>

#include "universe/catalogue.h"

namespace lf {

// Race and kind of other ship `row` (0 and None for a row outside the table
// or a class outside the catalogue).
int ShipRaceOf(int row);
ShipKind ShipKindOf(int row);

// RaceRelation of the hailed ship's race. Throws StatementFailed when no
// ship of a known class is hailed: run it inside Skip.
std::int16_t& HailedRelation();

// The relation bands of the hail menu: 0 for 0..34, 1 for 35..65, 2 for
// 66..100; a relation below 0 counts as 0 and one above 100 as 100.
int MenuBand(int relation);
// The hail panel's word for a relation.
const char* HailRelationWord(int relation);
// The diplomacy panel's word for a relation.
const char* DiplomacyWord(int relation);

// Relation steps, each skipped when the result would not fit in 16 bits:
// add n; the x 31/30 step (CInt(R / 30 + R)); less a tenth (CInt(R - R / 10)).
void AddRelation(std::int16_t& relation, int n);
void ImproveRelation(std::int16_t& relation);
void LessATenth(std::int16_t& relation);

// Page p becomes the open page, its present buttons shown.
void MakePageOpen(int page);

// The hail closes: (2,1) on again and shown, (1,1) idle, the doors open
// (OrbitState 7) and the menu lines are cleared.
void CloseHailLink();

// The trade list and its clicks while TradeOpen (the ship-to-ship trade).
void DrawTradeList();
void DrawTradeList2(int row, const char* name, int offer, int cargo);
// Rolls what the hailed trader offers.
void RollShipOffer();

}  // namespace lf
