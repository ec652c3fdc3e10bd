// Shell procedures not written yet.
#include "shell/bridge_click.h"
#include "shell/saved_games.h"

namespace lf {

// Saved games: filled by the saved position.
void SaveGame() {}
void LoadGame() {}


}  // namespace lf
