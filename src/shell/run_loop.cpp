// One bridge frame: updates, motion, layers, panels, cursor, flip. The order
// is the contract every bridge topic relies on.
#include "shell/run_loop.h"

#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "missions/missions_procedures.h"
#include "shell/bridge_frame_steps.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "universe/universe_procedures.h"

namespace lf {
namespace {

void DrawMapLayers() {
  Skip(DrawBack);
  Skip(DrawNebulas);
  Skip(DrawQuadBack);
  Skip(DrawStars);
  if (G.ShowGrid == True) Skip(DrawGrid);
  if (G.ShowSensorRange == True && G.SensorLevel >= 100 && G.InNebula == 0) Skip(DrawSensorRange);
  Skip(DrawPlans);
  Skip(DrawToolsIcons);
  Skip(DrawTime);
  Skip(DrawDebrisCargo);
  Skip(DrawMissionObjectives);
  Skip(DrawShip);
  Skip(DrawOtherShips);
  Skip(DrawDistance);
  Skip(DrawDestination);
  Skip(DrawCoords);
  Skip(DrawButtons);
}

bool InFlight() { return G.OrbitState == 0 || G.OrbitState == 1; }

}  // namespace

void RunLoopFrame() {
  Skip(RecountRepairPool);                                     // 1
  Skip(CapHullPoints);                                         // 2
  Skip(EnterRaisedEvent);                                      // 3
  Skip([] { EnterStationIfCleared(true); });                   // 4
  G.NoGameRunning = False;                                     // 5
  Skip(CheckStopAvailability);
  Skip(CheckMissingComponents);
  Skip(UpdateHailMessagesButton);                              // 6
  Skip(CheckArrival);                                          // 7
  if (FreeBridge()) {                                          // 8
    Skip(UpdateHealth);
    Skip(UpdateRepair);
    Skip(UpdateEnergy);
    Skip(UpdateUpgrade);
  }
  if (G.MouseLook == True && FreeBridge()) Skip(CheckViewMove);  // 9
  Skip(MoveShip);                                              // 10
  Skip(FollowShipWithView);                                    // 11
  Skip(ClampDestinationAndView);                               // 12
  Skip(FollowOtherShip);                                       // 13
  DrawMapLayers();                                             // 14
  if (NoPrompt()) Skip(CheckMouseOverButton);                  // 15
  if (InFlight() && FreeBridge()) Skip(CheckScroll);           // 16
  Skip(DrawFaces);                                             // 17
  if (InFlight() && FreeBridge()) Skip(CheckDistance);         // 18
  Skip(OfferOrbit);                                            // 19
  Skip(HoldCursorOnStrip);                                     // 20
  if (G.QuestionPending == True || G.MessagePending == True || G.PromptAge >= 0)
    Skip(DrawText);                                            // 21
  if (IsSet(G.StatusSlot[7].Active)) Skip(HandleShipEvent7);   // 22
  if (IsSet(G.StatusSlot[8].Active)) Skip(HandleShipEvent8);
  Skip([] { EnterStationIfCleared(false); });                  // 23
  Skip(DrawViewContents);                                      // 24
  Skip(DrawHealth);                                            // 25
  DrawPanels();                                                // 26
  if (G.StarLaneKnown == True) Skip(EnteringStarlane);         // 27
  if (G.MouseLook == 0) Skip(DrawCursor);                      // 28
  if (G.TooltipsOn == True) Skip(CheckOverTool);               // 29
  if (FreeBridge()) Skip(CheckPowerOverload);                  // 30
  if (G.TooltipVisible == True && G.TooltipsOn == True) Skip(DrawToolTip);  // 31
  Skip(FlipBuffers);                                           // 32
  Yield();
}

}  // namespace lf
