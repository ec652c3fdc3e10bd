// One bridge frame: updates, motion, layers, panels, cursor, flip. The order
// is the contract every bridge topic relies on.
#include "shell/run_loop.h"

#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "missions/missions_procedures.h"
#include "shell/bridge_frame_steps.h"
#include "shell/call_trace.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"
#include "shell/saved_games.h"
#include "shell/screens.h"
#include "universe/universe_procedures.h"

namespace lf {
namespace {

void DrawMapLayers() {
  Call("DrawBack", DrawBack);
  Call("DrawNebulas", DrawNebulas);
  Call("DrawQuadBack", DrawQuadBack);
  Call("DrawStars", DrawStars);
  if (G.ShowGrid == True) Call("DrawGrid", DrawGrid);
  if (G.ShowSensorRange == True && G.SensorLevel >= 100 && G.InNebula == 0)
    Call("DrawSensorRange", DrawSensorRange);
  Call("DrawPlans", DrawPlans);
  Call("DrawToolsIcons", DrawToolsIcons);
  Call("DrawTime", DrawTime);
  Call("DrawDebrisCargo", DrawDebrisCargo);
  Call("DrawMissionObjectives", DrawMissionObjectives);
  Call("DrawShip", DrawShip);
  Call("DrawOtherShips", DrawOtherShips);
  Call("DrawDistance", DrawDistance);
  Call("DrawDestination", DrawDestination);
  Call("DrawCoords", DrawCoords);
  Call("DrawButtons", DrawButtons);
}

bool InFlight() { return G.OrbitState == 0 || G.OrbitState == 1; }

}  // namespace

void RunLoopFrame() {
  // 1-4: the repair pool, the hull cap, then the hand-overs: an event is
  // taken before a docking.
  Skip(ReportFinishedSave);
  Skip(RecountRepairPool);
  Skip(CapHullPoints);
  Skip(EnterRaisedEvent);
  Skip([] { EnterStationIfCleared(true); });
  // 5-7
  G.NoGameRunning = False;
  Call("CheckStopAvailability", CheckStopAvailability);
  Call("CheckMissingComponents", CheckMissingComponents);
  Skip(UpdateHailMessagesButton);
  Skip(CheckArrival);
  // 8-13: the rates run and the ship moves only on a free bridge.
  if (FreeBridge()) {
    Call("UpdateHealth", UpdateHealth);
    Call("UpdateRepair", UpdateRepair);
    Call("UpdateEnergy", UpdateEnergy);
    Call("UpdateUpgrade", UpdateUpgrade);
  }
  if (G.MouseLook == True && FreeBridge()) Call("CheckViewMove", CheckViewMove);
  Skip(MoveShip);
  Skip(FollowShipWithView);
  Skip(ClampDestinationAndView);
  Skip(FollowOtherShip);
  // 14-18
  DrawMapLayers();
  if (NoPrompt()) Call("CheckMouseOverButton", CheckMouseOverButton);
  if (InFlight() && FreeBridge()) Call("CheckScroll", CheckScroll);
  Call("DrawFaces", DrawFaces);
  if (InFlight() && FreeBridge()) Call("CheckDistance", CheckDistance);
  // 19-23: the strip, shipboard incidents, and the docking once more.
  Skip(OfferOrbit);
  Skip(HoldCursorOnStrip);
  if (G.QuestionPending == True || G.MessagePending == True || G.PromptAge >= 0) Call("DrawText", DrawText);
  if (IsSet(G.StatusSlot[7].Active)) Call("HandleShipEvent7", HandleShipEvent7);
  if (IsSet(G.StatusSlot[8].Active)) Call("HandleShipEvent8", HandleShipEvent8);
  Skip([] { EnterStationIfCleared(false); });
  // 24-31: the view, the panels, the star lane, cursor and tips.
  Skip(DrawViewContents);
  Call("DrawHealth", DrawHealth);
  DrawPanels();
  if (G.StarLaneKnown == True) Call("EnteringStarlane", EnteringStarlane);
  if (G.MouseLook == 0) Call("DrawCursor", DrawCursor);
  if (G.TooltipsOn == True) Call("CheckOverTool", CheckOverTool);
  if (FreeBridge()) Call("CheckPowerOverload", CheckPowerOverload);
  if (G.TooltipVisible == True && G.TooltipsOn == True) Call("DrawToolTip", DrawToolTip);
  // 32
  Call("FlipBuffers", FlipBuffers);
  Yield();
}

}  // namespace lf
