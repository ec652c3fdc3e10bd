#include "shell/bridge_frame_steps.h"

#include <cmath>

#include "bridge/bridge_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "events/events_procedures.h"
#include "media/media.h"
#include "missions/missions_procedures.h"
#include "shell/call_trace.h"
#include "shell/cursor.h"
#include "shell/doors.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "station/station_procedures.h"

namespace lf {

void RecountRepairPool() {
  Skip([] {
    const std::int16_t engineer = G.CrewPost[6].Person;
    if (engineer == 0)
      G.RepairPool = 50;
    else
      Assign(G.RepairPool, G.Character[engineer].Skill * 15.0 * G.HardpointCount);
  });
  for (int i = 1; i <= G.HardpointCount; ++i) {
    Skip([i] {
      if (G.FittedComp[i][1] != 0 && G.RepairCrew[i] != 0)
        Assign(G.RepairPool, static_cast<double>(G.RepairPool) - G.RepairCrew[i]);
    });
  }
}

void CapHullPoints() {
  if (G.HullPoints > G.HullPointsMax) G.HullPoints = G.HullPointsMax;
}

void EnterRaisedEvent() {
  if (G.StatusSlot[EventSlot].Active != True || G.MessagePending != 0) return;
  G.ProgressMode = 0;
  G.MouseLook = False;
  G.BridgeActive = False;
  G.StationActive = False;
  G.EventActive = True;
  Call("c_EnterEvent", c_EnterEvent);
}

void EnterStationIfCleared(bool dropMouseLook) {
  if (G.StatusSlot[DockedSlot].Active != True || G.MessagePending != 0) return;
  if (dropMouseLook) G.MouseLook = False;
  G.BridgeActive = False;
  G.StationActive = True;
  Call("a_EnteringStation", a_EnteringStation);
}

void UpdateHailMessagesButton() {
  std::int16_t& state = ButtonState(2, 8);
  if (G.OrbitState == 5 || G.OrbitState == 6) {
    if (state == 2) state = 0;
  } else {
    state = 2;
  }
}

void CheckArrival() {
  if (std::hypot(G.ShipX - G.DestX, G.ShipY - G.DestY) < 5) {
    G.ShipStepX = 0;
    G.ShipStepY = 0;
  }
}

// Each axis is stepped twice, each time behind a guard against one edge, so
// a moving ship covers twice its step and stops at the edge it runs into.
void MoveShip() {
  if (ButtonState(2, 1) == 1) return;
  if (G.OrbitState != 0 && G.OrbitState != 1) return;
  if (!FreeBridge() || G.StatusSlot[DockedSlot].Active != 0) return;
  if (G.ShipX > 0)
    G.ShipX += G.ShipStepX;
  else
    G.ShipX = 0;
  if (G.ShipX < G.SectorSize)
    G.ShipX += G.ShipStepX;
  else
    G.ShipX = G.SectorSize;
  if (G.ShipY < G.SectorSize)
    G.ShipY += G.ShipStepY;
  else
    G.ShipY = G.SectorSize;
  if (G.ShipY > 0)
    G.ShipY += G.ShipStepY;
  else
    G.ShipY = 0;
  Call("CheckPatrolPoint", CheckPatrolPoint);
}

void FollowShipWithView() {
  if (G.ViewDetached != 0) return;
  G.ViewX = G.ShipX;
  Assign(G.ViewY, G.ShipY);
}

void ClampDestinationAndView() {
  const double size = G.SectorSize;
  if (G.DestX < 0) G.DestX = 0;
  if (G.DestX > size) G.DestX = size;
  if (G.DestY < 0) G.DestY = 0;
  if (G.DestY > size) G.DestY = size;
  if (G.ViewX < 200) G.ViewX = 200;
  if (G.ViewX > size - 200) G.ViewX = size - 200;
  if (G.ViewY < 120) G.ViewY = 120;
  if (G.ViewY > size - 120) Assign(G.ViewY, size - 120);
}

void FollowOtherShip() {
  if (G.FollowMode == 0 || G.FollowShip == 0) return;
  G.DestX = G.OtherShip[G.FollowShip].X;
  G.DestY = G.OtherShip[G.FollowShip].Y;
  if (FreeBridge()) Call("CheckDirection", CheckDirection);
}

void OfferOrbit() {
  if (G.OrbitState != 1 || G.OrbitOfferOpen != True) return;
  PlaySoundFx(2, 1);
  G.PromptLine[1] = "";
  G.PromptLine[2] = "DO YOU WANT TO ENTER ORBIT?";
  G.PromptLine[3] = "";
  G.QuestionPending = True;
  G.MessagePending = False;
  G.PromptFace = 1;
}

void HoldCursorOnStrip() {
  if (G.QuestionPending != True && G.MessagePending != True) return;
  ReadCursor();
  if (G.MouseY <= 420) MoveCursor(G.MouseX, 420);
}

void DrawViewContents() {
  switch (G.OrbitState) {
    case 2:
    case 4:
    case 5:
    case 7: DrawBigDoors(); break;
    case 3:
      SetSrc(0, 0, 400, 240);
      BltFast(121, 25, GFX.OrbitPicture, false);
      break;
    case 6: DrawHailView(); break;
    default: G.HailedShip = 0; break;
  }
}

namespace {

struct Panel {
  int page, button;
  const char* name;
  void (*draw)();
};

// In drawing order: later panels cover earlier ones.
constexpr Panel kPanels[] = {
    {5, 8, "DrawGuildMembership", DrawGuildMembership},
    {1, 2, "DrawAutopilotList", DrawAutopilotList},
    {5, 5, "DrawCrewInfo", DrawCrewInfo},
    {2, 8, "DrawHailMessages", DrawHailMessages},
    {2, 6, "DrawSoftwareOnBoard", DrawSoftwareOnBoard},
    {5, 2, "DrawResearchList", DrawResearchList},
    {4, 1, "DrawMedicalList", DrawMedicalList},
    {6, 2, "DrawCargoList", DrawCargoList},
    {6, 4, "DrawUnfitted", DrawUnfitted},
    {4, 4, "DrawQuarantineList", DrawQuarantineList},
    {3, 3, "DrawEnergyList", DrawEnergyList},
    {5, 4, "DrawCurrentMissions", DrawCurrentMissions},
    {6, 3, "DrawEngineerAdd", DrawEngineerAdd},
    {6, 1, "DrawMaintnanceList", DrawMaintnanceList},
    {5, 3, "DrawDiplomacy", DrawDiplomacy},
    {5, 7, "DrawShipStatus", DrawShipStatus},
};

}  // namespace

void DrawPanels() {
  for (const Panel& panel : kPanels) {
    bool on = false;
    Skip([&] { on = ButtonState(panel.page, panel.button) == 1; });
    // The hail messages only while the hail stands open.
    if (panel.draw == DrawHailMessages && G.OrbitState != 6) on = false;
    if (on) Call(panel.name, panel.draw);
  }
}

}  // namespace lf
