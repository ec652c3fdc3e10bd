// Progress on the bridge: pods tractored, scans, points reached, patrols
// flown and fights won near a mission's target.
#include <cmath>

#include "media/media.h"
#include "missions/mission_rules.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {
namespace {

constexpr double kNear = 20;
// A fight won this close to a strike mission's target counts for it.
constexpr double kFightReach = 300;

double DistanceToShip(double x, double y) { return CIntReal(std::hypot(G.ShipX - x, G.ShipY - y)); }

void QueueStatusPage(const char* text) {
  G.PromptLine[4] = "_";
  G.PromptLine[5] = text;
  G.PromptLine[6] = "";
  G.PromptFace = 5;
}

void PodTractored() {
  int pod = 0;
  for (int n = 1; n <= 50 && pod == 0; ++n)
    if (std::hypot(G.ShipX - G.CargoPod[n].X, G.ShipY - G.CargoPod[n].Y) < kNear) pod = n;
  if (pod == 0) return;
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    CargoPodRecord& p = G.CargoPod[pod];
    if (m == nullptr || p.X != m->TargetX || p.Y != m->TargetY) continue;
    G.MissionProgress[place] = 1;
    p.X = Int(Rnd() * (G.SectorSize - 200) + 100);
    p.Y = Int(Rnd() * (G.SectorSize - 200) + 100);
    PlaySoundFx(2, 1);
    SetMessage("", "WE HAVE SUCCESSFULLY TRACTORED THE CARGO!", "", 1, "", "MISSION SUCCESSFUL!", "");
  }
}

void PlanetScanned() {
  const int count = std::min<int>(G.PlanetCount, decltype(G.Planet)::kHi);
  int planet = 0;
  for (int i = 1; i <= count && planet == 0; ++i)
    if (std::hypot(G.ShipX - G.Planet[i].X, G.ShipY - G.Planet[i].Y) < G.Planet[i].Width) planet = i;
  if (planet == 0) return;
  const int kind = G.Planet[planet].Type;
  auto advance = [](int place, int from, int to) {
    if (G.MissionProgress[place] != from) return false;
    G.MissionProgress[place] = static_cast<std::int16_t>(to);
    PlaySoundFx(4, 1);
    QueueStatusPage("MISSION STATUS UPDATED!");
    return true;
  };
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr) continue;
    if (m->PlanetKind1 != 0 && m->PlanetKind1 == kind) {
      if (!advance(place, 0, 1)) advance(place, 2, 3);
    }
    if (m->PlanetKind2 != 0 && m->PlanetKind2 == kind) {
      if (!advance(place, 0, 2)) advance(place, 1, 3);
    }
  }
}

void ScanOfTypes(int typeA, int typeB) {
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr || (m->MissionType != typeA && m->MissionType != typeB)) continue;
    G.MissionProgress[place] = 1;
    PlaySoundFx(4, 1);
    QueueStatusPage("YOU HAVE SUCCESSFULLY COMPLETED YOUR MISSION!");
  }
}

void PointReached() {
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr || std::hypot(G.ShipX - m->TargetX, G.ShipY - m->TargetY) >= kNear) continue;
    G.MissionProgress[place] = 1;
    PlaySoundFx(4, 1);
    return;
  }
}

void StartMissionEvent(int event) {
  if (G.StatusSlot[EventSlot].Active == True) return;
  G.StatusSlot[DockedSlot].Active = False;
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[EventSlot].Value = static_cast<std::int16_t>(event);
}

int EventOfType(int type) {
  switch (type) {
    case 6: case 7: case 30: case 31: return 14;
    case 18: return 17;
    case 37: return 16;
    case 38: return 15;
    default: return 0;
  }
}

void PatrolPoints(int place, const MissionRecord& m) {
  std::int16_t& progress = G.MissionProgress[place];
  if (DistanceToShip(m.NavX[1], m.NavY[1]) < kNear && (progress == 0 || progress == 2)) {
    progress = static_cast<std::int16_t>(progress + 1);
    PlaySoundFx(4, 1);
  }
  if (DistanceToShip(m.NavX[2], m.NavY[2]) < kNear && (progress == 0 || progress == 1)) {
    progress = static_cast<std::int16_t>(progress + 2);
    PlaySoundFx(4, 1);
  }
}

}  // namespace

void CheckMission(int kind) {
  switch (kind) {
    case 1: PodTractored(); break;
    case 2: PlanetScanned(); break;
    case 3: if (G.InAsteroids == True) ScanOfTypes(13, 22); break;
    case 4: if (G.InNebula == True) ScanOfTypes(14, 23); break;
    case 5: if (G.OrbitState == 3) ScanOfTypes(21, 21); break;
    case 6: PointReached(); break;
    default: break;
  }
}

void CheckPatrolPoint() {
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr) continue;
    const int type = m->MissionType;
    if (type == 16 || type == 36) {
      PatrolPoints(place, *m);
      continue;
    }
    const bool near = DistanceToShip(m->TargetX, m->TargetY) < kNear;
    if (!near || G.MissionProgress[place] == 1) continue;
    // The escape pod of the pirates' rescue has no event: reaching it is
    // the rescue.
    if (type == 102) {
      G.MissionProgress[place] = 1;
      PlaySoundFx(4, 1);
      continue;
    }
    const int event = EventOfType(type);
    if (event != 0) StartMissionEvent(event);
  }
}

void MissionFightWon() {
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr || G.MissionProgress[place] == 1) continue;
    const int type = m->MissionType;
    bool won = false;
    if (type == 19 || type == 35 || type == 101)
      won = std::hypot(G.ShipX - m->TargetX, G.ShipY - m->TargetY) < kFightReach;
    else if (type == 100)
      won = std::hypot(G.ShipX - m->NavX[1], G.ShipY - m->NavY[1]) < kFightReach ||
            std::hypot(G.ShipX - m->NavX[2], G.ShipY - m->NavY[2]) < kFightReach;
    if (won) G.MissionProgress[place] = 1;
  }
}

}  // namespace lf
