// The dealer's actions on the selection: buying, selling, repairing and
// fitting components, buying a hull, and tidying the slots afterwards.
#include <algorithm>

#include "bridge/bridge_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/dealer_rules.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

// A component of the fit, or of the unfitted store, keeps group and model.
bool SlotHolds(int slot) {
  bool holds = false;
  Skip([&] { holds = G.FittedComp[slot][1] != 0; });
  return holds;
}

void AddFreeMass(double weight) { Assign(G.FreeMass, G.FreeMass + weight); }

}  // namespace

int HardpointSlots() { return std::clamp<int>(G.HardpointCount, 0, 20); }

int FirstFreeHardpoint() {
  for (int slot = 1; slot <= HardpointSlots(); ++slot)
    if (!SlotHolds(slot)) return slot;
  return 0;
}

double ComponentCost(int group, int model) { return ComponentValue(group, model, 3); }

int DealerLine() { return G.DealerSelection - 20; }

int LineModel() {
  int model = 0;
  Skip([&] { model = G.StationEquip[G.DealerGroup][DealerLine()]; });
  return model;
}

void a_BuyComp() {
  const int group = G.DealerGroup, model = LineModel();
  const double price = ComponentCost(group, model), weight = ComponentWeight(group, model);
  if (price <= G.Cash && weight <= G.FreeMass) {
    PlaySoundFx(4, 1);
    const int slot = FirstFreeHardpoint();
    if (slot == 0) {
      PlaySoundFx(15, 7);
    } else {
      G.FittedComp[slot][1] = static_cast<std::int16_t>(group);
      G.FittedComp[slot][2] = static_cast<std::int16_t>(model);
      G.FittedHealth[slot] = ComponentFullHealth(group, model);
      Assign(G.AmmoLeft[slot], group == 3 ? ComponentValue(3, model, kAmmoColumn) : 0.0);
      G.Cash -= price;
      AddFreeMass(-weight);
      a_ResetEnergy();
    }
  } else if (price > G.Cash) {
    PlaySoundFx(13, 6);
  } else {
    PlaySoundFx(16, 5);
  }
  a_ReArrangeHardPoints();
}

double SellValue(int slot) {
  const int group = G.FittedComp[slot][1], model = G.FittedComp[slot][2];
  const double full = ComponentFullHealth(group, model);
  // A model without health makes the game's division fail: it sells for nothing.
  if (full == 0) throw StatementFailed{};
  return Int(ComponentCost(group, model) * G.FittedHealth[slot] / full);
}

void a_CompSell() {
  const int slot = G.DealerSelection;
  if (!SlotHolds(slot)) return;
  PlaySoundFx(4, 1);
  Skip([&] { G.Cash += SellValue(slot); });
  AddFreeMass(ComponentWeight(G.FittedComp[slot][1], G.FittedComp[slot][2]));
  G.UpgradeJob[slot].Upgraded = False;
  G.UpgradeJob[slot].Active = False;
  G.UpgradeJob[slot].Progress = 0;
  G.FittedComp[slot][1] = 0;
  G.DealerSelection = 0;
  a_ResetEnergy();
  a_ReArrangeHardPoints();
}

void a_CompRepair() {
  const int slot = G.DealerSelection;
  if (!SlotHolds(slot)) return;
  const int group = G.FittedComp[slot][1], model = G.FittedComp[slot][2];
  const double full = ComponentFullHealth(group, model);
  if (full == 0) return;  // nothing to measure the repair by
  const double step = ComponentCost(group, model) / 142;
  if (step <= G.Cash) {
    G.FittedHealth[slot] += full / 10;
    PlaySoundFx(4, 1);
    if (Int(G.FittedHealth[slot] / full * 100) >= 100)
      G.FittedHealth[slot] = full;  // the step that makes it whole is free
    else
      G.Cash -= step;
  } else {
    PlaySoundFx(13, 6);
  }
}

double HullPrice(int race, int hullClass) {
  double price = 0;
  Skip([&] { price = G.Hull[race][hullClass].Price; });
  return price;
}

