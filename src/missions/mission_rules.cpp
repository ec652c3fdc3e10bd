#include "missions/mission_rules.h"

#include <array>
#include <cmath>

#include "shell/game_state.h"

namespace lf {

int MissionRank(double reputation) {
  static constexpr std::array<double, 10> kThreshold{0, 1000, 2000, 4000, 6000, 9000, 13000, 16000, 21000, 30000};
  int rank = 1;
  for (int r = 1; r <= 10; ++r)
    if (reputation >= kThreshold[static_cast<std::size_t>(r - 1)]) rank = r;
  return rank;
}

MissionRecord* MissionInSlot(int slot) {
  if (slot < 1 || slot > decltype(G.Missions)::kHi) return nullptr;
  MissionRecord& m = G.Missions[slot];
  return data::FindMissionSpec(m.MissionType) != nullptr ? &m : nullptr;
}

MissionRecord* MissionInPlace(int place) {
  if (place < 1 || place > 2) return nullptr;
  return MissionInSlot(G.ActiveMission[place]);
}

bool MissionTakesCargo(int type) {
  return (type >= 1 && type <= 5) || type == 8 || type == 9 || (type >= 25 && type <= 28);
}

bool TwoGoalMission(int type) { return type == 11 || type == 12 || type == 16 || type == 36; }

bool MissionComplete(int type, int progress) { return progress == (TwoGoalMission(type) ? 3 : 1); }

std::string_view PlanetKindName(int kind) {
  static constexpr std::array<std::string_view, 10> kNames{"BARREN", "TUNDRA",  "DESERT",   "TERRAN", "SWAMP",
                                                           "GAS GIANT", "GENESIS", "OCEAN", "RADIATED", "TOXIC"};
  return kind >= 1 && kind <= 10 ? kNames[static_cast<std::size_t>(kind - 1)] : std::string_view{};
}

std::string PointText(double x, double y) {
  return "(" + std::to_string(static_cast<long long>(Int(x / 100))) + "," +
         std::to_string(static_cast<long long>(Int(y / 100))) + ")";
}

std::string PlanetNameOf(int planet) {
  if (planet < 0 || planet > decltype(G.Planet)::kHi) return {};
  return G.Planet[planet].Name;
}

}  // namespace lf
