// New-game generation, written elsewhere; empty here until it arrives.
#include "universe/new_game.h"

namespace lf {

void RandomGame() {}
void RandomizeCharacters() {}
void DefineShipSpecs() {}

}  // namespace lf