void a_HullRepair() {
  if (G.HullPointsMax <= 0) return;
  const double percent = Int(G.HullPoints / G.HullPointsMax * 100);
  const double step = HullPrice(G.HullRace, G.HullClass) * 0.00224;
  if (G.Cash >= step && percent < 100) {
    G.Cash -= step;
    G.HullPoints += G.HullPointsMax / 100.0;
  } else if (G.Cash < step) {
    PlaySoundFx(13, 5);
  } else {
    PlaySoundFx(4, 1);
  }
}

void a_PurchaseShipHull() {
  const int race = StationRace();
  int hullClass = 0;
  Skip([&] { hullClass = G.StationEquip[10][DealerLine()]; });
  if (race < 1 || race > 6 || hullClass == 0) return;
  const HullRecord hull = G.Hull[race][hullClass];
  if (hull.Name.empty()) return;
  const double oldPrice = HullPrice(G.HullRace, G.HullClass);  // no hull: 0
  if (oldPrice + G.Cash - hull.Price < 0) {
    PlaySoundFx(13, 6);
    return;
  }
  G.Cash += oldPrice - hull.Price;
  a_ResetEnergy();
  G.HullRace = static_cast<std::int16_t>(race);
  G.HullClass = static_cast<std::int16_t>(hullClass);
  G.HullPoints = G.HullPointsMax = hull.HullPoints;
  G.FreeMass = hull.CarryAmount;
  G.HardpointCount = hull.Hardpoints;
  G.FreeCargo = hull.CargoHold;
  for (int slot = 1; slot <= 16; ++slot)
    if (SlotHolds(slot)) AddFreeMass(-ComponentWeight(G.FittedComp[slot][1], G.FittedComp[slot][2]));
  a_ReArrangeHardPoints();
}

void a_ReArrangeHardPoints() {
  for (int from = G.HardpointCount + 1; from <= 16; ++from) {
    if (from < 1 || !SlotHolds(from)) continue;
    const int to = FirstFreeHardpoint();
    if (to == 0) return;
    G.FittedComp[to] = G.FittedComp[from];
    G.FittedHealth[to] = G.FittedHealth[from];
    // A launcher keeps its rounds and a component its research as it moves.
    G.AmmoLeft[to] = G.AmmoLeft[from];
    G.UpgradeJob[to] = G.UpgradeJob[from];
    G.FittedComp[from][1] = 0;
    G.AmmoLeft[from] = 0;
    G.UpgradeJob[from] = {};
  }
}

void a_CheckFit() {
  const int line = DealerLine();
  if (line < 1 || line > 4 || G.UnfittedComp[line][1] == 0) return;
  const int slot = FirstFreeHardpoint();
  if (slot == 0) return;
  const int group = G.UnfittedComp[line][1], model = G.UnfittedComp[line][2];
  G.FittedComp[slot][1] = static_cast<std::int16_t>(group);
  G.FittedComp[slot][2] = static_cast<std::int16_t>(model);
  G.FittedHealth[slot] = 5 + Int(Rnd() * 10);
  Assign(G.AmmoLeft[slot], group == 3 ? ComponentValue(3, model, kAmmoColumn) : 0.0);
  G.UpgradeJob[slot] = {};
  for (int i = line; i < 4; ++i) G.UnfittedComp[i] = G.UnfittedComp[i + 1];
  G.UnfittedComp[4] = {};
  G.DealerSelection = 0;
}

void a_SellUnfitted() {
  const int line = DealerLine();
  if (line < 1 || line > 4 || G.UnfittedComp[line][1] == 0) return;
  const int group = G.UnfittedComp[line][1], model = G.UnfittedComp[line][2];
  AddFreeMass(ComponentWeight(group, model));
  G.Cash += CIntReal(ComponentCost(group, model) / 10);
  PlaySoundFx(4, 1);
  G.UnfittedComp[line] = {};
  G.DealerSelection = 0;
}

}  // namespace lf
