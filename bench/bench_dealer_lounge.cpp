// Frames of the ship dealer and the meeting lounge over a new game's first
// station: the dealer with a fitted ship, a generator chosen and turning,
// the cursor on the hardpoint list; the lounge with a person chosen, his
// face and page shown, the cursor on the crew column. Set LANEFARER_DATA to
// a generated data folder for real blits.
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
#include "universe/catalogue.h"
#include "universe/new_game.h"

namespace {

lf::ScriptedHost g_host;

// A new game's quadrant with the ship on its first station, the station set
// loaded, a Knox with five components and two officers aboard.
void Docked(int page) {
  if (const char* data = std::getenv("LANEFARER_DATA")) lf::SetDataFolder(data);
  lf::ResetGame();
  lf::ResetScreens();
  lf::SetHost(&g_host);
  lf::InicializeDirectDraw();
  lf::G.CurrentQuadrant = 1;
  lf::DefineShipSpecs();
  lf::RandomizeCharacters();
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
  lf::a_DetermineStationComps();
  lf::a_DetermineStationEquip();
  lf::G.Cash = 123456;
  lf::G.HullRace = 1;
  lf::G.HullClass = 4;
  lf::G.HardpointCount = 13;
  lf::G.HullPoints = 3000;
  lf::G.HullPointsMax = 3500;
  lf::G.FreeMass = 900;
  const int fit[][2] = {{4, 1}, {5, 1}, {1, 1}, {6, 1}, {7, 1}};
  for (int s = 1; s <= 5; ++s) {
    lf::G.FittedComp[s][1] = static_cast<std::int16_t>(fit[s - 1][0]);
    lf::G.FittedComp[s][2] = static_cast<std::int16_t>(fit[s - 1][1]);
    lf::G.FittedHealth[s] = lf::ComponentFullHealth(fit[s - 1][0], fit[s - 1][1]) * 0.7;
  }
  lf::G.CrewPost[1].Person = 3;
  lf::G.CrewPost[6].Person = 22;
  lf::G.StatusSlot[lf::DockedSlot].Active = lf::True;
  try {
    lf::a_StationLoop();
  } catch (const lf::ScreenChange&) {
  }
  lf::StationPage() = static_cast<std::int16_t>(page);
}

void BM_StationDealerFrame(benchmark::State& state) {
  Docked(4);
  lf::GFX.StationBack = lf::LoadBitmapIntoDXS(R"(\gfx\station\a_backs\ship_dealer.bmp)");
  lf::GFX.DealerSelect = lf::LoadBitmapIntoDXS(R"(\gfx\station\a_misc\select.bmp)");
  lf::GFX.CompAnimBitmap = lf::LoadBitmapIntoDXS(R"(\gfx\station\comps\4_1.bmp)");
  lf::G.DealerGroup = 4;
  lf::G.DealerSelection = 21;
  g_host.cursorX = 100;
  g_host.cursorY = 270;  // on a hardpoint line
  int frame = 0;
  for (auto _ : state) {
    if (++frame % 120 == 0) lf::a_ClearTermScreen();  // the figures type anew
    lf::RunNextFrame();
  }
}
BENCHMARK(BM_StationDealerFrame);

void BM_StationLoungeFrame(benchmark::State& state) {
  Docked(2);
  lf::GFX.StationBack = lf::LoadBitmapIntoDXS(R"(\gfx\station\a_backs\bar.bmp)");
  lf::G.LoungeSelection = 1;
  g_host.cursorX = 500;
  g_host.cursorY = 74;  // on a crew line
  int frame = 0;
  for (auto _ : state) {
    if (++frame % 120 == 0) lf::a_ClearTermScreen();
    lf::RunNextFrame();
  }
}
BENCHMARK(BM_StationLoungeFrame);

// The floor under both: a station page that draws its background alone,
// then the cursor and the flip.
void BM_StationBackgroundFrame(benchmark::State& state) {
  Docked(9);
  lf::GFX.StationBack = lf::LoadBitmapIntoDXS(R"(\gfx\station\a_backs\bar.bmp)");
  for (auto _ : state) lf::RunNextFrame();
}
BENCHMARK(BM_StationBackgroundFrame);

}  // namespace
