// The whole Game record as one flat JSON object keyed by the game's names,
// and the merge of such an object back into the record.
#pragma once

#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "shell/game_state.h"

namespace lf {

// What a restore found wrong, with the path of the offending key.
struct RestoreError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

nlohmann::ordered_json DumpState(Game& g);
std::string DumpStateText(Game& g);

// Merges `in` into the record: keys may be left out; a table may be given as
// an array or as an object keyed by decimal index. Unknown keys, values of
// the wrong kind and numbers that do not fit their field throw RestoreError;
// the record is left as it was in that case.
void RestoreState(Game& g, const nlohmann::json& in);

}  // namespace lf
