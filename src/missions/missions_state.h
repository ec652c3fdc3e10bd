// The missions' share of the Game record: the catalogue, the two missions
// held and their progress, and the story stages.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct MissionRecord {
  std::int16_t PlanetKind1 = 0, PlanetKind2 = 0;
  Flag Spare1 = False;
  std::string Title;
  std::int16_t Flavour = 0;
  std::int16_t MissionType = 0;  // 0: an empty record
  std::int16_t MinRank = 0;
  std::string Spare2;
  std::int16_t Guild = 0;
  std::int16_t CommodityNo = 0;
  std::int16_t CargoUnits = 0;
  std::int16_t Class = 0;
  std::int32_t TargetX = 0, TargetY = 0;
  std::int16_t TargetPlanet = 0;
  std::int32_t Reward = 0;
  std::int16_t Threat = 0;
  std::int16_t ReputationGain = 0;
  std::int16_t Tag = 0;
  std::int16_t Spare3 = 0;
  Table<std::int32_t, 3> NavX{}, NavY{};
};
template <class V>
void VisitFields(V& v, MissionRecord& r) {
  v("PlanetKind1", r.PlanetKind1); v("PlanetKind2", r.PlanetKind2); v("Spare1", r.Spare1);
  v("Title", r.Title); v("Flavour", r.Flavour); v("MissionType", r.MissionType);
  v("MinRank", r.MinRank); v("Spare2", r.Spare2); v("Guild", r.Guild);
  v("CommodityNo", r.CommodityNo); v("CargoUnits", r.CargoUnits); v("Class", r.Class);
  v("TargetX", r.TargetX); v("TargetY", r.TargetY); v("TargetPlanet", r.TargetPlanet);
  v("Reward", r.Reward); v("Threat", r.Threat); v("ReputationGain", r.ReputationGain);
  v("Tag", r.Tag); v("Spare3", r.Spare3); v("NavX", r.NavX); v("NavY", r.NavY);
}

struct MissionsState {
  Table<MissionRecord, 500> Missions{};
  // The missions held (a Missions slot, 0 none) and how far each has come.
  Table<std::int16_t, 2> ActiveMission{};
  Table<std::int16_t, 2> MissionProgress{};
  Table<Flag, 10> StoryStage{};
};

template <class V>
void VisitFields(V& v, MissionsState& s) {
  v("Missions", s.Missions);
  v("ActiveMission", s.ActiveMission);
  v("MissionProgress", s.MissionProgress);
  v("StoryStage", s.StoryStage);
}

}  // namespace lf
