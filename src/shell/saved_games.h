// The saved position: the reset before a new game, and the sixteen files.
#pragma once

namespace lf {

// Clears what a new game must not inherit; called before StartNew.
void EraseInfo();
void SaveGame();
void LoadGame();

}  // namespace lf
