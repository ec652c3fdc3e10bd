// New-game generation called by StartNew.
#pragma once

namespace lf {

void RandomGame();
void RandomizeCharacters();
void DefineShipSpecs();

}  // namespace lf
