// The two ways the program runs: in a window, or headless driven by a
// script. Each returns the exit status.
#pragma once

#include "platform/command_line.h"

namespace lf {

// Opens the window and runs the game in it; 1 when there is no display.
int RunWindowed(const Options& options);
// Runs the game on the headless driver; 2 for a bad or unreadable script.
int RunHeadless(const Options& options);

}  // namespace lf
