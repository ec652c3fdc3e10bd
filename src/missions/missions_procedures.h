// The mission procedures called from the shell and the bridge frame.
#pragma once

namespace lf {

// The mission catalogue, filled at a new game.
void DefineMissionSpecs();
// Progress on the bridge, in every frame the ship can move.
void CheckPatrolPoint();
// Progress of kind 1..6 (6: a mission event reached its closing node).
void CheckMission(int kind);
// The objectives on the map, and the panel of button (5,4).
void DrawMissionObjectives();
void DrawCurrentMissions();

}  // namespace lf
