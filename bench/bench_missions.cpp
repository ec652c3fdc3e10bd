// Dealing the mission boards at a docking, at a low and a high rank and at
// a pirate station, over a new game's quadrant and catalogue.
#include <benchmark/benchmark.h>

#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "station/station_procedures.h"
#include "universe/new_game.h"

namespace {

lf::ScriptedHost g_host;

// A new game's quadrant and catalogue, the ship on a station of the race
// asked (7 the pirates), 0 for the first station.
void NewGameDocked(bool pirates) {
  lf::ResetGame();
  lf::SetHost(&g_host);
  lf::G.CurrentQuadrant = 1;
  lf::RandomGame();
  lf::DefineMissionSpecs();
  for (int i = 1; i <= lf::G.PlanetCount; ++i)
    if (lf::G.Planet[i].HasStation != 0 && (lf::G.Planet[i].Race == 7) == pirates) {
      lf::G.ShipX = lf::G.Planet[i].X;
      lf::G.ShipY = lf::G.Planet[i].Y;
      break;
    }
}

void BM_DealBoards(benchmark::State& state) {
  NewGameDocked(state.range(1) != 0);
  lf::G.Reputation = static_cast<double>(state.range(0));
  for (auto _ : state) {
    lf::a_StationMissionRandomize();
    benchmark::DoNotOptimize(lf::G.MissionBoard);
  }
}
BENCHMARK(BM_DealBoards)->Args({0, 0})->Args({9000, 0})->Args({30000, 0})->Args({0, 1})->Unit(benchmark::kMicrosecond);

void BM_DefineMissionSpecs(benchmark::State& state) {
  NewGameDocked(false);
  for (auto _ : state) lf::DefineMissionSpecs();
}
BENCHMARK(BM_DefineMissionSpecs)->Unit(benchmark::kMillisecond);

}  // namespace
