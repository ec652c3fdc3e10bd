// Saving and loading a position: a new game's quadrant, characters and
// mission catalogue, written as the sixteen files into a folder under the
// system's temporary folder and read back. Each step is also timed alone:
// the texts, the files on disk (with the waits for the disk), the fields.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/save_folder.h"
#include "shell/save_layout.h"
#include "shell/save_store.h"
#include "shell/saved_games.h"
#include "universe/new_game.h"

namespace {

namespace fs = std::filesystem;

lf::ScriptedHost g_host;

fs::path Folder() { return fs::temp_directory_path() / ("lanefarer_bench_saves_" + std::to_string(::getpid())); }

void NewGame() {
  lf::ResetGame();
  lf::SetHost(&g_host);
  lf::G.CurrentQuadrant = 1;
  lf::RandomGame();
  lf::RandomizeCharacters();
  lf::DefineShipSpecs();
  lf::DefineMissionSpecs();
  fs::remove_all(Folder());
  lf::SetSaveFolder((Folder() / "save").string());
}

void BM_SaveGame(benchmark::State& state) {
  NewGame();
  for (auto _ : state) lf::SaveGame();
  fs::remove_all(Folder());
}
BENCHMARK(BM_SaveGame)->Unit(benchmark::kMillisecond)->UseRealTime();

// What the frame pays for a save in the game's window, where the disk's
// part runs on a worker thread (waited for outside the timing: saves are
// seconds apart in play).
void BM_SaveGameInWindow(benchmark::State& state) {
  NewGame();
  lf::SetBackgroundCommits(true);
  for (auto _ : state) {
    lf::SaveGame();
    state.PauseTiming();
    lf::WaitForCommit();
    state.ResumeTiming();
  }
  lf::SetBackgroundCommits(false);
  fs::remove_all(Folder());
}
BENCHMARK(BM_SaveGameInWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_LoadGame(benchmark::State& state) {
  NewGame();
  lf::SaveGame();
  for (auto _ : state) benchmark::DoNotOptimize(lf::LoadGame());
  fs::remove_all(Folder());
}
BENCHMARK(BM_LoadGame)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_WritePositionTexts(benchmark::State& state) {
  NewGame();
  for (auto _ : state) benchmark::DoNotOptimize(lf::WritePosition(lf::G));
}
BENCHMARK(BM_WritePositionTexts)->Unit(benchmark::kMillisecond);

void BM_StorePositionFiles(benchmark::State& state) {
  NewGame();
  const lf::PositionTexts texts = lf::WritePosition(lf::G);
  for (auto _ : state) benchmark::DoNotOptimize(lf::StorePosition(lf::SaveFolder(), texts));
  fs::remove_all(Folder());
}
BENCHMARK(BM_StorePositionFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ReadPositionFields(benchmark::State& state) {
  NewGame();
  const lf::PositionTexts texts = lf::WritePosition(lf::G);
  auto copy = std::make_unique<lf::Game>(lf::G);
  for (auto _ : state) benchmark::DoNotOptimize(lf::ReadPosition(*copy, texts));
}
BENCHMARK(BM_ReadPositionFields)->Unit(benchmark::kMillisecond);

}  // namespace
