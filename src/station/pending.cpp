// Station procedures of the screens not built yet, grouped by screen. Each
// screen's builder deletes its group from here.
#include "station/station_procedures.h"

namespace lf {

// --- Missions: the boards, their notices, and the station's steps.
void a_DrawGuildMissions(int) {}
void a_DrawGuildMissionDesc(int) {}
void a_MissionSelection(int) {}
// No board holds a mission yet.
int MissionOnBoardLine(int, int) { return 0; }
void a_StationMissionRandomize() {}
void a_CheckStoryPass() {}
// Nothing to pay: the chain goes on to the loan step.
void a_MissionCheck() { a_CheckLoanRepay(); }

}  // namespace lf
