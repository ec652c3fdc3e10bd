// The program as a whole: the entry that runs it to its end, and the ways
// out of it.
#pragma once

namespace lf {

// Thrown to end the program at once, whatever loops stand open (the
// closing sequence, a headless script's end or error). Carries the exit
// status.
struct ProgramEnd {
  int status = 0;
};

// Runs Form_Load and then the screen loops until the program ends; returns
// the exit status. The host and media backend must be set before.
int RunProgram();

// The two halves of RunProgram, for drivers and tests that run frames one
// at a time: BeginProgram empties the machine and runs Form_Load (which ends
// in the menu); then each RunNextFrame (screens.h) runs one frame. Both let
// ProgramEnd through.
void BeginProgram();

}  // namespace lf
