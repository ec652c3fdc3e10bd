// Program entry: reads the command line, finds the data and save folders and
// runs the game in a window or headless.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "media/mute.h"
#include "platform/command_line.h"
#include "platform/folders.h"
#include "platform/run_modes.h"
#include "shell/paths.h"
#include "shell/save_folder.h"

int main(int argc, char** argv) {
  lf::Options options;
  try {
    options = lf::ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const lf::CommandLineError& e) {
    std::fprintf(stderr, "lanefarer: %s\n%s", e.what(), lf::Usage().c_str());
    return 2;
  }
  if (options.help) {
    std::fputs(lf::Usage().c_str(), stdout);
    return 0;
  }
  if (options.version) {
    std::puts(lf::VersionText().c_str());
    return 0;
  }

  lf::SetVerbose(options.verbose);
  lf::SetMuted(options.mute || options.headless);
  const auto isDir = [](const std::string& p) {
    std::error_code ec;
    return std::filesystem::is_directory(p, ec);
  };
  lf::SetDataFolder(lf::ChooseDataFolder(options.data, std::getenv("LANEFARER_DATA"),
                                         lf::ExecutableDir(argc > 0 ? argv[0] : nullptr), isDir));
  lf::SetSaveFolder(lf::ChooseSaveFolder(options.saveDir, std::getenv("XDG_DATA_HOME"), std::getenv("HOME")));

  return options.headless ? lf::RunHeadless(options) : lf::RunWindowed(options);
}
