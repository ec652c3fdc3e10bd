// The Game record: all state of the running program, in one instance, G.
// It is split into sub-records by owner; every field keeps the game's name
// and is reached directly (G.OrbitState, G.Planet[3].Width, G.Cash).
#pragma once

#include "bridge/bridge_state.h"
#include "combat/combat_state.h"
#include "display/display_state.h"
#include "events/events_state.h"
#include "media/media_state.h"
#include "missions/missions_state.h"
#include "shell/shell_state.h"
#include "station/dealer_state.h"
#include "station/lounge_state.h"
#include "station/station_state.h"
#include "universe/universe_state.h"

namespace lf {

struct Game : ShellState,
              DisplayState,
              MediaState,
              UniverseState,
              BridgeState,
              StationState,
              DealerState,
              LoungeState,
              MissionsState,
              EventsState,
              CombatState {};

// Visits every field of the record under its name, sub-record by sub-record.
template <class V>
void VisitFields(V& v, Game& g) {
  VisitFields(v, static_cast<ShellState&>(g));
  VisitFields(v, static_cast<DisplayState&>(g));
  VisitFields(v, static_cast<MediaState&>(g));
  VisitFields(v, static_cast<UniverseState&>(g));
  VisitFields(v, static_cast<BridgeState&>(g));
  VisitFields(v, static_cast<StationState&>(g));
  VisitFields(v, static_cast<DealerState&>(g));
  VisitFields(v, static_cast<LoungeState&>(g));
  VisitFields(v, static_cast<MissionsState&>(g));
  VisitFields(v, static_cast<EventsState&>(g));
  VisitFields(v, static_cast<CombatState&>(g));
}

// The one instance.
extern Game& G;

// Puts a fresh record in place of the old one (tests start from it).
void ResetGame();

// Rnd: a uniform real in [0, 1), drawn anew at each call.
double Rnd();
// A random number 1..n: Int(Rnd * n) + 1.
int RandomInt(int n);

}  // namespace lf
