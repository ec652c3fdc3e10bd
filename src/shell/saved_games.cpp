// SaveGame and LoadGame: the position to and from the sixteen files.
#include "shell/saved_games.h"

#include <memory>

#include "display/gfx.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/save_folder.h"
#include "shell/save_layout.h"
#include "shell/save_store.h"
#include "universe/stocks.h"

namespace lf {

void SaveGame() {
  const std::string problem = StorePosition(SaveFolder(), WritePosition(G));
  // A save that failed leaves the previous position as it stood and says
  // why; the game goes on.
  SetMessage("", problem.empty() ? "GAME POSITION SAVED!" : problem, "");
  G.QuestionPending = False;
  G.BridgeActive = True;
}

void ReportFinishedSave() {
  if (const auto failure = FinishedCommitFailure()) SetMessage("", *failure, "");
}

bool SavedPositionExists() { return PositionStands(SaveFolder()); }

std::string ReadSavedPosition(Game& into) {
  PositionTexts texts;
  std::string problem = FetchPosition(SaveFolder(), texts);
  if (!problem.empty()) return problem;
  problem = ReadPosition(into, texts);
  if (!problem.empty()) return "CANNOT LOAD: " + problem + ".";
  return {};
}

bool LoadGame() {
  // The files go into a copy of the record, which takes the record's place
  // only when all sixteen have read whole.
  auto copy = std::make_unique<Game>(G);
  const std::string problem = ReadSavedPosition(*copy);
  if (!problem.empty()) {
    SetMessage("", problem, "");
    return false;
  }
  G = std::move(*copy);
  copy.reset();
  G.HailedShip = 0;
  G.FollowShip = 0;
  Skip(StationStockSpecs);
  SetMessage("", "POSITION LOADED!", "");
  G.QuestionPending = False;
  G.OrbitState = 0;
  G.ProgressCount = 0;
  G.MenuActive = False;
  GFX.LoadingPicture = Bitmap{};
  return true;
}

}  // namespace lf
