// Mission procedures not written yet.
#include "missions/missions_procedures.h"

namespace lf {

// Mission catalogue: filled by the mission offers.
void DefineMissionSpecs() {}

// Mission lifecycle: filled by the mission progress rules.
void CheckPatrolPoint() {}
void CheckMission(int) {}
void DrawMissionObjectives() {}
void DrawCurrentMissions() {}

}  // namespace lf
