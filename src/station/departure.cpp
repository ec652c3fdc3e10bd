// Leaving the station: the checks that can refuse, and the departure into
// orbit (or beside a pirate station) with the bridge's bitmaps back.
#include <algorithm>

#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/screens.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/terminal_notice.h"

namespace lf {
namespace {

void Refuse(std::int16_t prompt, std::initializer_list<std::string> lines) {
  ShowNotice(prompt, lines);
  G.MayDepart = False;
}

int Hardpoints() { return std::clamp<int>(G.HardpointCount, 0, 16); }

bool HasFittedGroup(int group) {
  for (int slot = 1; slot <= Hardpoints(); ++slot)
    if (G.FittedComp[slot][1] == group) return true;
  return false;
}

// Buttons of the bridge as they stand in orbit.
void PutButtonsInOrbit() {
  for (const auto& [p, b] : {std::pair{3, 1}, {3, 2}, {1, 6}, {4, 2}, {5, 1}, {2, 4}}) ButtonState(p, b) = 0;
  for (const auto& [p, b] : {std::pair{1, 1}, {2, 1}, {1, 9}}) ButtonState(p, b) = 2;
  G.BridgeButton[1][5].Present = False;
  G.BridgeButton[1][6].Present = True;
  if (G.PageOpen[1] != 0) {
    G.BridgeButton[1][5].Visible = True;
    G.BridgeButton[1][6].Visible = True;
  }
}

void Depart() {
  const int planet = DockedPlanet();
  if (planet != 0) G.Planet[planet].Known = True;
  if (planet != 0 && G.Planet[planet].Race == 7) {
    G.OrbitState = 1;  // the ship floats beside a pirate station
    G.TimeStep = 0.1;
  } else {
    G.TimeStep = 0.1 / 60;
    G.OrbitState = 3;
    G.OrbitOfferOpen = True;
    PutButtonsInOrbit();
  }
  UnloadStationBitmaps();
  G.ProgressMode = 1;
  G.ProgressCount = 0;
  GFX.LoadingPicture = LoadBitmapIntoDXS(R"(\gfx\loading\docking.bmp)");
  LoadMainBitmaps();
  Skip(LoadOrbitPic);
  G.ProgressMode = 0;
  G.BridgeActive = True;
  G.StatusSlot[DockedSlot].Active = False;
  G.StationActive = False;
  for (int i = 1; i <= 6; ++i) G.PromptLine[i].clear();
  G.PromptFace = 0;
  G.PromptAge = 0;
  PlayTrack(4);
  StartTimer1();
  RunLoop();
}

}  // namespace

void a_ExitStation() {
  G.MayDepart = True;
  a_CheckCrewMembers();
  if (G.MayDepart == True) Depart();
}

void a_CheckCrewMembers() {
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person != 0) {
      a_CheckShip();
      return;
    }
  Refuse(507, {"SIR! YOU HAVE NO CREWMEMBERS", "ABOARD YOUR VESSEL AND THEREFORE", "YOU ARE UNABLE TO DEPART!", "",
               "PLEASE PLAY A VISIT TO OUR", "STATION BAR IN ORDER TO MAN", "YOUR CREW!"});
}

void a_CheckShip() {
  if (G.HullRace != 0) {
    a_CheckExitComponents();
    return;
  }
  Refuse(508, {"YOU NEED A VALID SHIP HULL", "IN ORDER TO LEAVE THE STATION.", "", "OUR STATION SHIP DEALER IS",
               "WELL EQUIPPED AND AUTHORISED", "TO SELL YOU VARIOUS TYPES OF", "SHIPS AND SHIP COMPONENTS!"});
}

void a_CheckExitComponents() {
  if (HasFittedGroup(4) && HasFittedGroup(5)) {
    a_CheckOverFit();
    return;
  }
  Refuse(509, {"SIR! YOU APPEAR TO HAVE AN", "UNCOMPLETE CONFIGURATION", "OF YOUR VESSEL. ", "",
               "TO BE ABLE TO EXIT THE STATION", "YOU MUST ME EQUIPPED WITH AT", "LEAST ONE POWER GENERATOR ",
               "AND ONE PROPULSION SYSTEM!"});
}

void a_CheckOverFit() {
  for (int slot = Hardpoints() + 1; slot <= 16; ++slot)
    if (G.FittedComp[slot][1] != 0) {
      Refuse(512, {"CAPTAIN! YOU STILL HAVE", "SOME COMPONENTS FITTED", "TO NON-EXISTANT HARDPOINTS!", "",
                   "YOU ARE NOT ALLOWED TO EXIT", "THE STATION WITHOUT REFITING",
                   "OF REMOVING THESE COMPONENTS!"});
      return;
    }
}

}  // namespace lf
