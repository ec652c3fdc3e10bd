// The headless `restore`: JSON text parsed and merged into the record, as
// the driver does it (the media calls of a dump are dropped first).
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <nlohmann/json.hpp>

#include "shell/game_state.h"
#include "shell/state_json.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A restore writes what it is given whatever the record held, so one
  // record serves every input.
  static lf::Game& game = *new lf::Game;
  nlohmann::json state;
  try {
    state = nlohmann::json::parse(data, data + size);
  } catch (const nlohmann::json::exception&) {
    return 0;
  }
  if (state.is_object()) state.erase("MediaCalls");
  const double cash = game.Cash;
  try {
    lf::RestoreState(game, state);
  } catch (const lf::RestoreError&) {
    // A refused restore leaves the record as it was.
    if (game.Cash != cash) std::abort();
  }
  return 0;
}
