// Rules the boards, the bridge and the arrival chain share about missions.
#pragma once

#include <string>

#include "missions/data/mission_catalogue.h"
#include "missions/missions_state.h"

namespace lf {

// The captain's rank 1..10 by the last reputation threshold reached.
int MissionRank(double reputation);

// The catalogue entry in a slot when it is a real mission (slot 1..500,
// a type of the catalogue); nullptr otherwise.
MissionRecord* MissionInSlot(int slot);
// The mission carried in place 1..2, nullptr for a free place or one whose
// slot holds no real mission.
MissionRecord* MissionInPlace(int place);

// Missions whose goods take room in the hold from acceptance on.
bool MissionTakesCargo(int type);
// Two-goal missions are done at progress 3, the others at 1.
bool TwoGoalMission(int type);
bool MissionComplete(int type, int progress);

// The name of planet kind 1..10, empty for anything else.
std::string_view PlanetKindName(int kind);
// "(x,y)" of a point, in hundreds.
std::string PointText(double x, double y);
// The name of planet n, empty when there is no such planet.
std::string PlanetNameOf(int planet);

// A fight won near the target of a strike mission completes it.
void MissionFightWon();

// Prepares the sector for the mission in a slot, right after it is taken.
void a_MissionInitialize(int slot);
// Gives up the mission in place 1..2 (the decline icon of the panel).
void DeclineMission(int place);

}  // namespace lf
