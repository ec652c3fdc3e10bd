// Docking: the navigator asks a station in orbit, or a pirate base straight
// from space, for clearance; everything else is refused with its reason.
// Clearance raises the docked slot, and the frame enters the station as soon
// as the message is read.
#include "bridge/helm_reach.h"
#include "bridge/later_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr int kNavigator = 1;
constexpr int kComms = 2;

void Refuse(const char* l1, const char* l2, const char* l3, int face = kNavigator) {
  PlaySoundFx(8, 2);
  SetMessage(l1, l2, l3, face);
}

void StationAnswers(const char* l5, const char* l6) {
  SetMessage("", "REQUESTING DOCKING CLEARANCE...", "", kComms, "_FROM STATION:", l5, l6);
}

void DockInOrbit() {
  const int body = FirstNearBody();
  if (body == 0 || G.Planet[body].HasStation == 0) {
    Refuse("", "CAPTAIN! THERE IS NO STATION TO DOCK WITH HERE!", "");
    return;
  }
  // Nothing in the game raises an epidemic; a station that has one keeps
  // its doors shut.
  if (G.Planet[body].Epidemic != 0) {
    Refuse("FROM STATION:", " CAPTAIN, WE ARE HAVING A VIRUS EPIDEMIC AND THEREFORE",
           " YOU ARE (FOR NOW) FORBIDDEN FROM DOCKING!");
    return;
  }
  PlaySoundFx(8, 2);
  PlaySoundFx(2, 2);
  StationAnswers(" DOCKING CLEARANCE GRANTED!", " YOU ARE CLEAR TO DOCK!");
  G.StatusSlot[DockedSlot].Active = True;
}

bool DebrisOrPodInReach() {
  for (int i = 1; i <= 50; ++i) {
    if (NearDebris(i)) {
      Refuse("NO REASON FOR DOCKING WITH THE DEBRIS", "WHEN WE CAN EASILY TRACTOR IT ABOARS!", "");
      return true;
    }
    if (NearPod(i)) {
      Refuse("NO REASON FOR DOCKING WITH THE CARGO", "WHEN WE CAN EASILY TRACTOR IT ABOARD!", "");
      return true;
    }
  }
  return false;
}

// Outlaws are welcome: the player stands at 35 or below with some race.
bool OutlawSomewhere() {
  for (int race = 1; race <= 6; ++race)
    if (G.RaceRelation[race] <= 35) return true;
  return false;
}

void DockAtPirateBase() {
  if (OutlawSomewhere()) {
    PlaySoundFx(2, 2);
    StationAnswers(" ARGHH!! ENTER, FRIEND!", " YOU ARE PERMISSION TO DOCK!");
    G.StatusSlot[DockedSlot].Active = True;
  } else {
    PlaySoundFx(8, 2);
    StationAnswers(" YOU DO-GOODIES MAKE ME SICK!", " YOU CANNOT ENTER YET!");
    G.StatusSlot[DockedSlot].Active = False;
  }
}

}  // namespace

void Butt_1_3() {
  if (G.OrbitState == 3) {
    DockInOrbit();
    return;
  }
  if (DebrisOrPodInReach()) return;
  if (const int body = FirstNearBody(); body != 0 && G.Planet[body].Race == 7) {
    DockAtPirateBase();
    return;
  }
  if (G.HailedShip != 0) {
    Refuse("CAPTAIN! WE DO NOT HAVE PERMISSION TO DOCK WITH", "THE OTHER SHIP!", "");
  } else if (G.OrbitState == 0 && G.StatusSlot[DockedSlot].Active == 0) {
    Refuse("THERE IS NOTHING TO DOCK ON IN", "THE OUTER SPACE!", "");
  } else if (G.OrbitState == 1) {
    Refuse("", "WE MUST ENTER ORBIT FIRST.", "");
  }
}

}  // namespace lf
