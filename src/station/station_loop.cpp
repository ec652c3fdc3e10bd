// The station loop: one pass draws the screen on show by StationPage, the
// cursor, and types the terminal letters on; a press goes to the handler of
// the screen on show.
#include <algorithm>

#include "display/gfx.h"
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

bool Within(int v, int lo, int hi) { return v >= lo && v <= hi; }

void DrawTerminal() {
  Skip(a_DrawStationTitle);
  Skip(a_DrawStationComps);
  Skip(a_DrawLogonText);
}

void DrawLounge() {
  Skip(a_DrawStationCrew);
  Skip([] { a_DrawGuildMissions(IsPirateStation() ? 5 : 1); });
  const int page = G.ServicePage;
  if (page == 203)
    Skip(a_DrawMissionUnAvail4);
  else if (page == 202)
    Skip(a_DrawMissionUnAvail3);
  else if (page == 200)
    Skip(a_DrawMissionUnAvail);
  else if (Within(page, 100, 199))
    Skip([] { a_DrawGuildMissionDesc(1); });
  const int selection = G.LoungeSelection;
  if (selection < 30)
    Skip(a_DrawCrewInfo);
  else if (selection == 31 || Within(selection, 41, 49))
    Skip([] { a_DrawSpecialEquip(5); });
  Skip(a_DrawCrewMembers);
  if (selection == 30) Skip(a_DrawStationNews);
  if (selection != 0) Skip(a_DrawBarSelection);
  Skip(a_DrawCash);
}

void DrawExchange() {
  Skip(a_DrawCommodityNames);
  Skip(a_DrawStockStates);
  Skip(a_DrawStockPrices);
  Skip(a_DrawCashCargo);
}

void DrawDealer() {
  if (G.DealerSelection != 0) Skip(a_DrawCompAnim);
  Skip(a_DrawHardPList);
  if (G.DealerSelection != 0) Skip(a_DrawCompInfo);
  Skip(a_DrawGroupSelection);
  if (G.DealerGroup != 0) Skip(a_DrawStationEquip);
  Skip(a_DrawDealerButts);
  Skip(a_DrawCashCarry);
}

void DrawFleetOffice() {
  Skip(a_DrawFedText);
  const int page = G.ServicePage;
  if (page == 1 || Within(page, 51, 59))
    Skip(a_DrawFedTrans);
  else if (page == 2 || Within(page, 101, 109))
    Skip(a_DrawFedLoan);
  else if (page == 3 || Within(page, 121, 139))
    Skip(a_DrawFedPayFine);
  else if (page == 4)
    Skip(a_DrawFedCharts);
  else if (page == 5)
    Skip(a_DrawFedStarLane);
  else if (Within(page, 21, 29))
    Skip(a_DrawGuildCrew);
  Skip(a_DrawGuildCrewMembers);
  Skip(a_DrawCash);
}

// Screens 6, 7, 8 show boards 2, 3, 4.
void DrawGuild(int board) {
  Skip(a_DrawGuildSelection);
  Skip([board] { a_DrawGuildMissions(board); });
  const int page = G.ServicePage;
  if (page == 2 || Within(page, 301, 349))
    Skip([board] { a_DrawSpecialEquip(board); });
  else if (page == 203)
    Skip(a_DrawMissionUnAvail4);
  else if (page == 204)
    Skip(a_DrawMissionUnAvail5);
  else if (page == 201)
    Skip(a_DrawMissionUnAvail2);
  else if (page == 200)
    Skip(a_DrawMissionUnAvail);
  else if (page == 202)
    Skip(a_DrawMissionUnAvail3);
  else if (Within(page, 100, 199))
    Skip([board] { a_DrawGuildMissionDesc(board); });
  else if (page == 1)
    Skip(a_DrawGuildMembership);
  else if (Within(page, 21, 29))
    Skip(a_DrawGuildCrew);
  Skip(a_DrawGuildCrewMembers);
  Skip(a_DrawCash);
}

void DrawStationPage() {
  Skip(a_DrawStationBack);
  switch (StationPage()) {
    case 1: DrawTerminal(); break;
    case 2: DrawLounge(); break;
    case 3: DrawExchange(); break;
    case 4: DrawDealer(); break;
    case 5: DrawFleetOffice(); break;
    case 6: DrawGuild(2); break;
    case 7: DrawGuild(3); break;
    case 8: DrawGuild(4); break;
    default: break;  // no screen of that number: the background alone
  }
}

}  // namespace

void a_DrawStationBack() {
  SetSrc(0, 0, kScreenWidth, kScreenHeight);
  BltFast(0, 0, GFX.StationBack, false);
}

void a_AddToLetterCount() {
  for (int line = 1; line <= 20; ++line) {
    auto& fade = G.PromptFade[line];
    fade[0] = 3;
    for (int n = 1; n <= 200; ++n)
      if (fade[n - 1] > 0.3) fade[n] = std::min(fade[n] + 0.3, 3.0);
  }
}

void a_StationLoopFrame() {
  G.NoGameRunning = False;
  Yield();  // the pending input and clock ticks
  DrawStationPage();
  Skip(a_DrawCursor);
  a_AddToLetterCount();
  FlipBuffers();
}

void a_CheckStationMouseDown() {
  ReadCursor();
  switch (StationPage()) {
    case 1: a_CheckMouseDown1(); break;
    case 2: a_CheckMouseDown2(); break;
    case 3: a_CheckMouseDown3(); break;
    case 4: a_CheckMouseDown4(); break;
    case 5: a_CheckMouseDown5(); break;
    case 6: a_CheckMouseDown6(); break;
    case 7: a_CheckMouseDown7(); break;
    case 8: a_CheckMouseDown8(); break;
    // A screen number that names no screen (a damaged saved state): the
    // press brings the terminal back, so the player is never stuck.
    default: ReturnToTerminal(false); break;
  }
}

}  // namespace lf
