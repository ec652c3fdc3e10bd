// One menu frame and one bridge frame, each with its yield and present,
// over a new game's quadrant. With LANEFARER_DATA set to a generated data
// folder the menu and bridge bitmaps are loaded, so the blits are real.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"
#include "shell/screens.h"
#include "universe/new_game.h"

namespace {

lf::ScriptedHost g_host;

void Prepare() {
  if (const char* data = std::getenv("LANEFARER_DATA")) lf::SetDataFolder(data);
  lf::ResetGame();
  lf::ResetScreens();
  lf::SetHost(&g_host);
  lf::InicializeDirectDraw();
}

template <class F>
void Enter(F loop) {
  try {
    loop();
  } catch (const lf::ScreenChange&) {
  }
}

void BM_MenuFrame(benchmark::State& state) {
  Prepare();
  lf::LoadMenuBitmaps();
  lf::G.MenuActive = lf::True;
  lf::G.NoGameRunning = lf::True;
  g_host.cursorX = 320;
  g_host.cursorY = 200;
  Enter(lf::DrawMainMenu);
  for (auto _ : state) lf::RunNextFrame();
}
BENCHMARK(BM_MenuFrame);

void BM_BridgeFrame(benchmark::State& state) {
  Prepare();
  lf::G.CurrentQuadrant = 1;
  lf::RandomGame();  // loads the kept and bridge sets and lays quadrant 1
  lf::RandomizeCharacters();
  lf::DefineShipSpecs();
  lf::G.ProgressMode = 0;
  lf::G.BridgeActive = lf::True;
  lf::G.TimeStep = 0.1;
  lf::G.OrbitState = 0;
  for (int post = 1; post <= 6; ++post) {
    lf::G.CrewPost[post].Person = static_cast<std::int16_t>(post);
    lf::G.CrewPost[post].Health = 100;
  }
  g_host.cursorX = 320;
  g_host.cursorY = 140;
  Enter(lf::RunLoop);
  for (auto _ : state) lf::RunNextFrame();
}
BENCHMARK(BM_BridgeFrame);

}  // namespace
