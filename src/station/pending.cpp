// Station procedures of the screens not built yet, grouped by screen. Each
// screen's builder deletes its group from here.
#include "station/station_procedures.h"

namespace lf {

// --- Screen 5, the fleet office and its loans.
void a_DrawFedText() {}
void a_DrawFedTrans() {}
void a_DrawFedLoan() {}
void a_DrawFedPayFine() {}
void a_DrawFedCharts() {}
void a_DrawFedStarLane() {}
void a_CheckMouseDown5() {}
void a_DrawGuildCrew() {}
void a_DrawGuildCrewMembers() {}
// Nothing to remind of: the chain goes on to the welcome.
void a_CheckLoanRepay() { a_Welcome(); }

// --- Screens 6, 7, 8, the guilds.
void a_DrawGuildSelection() {}
void a_DrawGuildMembership() {}
void a_CheckMouseDown6() {}
void a_CheckMouseDown7() {}
void a_CheckMouseDown8() {}
void DrawGuildMembership() {}

// --- Missions: the boards, their notices, and the station's steps.
void a_DrawGuildMissions(int) {}
void a_DrawGuildMissionDesc(int) {}
void a_MissionSelection(int) {}
// No board holds a mission yet.
int MissionOnBoardLine(int, int) { return 0; }
void a_DrawMissionUnAvail() {}
void a_DrawMissionUnAvail2() {}
void a_DrawMissionUnAvail3() {}
void a_DrawMissionUnAvail4() {}
void a_DrawMissionUnAvail5() {}
void a_StationMissionRandomize() {}
void a_CheckStoryPass() {}
// Nothing to pay: the chain goes on to the loan step.
void a_MissionCheck() { a_CheckLoanRepay(); }

}  // namespace lf
