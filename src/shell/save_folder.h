// The folder of the saved game (set from the command line at start).
#pragma once

#include <string>

namespace lf {

void SetSaveFolder(std::string folder);
// "save" in the current folder until the program sets another.
const std::string& SaveFolder();

}  // namespace lf
