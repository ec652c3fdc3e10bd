#include "bridge/comms.h"

#include <algorithm>

#include "shell/game_state.h"
#include "shell/guards.h"

namespace lf {

int ShipRaceOf(int row) {
  if (!decltype(G.OtherShip)::InBounds(row)) return 0;
  return ClassInfo(G.OtherShip[row].ShipClass).Race;
}

ShipKind ShipKindOf(int row) {
  if (!decltype(G.OtherShip)::InBounds(row)) return ShipKind::None;
  return ClassInfo(G.OtherShip[row].ShipClass).Kind;
}

std::int16_t& HailedRelation() {
  const int race = ShipRaceOf(G.HailedShip);
  if (race == 0 || G.HailedShip == 0) throw StatementFailed{};
  return G.RaceRelation[race];
}

int MenuBand(int relation) {
  const int r = std::clamp(relation, 0, 100);
  if (r <= 34) return 0;
  if (r <= 65) return 1;
  return 2;
}

const char* HailRelationWord(int relation) {
  if (relation < 20) return "VERY HOSTILE";
  if (relation < 35) return "HOSTILE";
  if (relation <= 65) return "NEUTRAL";
  return "FRIENDLY";
}

const char* DiplomacyWord(int relation) {
  if (relation <= 35) return "HOSTILE";
  if (relation < 65) return "NEUTRAL";
  return "FRIENDLY";
}

void AddRelation(std::int16_t& relation, int n) { Assign(relation, static_cast<double>(relation) + n); }

void ImproveRelation(std::int16_t& relation) {
  const double r = relation;
  Assign(relation, r / 30 + r);
}

void LessATenth(std::int16_t& relation) {
  const double r = relation;
  Assign(relation, r - r / 10);
}

void MakePageOpen(int page) {
  for (int p = 1; p <= 6; ++p) G.PageOpen[p] = p == page ? 1 : 0;
  for (int b = 1; b <= 10; ++b)
    if (G.BridgeButton[page][b].Present != 0) G.BridgeButton[page][b].Visible = True;
}

void CloseHailLink() {
  ButtonState(2, 1) = 1;
  G.BridgeButton[2][1].Visible = True;
  ButtonState(1, 1) = 0;
  G.OrbitState = 7;
  for (std::string& line : G.HailLine) line.clear();
}

}  // namespace lf
