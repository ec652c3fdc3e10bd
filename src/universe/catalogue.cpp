#include "universe/catalogue.h"

#include <cstdlib>

#include "shell/game_state.h"
#include "universe/data/universe_data.h"
#include "universe/new_game.h"

namespace lf {

namespace {

// Column of each lookup by group 1..7 (0: the group has none).
constexpr int kWeightColumn[8] = {0, 4, 4, 4, 4, 4, 6, 7};
constexpr int kFullHealthColumn[8] = {0, 5, 6, 5, 5, 6, 6, 5};
constexpr int kDemandColumn[8] = {0, 7, 5, 0, 7, 5, 5, 6};

double Lookup(const int (&columns)[8], int group, int model) {
  if (group < 1 || group > 7) return 0;
  const int column = columns[group];
  return column == 0 ? 0 : ComponentValue(group, model, column);
}

const std::string* Cell(int group, int model, int column) {
  using T = decltype(G.ComponentTable);
  using M = std::remove_reference_t<decltype(G.ComponentTable[0])>;
  using C = std::remove_reference_t<decltype(G.ComponentTable[0][0])>;
  if (!T::InBounds(group) || !M::InBounds(model) || !C::InBounds(column)) return nullptr;
  return &G.ComponentTable[group][model][column];
}

}  // namespace

void DefineShipSpecs() {
  for (int c = 0; c <= 5; ++c) G.HullClassName[c] = std::string(data::kHullClassNames[c]);

  G.Hull = {};
  for (const auto& row : data::kHullRows) {
    HullRecord& h = G.Hull[row.Race][row.Class];
    h.Name = std::string(row.Name);
    h.Price = row.Price;
    h.HullPoints = row.HullPoints;
    h.CarryAmount = row.CarryAmount;
    h.Hardpoints = row.Hardpoints;
    h.CargoHold = row.CargoHold;
  }

  for (auto& group : G.ComponentTable)
    for (auto& model : group)
      for (auto& cell : model) cell.clear();
  for (const auto& row : data::kComponentRows)
    for (int col = 1; col <= data::kComponentColumnsListed; ++col)
      G.ComponentTable[row.Group][row.Model][col] = std::string(row.Cells[col - 1]);

  G.ShipLoadout = {};
  for (const auto& row : data::kShipClassRows) {
    auto& loadout = G.ShipLoadout[row.Class];
    loadout[0][1] = static_cast<std::int16_t>(row.HullClass);
    for (int s = 1; s <= row.SlotCount; ++s) {
      loadout[s][1] = static_cast<std::int16_t>(row.Slots[s - 1].Group);
      loadout[s][2] = static_cast<std::int16_t>(row.Slots[s - 1].Model);
    }
  }
}

ShipClassInfo ClassInfo(int shipClass) {
  if (shipClass < 1 || shipClass > 19) return {};
  const auto& row = data::kShipClassRows[static_cast<std::size_t>(shipClass - 1)];
  ShipClassInfo info;
  info.Race = row.Race;
  info.HullClass = row.HullClass;
  switch (row.HullClass) {
    case 1: info.Kind = ShipKind::Scout; break;
    case 2: info.Kind = ShipKind::Trader; break;
    case 3:
    case 4: info.Kind = ShipKind::Military; break;
    case 5: info.Kind = ShipKind::Pirate; break;
    default: break;
  }
  return info;
}

std::string_view KindLabel(ShipKind kind) {
  switch (kind) {
    case ShipKind::Scout: return "SCOUT";
    case ShipKind::Trader: return "TRADER";
    case ShipKind::Military: return "MILITARY";
    case ShipKind::Pirate: return "PIRAT";
    default: return "";
  }
}

HullRecord ClassHull(int shipClass) {
  const ShipClassInfo info = ClassInfo(shipClass);
  if (info.Race == 0) return {};
  return G.Hull[info.Race][info.HullClass];
}

std::string_view RaceName(int race) {
  return (race >= 1 && race <= 7) ? data::kRaceNames[static_cast<std::size_t>(race)] : "";
}

std::string_view GradeName(int grade) {
  static constexpr std::string_view kGrades[6] = {"", "VERY POOR", "POOR", "AVERAGE", "GOOD",
                                                  "EXCELLENT"};
  return (grade >= 1 && grade <= 5) ? kGrades[grade] : "";
}

std::string ComponentText(int group, int model, int column) {
  const std::string* cell = Cell(group, model, column);
  return cell ? *cell : std::string();
}

double ComponentValue(int group, int model, int column) {
  const std::string* cell = Cell(group, model, column);
  if (!cell || cell->empty()) return 0;
  return std::strtod(cell->c_str(), nullptr);
}

double ComponentWeight(int group, int model) { return Lookup(kWeightColumn, group, model); }
double ComponentFullHealth(int group, int model) { return Lookup(kFullHealthColumn, group, model); }
double ComponentPowerDemand(int group, int model) { return Lookup(kDemandColumn, group, model); }

std::int32_t HealthPercent(int slot) {
  const auto& fit = G.FittedComp[slot];
  const double full = ComponentFullHealth(fit[1], fit[2]);
  if (full == 0) throw StatementFailed{};
  return CInt(Int(G.FittedHealth[slot] / full * 100));
}

}  // namespace lf
