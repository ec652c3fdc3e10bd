// The saved position on disk. A save writes every file into a fresh folder
// beside the save folder, syncs it, and only then puts it in place of the
// old one, so a crash or a full disk at any moment leaves one whole
// position: the old or the new.
#pragma once

#include <optional>
#include <string>

#include "shell/save_layout.h"

namespace lf {

// Writes the files as the position in `folder`. Returns an empty string when
// the position stands (or, with background commits, is on its way to
// standing), else one line for the prompt strip.
std::string StorePosition(const std::string& folder, const PositionTexts& texts);

// A save writes its files at once; making them durable and putting them in
// place waits on the disk for tens of milliseconds. With background commits
// on (the game in a window) that part runs on a worker thread and the frame
// goes on; the old position stands until the new one is whole. Every other
// step on the save folder, and the program's end, waits for it first.
// Off by default, so that headless runs stay reproducible.
void SetBackgroundCommits(bool on);
void WaitForCommit();
// The line of a background commit that failed, once it has finished;
// nothing while one is under way or when none failed.
std::optional<std::string> FinishedCommitFailure();

// Reads the position from `folder` into `texts`. Returns an empty string on
// success, else one line for the prompt strip.
std::string FetchPosition(const std::string& folder, PositionTexts& texts);

// Whether a saved position stands in `folder` (whole or not).
bool PositionStands(const std::string& folder);

// For tests: a failure at the given step of the next saves (each file's
// write, the sync of the folder, each rename and the removal of the old
// folder count as one step, from 0). With error 0 the save stops there as a
// crash would, leaving everything as it stands; with an errno value the
// step fails with that error. A step below 0 injects nothing.
void InjectSaveFault(int step, int error);
// The steps the last save went through.
int SaveStepsTaken();

}  // namespace lf
