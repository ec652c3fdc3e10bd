// A fight frame (drawing, movement, chances, charging, with a shield and a
// missile animation always running) and the entry into a fight, whose
// bitmap swap loads the fight set. With LANEFARER_DATA set to a generated
// data folder the bitmaps are real.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "combat/combat_procedures.h"
#include "combat/fight_procedures.h"
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
  using namespace lf;
  if (const char* data = std::getenv("LANEFARER_DATA")) SetDataFolder(data);
  ResetGame();
  ResetScreens();
  SetHost(&g_host);
  InicializeDirectDraw();
  LoadMenuBitmaps();
  DefineShipSpecs();
  G.HullPoints = G.HullPointsMax = 2500;
  G.HardpointCount = 8;
  const int fit[8][2] = {{1, 2}, {1, 1}, {3, 2}, {4, 1}, {5, 2}, {6, 1}, {7, 2}, {2, 1}};
  for (int i = 0; i < 8; ++i) {
    G.FittedComp[i + 1][1] = static_cast<std::int16_t>(fit[i][0]);
    G.FittedComp[i + 1][2] = static_cast<std::int16_t>(fit[i][1]);
    G.FittedHealth[i + 1] = 100;
  }
  G.AmmoLeft[3] = 20;
  for (int post = 1; post <= 6; ++post) {
    G.CrewPost[post].Person = static_cast<std::int16_t>(post);
    G.CrewPost[post].Health = 100;
  }
  G.WeaponSetting = G.WeaponLevel = G.ShieldSetting = G.ShieldLevel = 100;
  G.DragonIonBeam = G.RapierMissile = G.CountermeasureRack = G.ElectronicCM = True;
  G.OtherShipCount = 1;
  G.OtherShip[1].ShipClass = 3;
  G.FightShip = 1;
  G.BridgeActive = True;
}

template <class F>
void Enter(F loop) {
  try {
    loop();
  } catch (const lf::ScreenChange&) {
  }
}

void BM_FightFrame(benchmark::State& state) {
  using namespace lf;
  Prepare();
  Enter(d_FightLoop);
  G.ProgressMode = 0;
  G.FightRange = G.OrderedRange = 30;
  G.SurrenderOffered = 0;
  G.WeaponSelected = 5;  // the launcher's line: its shot picture
  G.FightLog[3] = "ENEMYS SHIELDS SUSTAINED SIGNIFICANT DAMAGE";
  g_host.cursorX = 400;
  g_host.cursorY = 357;
  for (auto _ : state) {
    // Keep the animations going and the fight from ending.
    if (G.AnimMissile < 0 || G.AnimMissile > 40) G.AnimMissile = 0;
    if (G.AnimOwnShield < 0) G.AnimOwnShield = 0;
    if (G.AnimEnemyShield < 0) G.AnimEnemyShield = 0;
    G.EnemyHull = G.EnemyHullMax;
    G.HullPoints = 2500;
    G.FightActive = True;
    RunNextFrame();
  }
}
BENCHMARK(BM_FightFrame);

// The entry steps of a fight from the bridge: the bridge set released, the
// fight set, the opponent and the weapon lines' shots loaded. Between
// fights the bridge set is loaded again, as after a fight's hand-back, so
// that each entry frees what the game would free.
void BM_FightEntry(benchmark::State& state) {
  using namespace lf;
  Prepare();
  LoadMainBitmaps();
  for (auto _ : state) {
    Enter(d_FightLoop);
    state.PauseTiming();
    UnloadFightBitmaps();
    LoadMainBitmaps();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_FightEntry)->Unit(benchmark::kMillisecond);

}  // namespace
