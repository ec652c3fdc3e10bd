// Station frames (the terminal while its text types, and the exchange) and
// the bitmap swaps of docking and departure, over a new game's quadrant
// with the ship at its first station. Set LANEFARER_DATA to a generated
// data folder for real blits and real loads.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "universe/new_game.h"

namespace {

lf::ScriptedHost g_host;

template <class F>
void Enter(F loop) {
  try {
    loop();
  } catch (const lf::ScreenChange&) {
  }
}

// A new game's quadrant with the ship on its first station, the station
// set loaded and the welcome on the terminal.
void Docked() {
  if (const char* data = std::getenv("LANEFARER_DATA")) lf::SetDataFolder(data);
  lf::ResetGame();
  lf::ResetScreens();
  lf::SetHost(&g_host);
  lf::InicializeDirectDraw();
  lf::G.CurrentQuadrant = 1;
  lf::RandomGame();
  for (int i = 1; i <= lf::G.PlanetCount; ++i)
    if (lf::G.Planet[i].HasStation != 0) {
      lf::G.ShipX = lf::G.Planet[i].X;
      lf::G.ShipY = lf::G.Planet[i].Y;
      break;
    }
  lf::G.ProgressMode = 0;
  lf::UnloadMainBitmaps();
  lf::a_LoadStationBitmaps();
  lf::GFX.StationFontOcr.KeepPlainRows();
  lf::GFX.StationFontImp.KeepPlainRows();
  lf::a_DetermineStationComps();
  lf::a_Welcome();
  lf::G.StatusSlot[lf::DockedSlot].Active = lf::True;
  Enter(lf::a_StationLoop);
}

void BM_StationTerminalFrame(benchmark::State& state) {
  Docked();
  g_host.cursorX = 560;
  g_host.cursorY = 226;  // a hot menu line: picture and marker
  int frame = 0;
  for (auto _ : state) {
    if (++frame % 120 == 0) lf::a_ClearTermScreen();  // the text types anew
    lf::RunNextFrame();
  }
}
BENCHMARK(BM_StationTerminalFrame);

void BM_StationExchangeFrame(benchmark::State& state) {
  Docked();
  g_host.cursorX = 300;
  g_host.cursorY = 125;
  lf::StationPage() = 3;
  for (auto _ : state) lf::RunNextFrame();
}
BENCHMARK(BM_StationExchangeFrame);

// Docking: the bridge set goes, the station set comes.
void BM_DockingSwap(benchmark::State& state) {
  Docked();
  for (auto _ : state) {
    state.PauseTiming();
    lf::UnloadStationBitmaps();
    lf::LoadMainBitmaps();
    state.ResumeTiming();
    lf::UnloadMainBitmaps();
    lf::a_LoadStationBitmaps();
  }
}
BENCHMARK(BM_DockingSwap)->Unit(benchmark::kMillisecond);

// Departure: the station set goes, the bridge set and the orbit picture come.
void BM_DepartureSwap(benchmark::State& state) {
  Docked();
  for (auto _ : state) {
    state.PauseTiming();
    lf::UnloadMainBitmaps();
    lf::a_LoadStationBitmaps();
    state.ResumeTiming();
    lf::UnloadStationBitmaps();
    lf::LoadMainBitmaps();
    lf::LoadOrbitPic();
  }
}
BENCHMARK(BM_DepartureSwap)->Unit(benchmark::kMillisecond);

}  // namespace
