// The effects of the nodes, the rules that choose the next node, and the
// four ways out of an event: the end, the loss of the game, the tow and a
// fight.
#include "events/event_effects.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/screens.h"

namespace lf {
namespace {

double SkillAt(int post) { return G.Character[G.CrewPost[post].Person].Skill; }

// For every fitted slot of the group.
template <class F>
void ForEachSlotOf(int group, F&& f) {
  for (int i = 1; i <= G.HardpointCount; ++i)
    Skip([&] {
      if (G.FittedComp[i][1] == group) f(i);
    });
}

// The lander's launch: landing (with its ore), trouble, a gas giant, a station.
int LanderLaunch(int planet) {
  int next = Rnd() > 0.1 ? 2 : 3;
  if (G.Planet[planet].Type == 6) next = 6;
  if (G.Planet[planet].HasStation != 0) next = 7;
  if (next == 2) {
    Skip(LanderDeployed);
    G.EventScript[13].Text[2][2] = "RESULTED IN EXTRACTION OF " + std::to_string(G.LanderLoad) + " OF ORE.";
  }
  return next;
}

bool InSet(int shipClass, int set) {
  if (set == 1) return std::find(kPirateClasses.begin(), kPirateClasses.end(), shipClass) != kPirateClasses.end();
  return std::find(kSmugglerClasses.begin(), kSmugglerClasses.end(), shipClass) != kSmugglerClasses.end();
}

int ClassOf(int ship) {
  int c = 0;
  Skip([&] { c = G.OtherShip[ship].ShipClass; });
  return c;
}

[[noreturn]] void BackToBridge() {
  G.StatusSlot[EventSlot].Active = False;
  G.MenuActive = False;
  G.BridgeActive = True;
  G.StationActive = False;
  G.EventActive = False;
  PlayTrack(4);
  RunLoop();
}

[[noreturn]] void EndEvent(int e) {
  G.Reputation += (e == 12 || e == 13 || e == 18) ? 50 : 500;
  BackToBridge();
}

[[noreturn]] void GameOverInEvent() {
  G.StatusSlot[EventSlot].Active = False;
  G.BridgeActive = False;
  G.StationActive = False;
  G.EventActive = False;
  G.MenuActive = True;
  // The game is lost: Resume has nothing to go back to, as after any death.
  G.NoGameRunning = True;
  PlayTrack(4);
  DrawMainMenu();
}

[[noreturn]] void TowedHome() {
  double limit = 20000;
  int nearest = 0;
  for (int p = 1; p <= G.PlanetCount; ++p) {
    Skip([&] {
      const PlanetRecord& planet = G.Planet[p];
      if (planet.HasStation == 0) return;
      const double d = std::hypot(planet.X - G.ShipX, planet.Y - G.ShipY);
      if (d < limit) {
        limit = d;
        nearest = p;
      }
    });
  }
  if (nearest != 0) {
    G.ShipX = G.Planet[nearest].X;
    G.ShipY = G.Planet[nearest].Y;
  }
  G.StatusSlot[EventSlot].Active = False;
  G.BridgeActive = True;
  G.StationActive = False;
  G.EventActive = False;
  G.MenuActive = False;
  G.StatusSlot[DockedSlot].Active = True;
  PlayTrack(4);
  RunLoop();
}

[[noreturn]] void FightFromEvent(int set) {
  // The draw goes on until a ship of the set comes up; a quadrant without
  // one ends the event for the bridge instead of drawing for ever.
  bool any = false;
  for (int s = 1; s <= G.OtherShipCount && !any; ++s) any = InSet(ClassOf(s), set);
  if (!any) LeaveEventForBridge();
  int ship = 0;
  do {
    ship = static_cast<int>(Int(Rnd() * G.OtherShipCount)) + 1;
  } while (!InSet(ClassOf(ship), set));
  G.StatusSlot[EventSlot].Active = False;
  G.EventActive = False;
  G.FightShip = static_cast<std::int16_t>(ship);
  d_FightLoop();
}

}  // namespace

void ApplyEffect(const Effect& effect) {
  switch (effect.what) {
    case Do::None: break;
    case Do::AddCash: G.Cash += effect.amount; break;
    case Do::PayCash: G.Cash -= std::clamp(G.Cash, 0.0, effect.amount); break;
    case Do::HalveHull: G.HullPoints /= 2; break;
    case Do::ScaleHealth:
      ForEachSlotOf(effect.arg, [&](int i) { G.FittedHealth[i] *= effect.amount; });
      break;
    case Do::EmptyPost: G.CrewPost[effect.arg].Person = 0; break;
    case Do::EmptyGroup:
      ForEachSlotOf(effect.arg, [](int i) { G.FittedComp[i][1] = 0; });
      break;
    case Do::DropCargoAndCash:
      for (int c = 1; c <= 14; ++c) G.Cargo[c] = 0;
      G.Cash = 0;
      break;
    case Do::HeroJoins: HeroJoins(effect.arg); break;
    case Do::MissionDone: CheckMission(6); break;
    case Do::LoseLander: G.HasLander = False; break;
    case Do::HalveHealth: G.CrewPost[effect.arg].Health /= 2; break;
  }
}

int DecideNext(int e, const Next& next, int planet) {
  switch (next.go) {
    case Go::None: return 0;
    case Go::Node: return next.a;
    case Go::End: return kEventEnd;
    case Go::GameOver: return kEventGameOver;
    case Go::Towed: return kEventTowed;
    case Go::Fight: return next.a == 1 ? kEventFightPirates : kEventFightSmugglers;
    case Go::SkillAtLeast: return SkillAt(next.post) >= next.skill ? next.a : next.b;
    case Go::SkillAbove: return SkillAt(next.post) > next.skill ? next.a : next.b;
    case Go::RndBelow: return Rnd() < next.chance ? next.a : next.b;
    case Go::RndAtMost: return Rnd() <= next.chance ? next.a : next.b;
    case Go::RndAbove: return Rnd() > next.chance ? next.a : next.b;
    case Go::LanderLaunch: return LanderLaunch(planet);
    case Go::LanderTrouble:
      if (Rnd() > 0.9 && SkillAt(1) > 2) return next.a;
      G.HasLander = False;
      G.CrewPost[1].Person = 0;
      return next.b;
  }
  return 0;
}

void FollowNext(int e, int next) {
  if (next >= 1 && next < kEventEnd) {
    GFX.EventPicture = LoadBitmapIntoDXS("\\gfx\\events\\" + std::to_string(e) + "\\" + std::to_string(next) + ".bmp");
    G.EventScript[e].Node = static_cast<std::int16_t>(next);
    a_ClearTermScreen();
    return;
  }
  switch (next) {
    case kEventEnd: EndEvent(e);
    case kEventGameOver: GameOverInEvent();
    case kEventTowed: TowedHome();
    case kEventFightPirates: FightFromEvent(1);
    case kEventFightSmugglers: FightFromEvent(2);
    default: break;
  }
}

void LeaveEventForBridge() { BackToBridge(); }

}  // namespace lf
