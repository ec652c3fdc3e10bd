// What the docked station's dealer sells: one set of components by quadrant
// and race, and the hulls of the station's own race.
#include "shell/game_state.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/data/station_data.h"

namespace lf {

namespace {

const data::EquipSet* SetFor(int quadrant, int race) {
  for (const auto& entry : data::kEquipSetByStation) {
    if (entry.Race != race || (entry.Quadrant != 0 && entry.Quadrant != quadrant)) continue;
    for (const auto& set : data::kEquipSets)
      if (set.Name == entry.Set) return &set;
  }
  return nullptr;
}

}  // namespace

void a_DetermineStationEquip() {
  G.StationEquip = {};
  const int race = StationRace();
  if (const data::EquipSet* set = SetFor(G.CurrentQuadrant, race)) {
    for (int group = 1; group <= 7; ++group) {
      int line = 0;
      for (std::int16_t model : set->Models[static_cast<std::size_t>(group)])
        if (model != 0) G.StationEquip[group][++line] = model;
    }
  }
  // A lawful station lists the hulls of its race, classes 1 to 4, skipping
  // the cells that hold no hull; a pirate station sells none.
  if (race < 1 || race > 6) return;
  int line = 0;
  for (int hullClass = 1; hullClass <= 4; ++hullClass)
    if (!G.Hull[race][hullClass].Name.empty()) G.StationEquip[10][++line] = static_cast<std::int16_t>(hullClass);
}

}  // namespace lf
