// The shipboard lists and the date, each drawn once an iteration over a
// crewed, fitted and loaded ship. With LANEFARER_DATA set to a generated
// data folder the panel pictures and fonts are loaded, so the blits are real.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"
#include "universe/new_game.h"

namespace {

lf::ScriptedHost g_host;

void Prepare() {
  if (const char* data = std::getenv("LANEFARER_DATA")) lf::SetDataFolder(data);
  lf::ResetGame();
  lf::SetHost(&g_host);
  lf::InicializeDirectDraw();
  lf::G.CurrentQuadrant = 1;
  lf::RandomGame();
  lf::RandomizeCharacters();
  lf::DefineShipSpecs();
  lf::G.ProgressMode = 0;
  lf::G.TimeStep = 0.1;
  lf::G.GameHours = 3000.5;
  lf::G.HardpointCount = 7;
  for (int slot = 1; slot <= 7; ++slot) {
    lf::G.FittedComp[slot][1] = static_cast<std::int16_t>(slot);
    lf::G.FittedComp[slot][2] = 2;
    lf::G.FittedHealth[slot] = 60;
    lf::G.RepairCrew[slot] = 10;
  }
  for (int post = 1; post <= 6; ++post) {
    lf::G.CrewPost[post].Person = static_cast<std::int16_t>(post);
    lf::G.CrewPost[post].Health = 70;
    lf::G.CrewPost[post].Infected = post % 2 == 0 ? lf::True : lf::False;
  }
  for (int c = 1; c <= 14; ++c) lf::G.Cargo[c] = static_cast<std::int16_t>(c * 3);
  for (int race = 1; race <= 6; ++race) lf::G.TranslatorOwned[race] = lf::True;
}

template <void (*Draw)()>
void BM_Draw(benchmark::State& state) {
  Prepare();
  for (auto _ : state) Draw();
}
BENCHMARK(BM_Draw<lf::DrawTime>)->Name("DrawTime");
BENCHMARK(BM_Draw<lf::DrawMaintnanceList>)->Name("DrawMaintnanceList");
BENCHMARK(BM_Draw<lf::DrawCargoList>)->Name("DrawCargoList");
BENCHMARK(BM_Draw<lf::DrawMedicalList>)->Name("DrawMedicalList");
BENCHMARK(BM_Draw<lf::DrawQuarantineList>)->Name("DrawQuarantineList");
BENCHMARK(BM_Draw<lf::DrawCrewInfo>)->Name("DrawCrewInfo");
BENCHMARK(BM_Draw<lf::DrawResearchList>)->Name("DrawResearchList");
BENCHMARK(BM_Draw<lf::DrawSoftwareOnBoard>)->Name("DrawSoftwareOnBoard");
BENCHMARK(BM_Draw<lf::DrawShipStatus>)->Name("DrawShipStatus");

}  // namespace
