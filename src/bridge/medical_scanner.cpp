// The medical scanner (4,2): viruses on debris and pods close by, and on the
// body or station the ship orbits.
#include "bridge/crew.h"
#include "bridge/later_procedures.h"
#include "bridge/scan_targets.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

void Report(const char* line) {
  PlaySoundFx(2, 2);
  SetLine("", line, "", 4);
}

void PowerShort() {
  PlaySoundFx(8, 2);
  SetLine("", "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!", "", 4);
}

// The first debris or pod close by answers; false when none does.
bool ScanObjects() {
  const bool skilled = PostSkill(4) >= 3;
  for (int k = 1; k <= 50; ++k) {
    if (NearDebris(k)) {
      if (!skilled)
        Report("NO DISCOVERIES WERE MADE.");
      else
        Report(IsSet(G.Debris[k].Virus) ? "A VIRUS HAS BEEN DISCOVERED." : "NO VIRUSES.");
      return true;
    }
    if (NearPod(k)) {
      Report(IsSet(G.CargoPod[k].Virus) ? "A VIRUS HAS BEEN DISCOVERED." : "NO VIRUS ON CARGO.");
      return true;
    }
  }
  return false;
}

// The body in orbit: its surface, or its station.
bool ScanBody() {
  if (G.OrbitState != 3) return false;
  const int i = BodyNearShip();
  if (i == 0) return false;
  const PlanetRecord& body = G.Planet[i];
  const bool station = body.HasStation != 0;
  if (IsSet(body.Infected))
    Report(station ? "THIS STATION IS BEING STRUCK BY AN EPIDEMIC!" : "THE SURFACE HAS A VIRAL INFECTION!");
  else
    Report(station ? "STATION IS MEDICALLY SECURE!" : "THE SURFACE APPEARS TO BE UNCONTAMINATED!");
  return true;
}

}  // namespace

void CheckVirus() {
  if (G.SensorLevel >= 100) {
    if (!ScanObjects() && !ScanBody() && G.OrbitState == 0 && G.HailedShip == 0) {
      PlaySoundFx(8, 2);
      SetLine("", "NO OBJECT TO SCAN!", "", 4);
    }
  } else {
    PowerShort();
  }
  ButtonState(4, 2) = 0;
}

void Butt_4_2() {
  if (ButtonState(4, 2) != 0) return;
  if (G.OrbitState == 1 && G.SensorLevel >= 100) {
    PlaySoundFx(11, 4);
    SetLine("", "WE MUST ENTER ORBIT FIRST.", "", 1);
    return;
  }
  if (G.SensorLevel < 100) PowerShort();
  CheckVirus();
}

}  // namespace lf
