// The mission procedures called from the shell and the bridge frame.
#pragma once

namespace lf {

// The mission catalogue, filled at a new game.
void DefineMissionSpecs();
// Progress on the bridge, in every frame the ship can move.
void CheckPatrolPoint();
// The objectives on the map, and the panel of button (5,4).
void DrawMissionObjectives();
void DrawCurrentMissions();
// Told of what the ship has done that a mission may wait for: 1 a pod
// tractored aboard, 2 a body scanned, 3 an asteroid field, 4 a nebula,
// 5 a scan from orbit, 6 a mission event's end.
void CheckMission(int kind);

}  // namespace lf
