// The science scanner (5,1): the body the ship is near or orbits, nebulas,
// asteroid fields, debris and pods; scans count for missions.
#include <string>

#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "bridge/scan_targets.h"
#include "media/media.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr const char* kType[11] = {"",          "TYPE: BARREN",    "TYPE: TUNDRA", "TYPE: DESERT",
                                   "TYPE: TERRAN", "TYPE: SWAMP",  "TYPE: GAS GIANT", "TYPE: GENESIS",
                                   "TYPE: OCEAN", "TYPE: RADIATED", "TYPE: TOXIC"};
constexpr const char* kSize[6] = {"", "SIZE: VERY SMALL", "SIZE: SMALL", "SIZE: MEDIUM", "SIZE: LARGE",
                                  "SIZE: HUGE"};
constexpr const char* kPopulation[7] = {"POP: UNINHABITED", "POP: HUMAN",   "POP: HAGEL", "POP: LAGEW",
                                        "POP: JAYTEES",     "POP: MARKEEN", "POP: WOOTAM"};

template <std::size_t N>
const char* Entry(const char* const (&table)[N], int i) {
  return i >= 0 && i < static_cast<int>(N) ? table[i] : "";
}

std::string ScanLine(const PlanetRecord& body) {
  if (body.Race == 7) return "PIRATE STATION! ANARCHY SITUATION!";
  return std::string(Entry(kType, body.Type)) + ", " + Entry(kSize, body.Size) + ", " +
         Entry(kPopulation, body.Race);
}

void CheckDebrisCargoScience() {
  for (int k = 1; k <= 50; ++k) {
    const bool debris = NearDebris(k);
    if (!debris && !NearPod(k)) continue;
    PlaySoundFx(11, 6);
    SetLine("", debris ? "THAT DEBRIS CHECKS ALL RIGHT." : "THAT CARGO CHECKS ALL RIGHT.", "", 5);
    return;
  }
  if (G.HailedShip == 0 && G.OrbitState == 0) {
    PlaySoundFx(8, 2);
    SetLine("", "NO OBJECT TO SCAN!", "", 5);
  }
}

}  // namespace

void DrawScanResults() {
  const int i = BodyNearShip();
  if (i == 0 || G.SensorLevel < 100) return;
  PlanetRecord& body = G.Planet[i];
  body.Known = True;
  SetMessage("SCAN RESULTS:", ScanLine(body), "", 5);
  CheckMission(2);
}

void Butt_5_1() {
  if (G.SensorLevel < 100) {
    PlaySoundFx(8, 2);
    SetLine("", "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!", "", 5);
    return;
  }
  std::int16_t& button = ButtonState(5, 1);
  if (button == 0 && G.OrbitState != 3) {
    PlaySoundFx(11, 6);
    G.ScanRequested = True;
    DrawScanResults();
    CheckDistance();
  } else if (button != 2) {
    PlaySoundFx(4, 1);
    button = 0;
  }
  if (G.OrbitState == 3) {
    PlaySoundFx(11, 6);
    G.ScanRequested = True;
    CheckMission(5);
    DrawScanResults();
  }
  if (IsSet(G.InNebula)) {
    PlaySoundFx(11, 6);
    SetLine("THIS NEBULA CONTAINS " + IntText(Int(Rnd() * 10000)) + " PARTICLES",
            "OF SPACE DUST PER CUBIC METER!", "", 5);
    CheckMission(4);
    return;
  }
  if (IsSet(G.InAsteroids)) {
    PlaySoundFx(11, 6);
    SetLine("", "ASTEROID SCAN COMPLETE!", "", 5);
    CheckMission(3);
    return;
  }
  if (G.OrbitState == 0) CheckDebrisCargoScience();
}

}  // namespace lf
