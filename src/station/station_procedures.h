// The station's procedures: the hand-over from the bridge, the loop and its
// screens, the terminal with its arrival and departure chains, and the
// procedures of every screen behind it. Those of the lounge, the dealer,
// the fleet office, the guilds, the missions and the loans stand in
// pending.cpp until their screens are built.
#pragma once

namespace lf {

// --- Docking and the loop.
// Stops the clock, swaps the bitmap sets, deals the boards; ends in
// a_StationLoop (screens.h).
void a_EnteringStation();
// A press while the station screen runs: the handler of the current screen.
void a_CheckStationMouseDown();
// One pass of a_StationLoop, its yield included. a_StationLoop (the
// machine) sets StationActive and repeats this while StationActive = -1.
void a_StationLoopFrame();
// The menu lines of this station.
void a_DetermineStationComps();
// The background of the screen on show, at 0,0.
void a_DrawStationBack();
// Every terminal letter whose left neighbour shows rises a step.
void a_AddToLetterCount();

// --- Screen 1, the terminal.
void a_DrawStationTitle();
void a_DrawStationComps();
void a_DrawLogonText();
void a_CheckMouseDown1();

// The arrival chain, each step showing a notice or going on to the next.
void a_CheckHostility();
void a_CheckMedical();
void a_CheckContraband();
void a_CheckLander();
void a_SallaryCheck();
void a_Welcome();
// The departure and its checks.
void a_ExitStation();
void a_CheckCrewMembers();
void a_CheckShip();
void a_CheckExitComponents();
void a_CheckOverFit();

// --- Screen 2, the meeting lounge.
void a_DrawStationCrew();
void a_DrawCrewInfo();
void a_DrawCrewMembers();
void a_DrawStationNews();
void a_DrawBarSelection();
// Whole credits in the corner of the lounge, the fleet office and the guilds.
void a_DrawCash();
// The special goods on offer: 5 the pirates' offer in the lounge, 2..4 a
// guild's equipment.
void a_DrawSpecialEquip(int kind);
void a_CheckMouseDown2();
// A new headline for the lounge's news screen.
void a_ChangeNewsText();

// --- Screen 3, the commodity exchange.
void a_DrawCommodityNames();
void a_DrawStockStates();
void a_DrawStockPrices();
void a_DrawCashCargo();
void a_CheckMouseDown3();

// --- Screen 4, the ship dealer.
void a_DetermineStationEquip();
void a_DrawCompAnim();
void a_DrawHardPList();
void a_DrawCompInfo();
void a_DrawGroupSelection();
void a_DrawStationEquip();
void a_DrawDealerButts();
void a_DrawCashCarry();
void a_CheckMouseDown4();

// --- Screen 5, the fleet office.
void a_DrawFedText();
void a_DrawFedTrans();
void a_DrawFedLoan();
void a_DrawFedPayFine();
void a_DrawFedCharts();
void a_DrawFedStarLane();
void a_CheckMouseDown5();
// The own crew on the fleet office and the guild screens.
void a_DrawGuildCrew();
void a_DrawGuildCrewMembers();
// A step of the arrival chain: reminders of a loan, and the seizure.
void a_CheckLoanRepay();

// --- Screens 6, 7, 8, the guilds.
void a_DrawGuildSelection();
void a_DrawGuildMembership();
void a_CheckMouseDown6();
void a_CheckMouseDown7();
void a_CheckMouseDown8();
// The guild panel on the bridge, button (5,8).
void DrawGuildMembership();

// --- Missions: the boards (1 the lounge, 2..4 the guilds, 5 the pirates'
// lounge), their notices, and the station's share of the lifecycle.
void a_DrawGuildMissions(int board);
void a_DrawGuildMissionDesc(int board);
// Takes the open offer of the board.
void a_MissionSelection(int board);
// The mission on line 1..10 of a board, 0 for none.
int MissionOnBoardLine(int board, int line);
void a_DrawMissionUnAvail();
void a_DrawMissionUnAvail2();
void a_DrawMissionUnAvail3();
void a_DrawMissionUnAvail4();
void a_DrawMissionUnAvail5();
void a_StationMissionRandomize();
void a_CheckStoryPass();
// A step of the arrival chain: pays finished missions.
void a_MissionCheck();

}  // namespace lf
