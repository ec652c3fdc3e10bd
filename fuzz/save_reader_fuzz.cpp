// The saved position's reader. The first byte picks one of the sixteen
// files, the rest is that file's text: each file is read on its own, so the
// fuzzer spends its time inside one file rather than re-reading the fifteen
// good ones before it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstdio>
#include <string>
#include <string_view>

#include "shell/game_state.h"
#include "shell/save_layout.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  // A file's reader takes nothing from the record but what the same file
  // set before it, so one record serves every input.
  static lf::Game& game = *new lf::Game;
  // The counts are checked after each read whole: none is left over from
  // an earlier input.
  game.OtherShipCount = game.PlanetCount = 0;
  game.NebulaCount = game.AsteroidFieldCount = 0;
  const int file = data[0] % lf::kSaveFileCount;
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::string problem = lf::ReadPositionFile(game, file, text);
  if (!problem.empty()) {
    // A refusal is one line for the prompt strip, naming the file. What the
    // record then holds is thrown away by the loader.
    if (problem.find('\n') != std::string::npos || problem.rfind(lf::UpperName(file) + " ", 0) != 0) {
      std::fprintf(stderr, "bad refusal: %s\n", problem.c_str());
      std::abort();
    }
    return 0;
  }
  // A file read whole leaves the counts that size later loops within their
  // tables.
  if (game.OtherShipCount < 0 || game.OtherShipCount > 500 || game.PlanetCount < 0 || game.PlanetCount > 250 ||
      game.NebulaCount < 0 || game.NebulaCount > 250 || game.AsteroidFieldCount < 0 || game.AsteroidFieldCount > 250)
    std::abort();
  return 0;
}
