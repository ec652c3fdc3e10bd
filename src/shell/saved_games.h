// The saved position: the reset before a new game, and the sixteen files.
#pragma once

#include <string>

namespace lf {

struct Game;

// Clears what a new game must not inherit; called before StartNew.
void EraseInfo();
// Writes the position; a failure leaves the previous one and says why on
// the prompt strip.
void SaveGame();
// A save finishing beside the game that failed after all: its line
// replaces "GAME POSITION SAVED!" on the strip. Called every bridge frame.
void ReportFinishedSave();
// Reads the position back; on any failure the record stays as it was, the
// prompt strip says why, and the result is false.
bool LoadGame();
// Whether there is a saved position to load, whole or damaged.
bool SavedPositionExists();
// Reads the saved position into `into` without the load's after-steps.
// Returns an empty string on success, else the strip's line.
std::string ReadSavedPosition(Game& into);

}  // namespace lf
