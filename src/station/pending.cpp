// Station procedures of the screens not built yet, grouped by screen. Each
// screen's builder deletes its group from here.
#include "station/station_procedures.h"

namespace lf {

// --- Screens 1 and 3, the terminal and the exchange: being built.
void a_DrawStationTitle() {}
void a_DrawStationComps() {}
void a_DrawLogonText() {}
void a_CheckMouseDown1() {}
void a_CheckHostility() {}
void a_CheckMedical() {}
void a_CheckContraband() {}
void a_CheckLander() {}
void a_SallaryCheck() {}
void a_Welcome() {}
void a_ExitStation() {}
void a_CheckCrewMembers() {}
void a_CheckShip() {}
void a_CheckExitComponents() {}
void a_CheckOverFit() {}
void a_DrawCommodityNames() {}
void a_DrawStockStates() {}
void a_DrawStockPrices() {}
void a_DrawCashCargo() {}
void a_CheckMouseDown3() {}

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
