// Where the data and the saved game live.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace lf {

// The data folder: the option, else $LANEFARER_DATA, else data/ beside the
// executable, else ../share/lanefarer beside it, else ./data. `isDir`
// tells whether a folder exists.
std::string ChooseDataFolder(const std::optional<std::string>& option, const char* envData,
                             const std::string& exeDir, const std::function<bool(const std::string&)>& isDir);

// The save folder: the option, else $XDG_DATA_HOME/lanefarer/save (when it
// is an absolute path), else $HOME/.local/share/lanefarer/save, else ./save.
std::string ChooseSaveFolder(const std::optional<std::string>& option, const char* xdgDataHome, const char* home);

// The folder of the running executable ("" if unknown).
std::string ExecutableDir(const char* argv0);

}  // namespace lf
