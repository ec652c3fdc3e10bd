// The monkey: random input, leaning on each screen's controls, for 10^5
// frames in all from fixed seeds, in the build the tests run in (with the
// sanitizers in the debug build). Any crash, sanitizer report, uncaught
// exception or hang fails, and the failing seed's input is kept as a script
// that replays it.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

class Monkey : public ::testing::TestWithParam<int> {};

std::string Read(const fs::path& p) {
  std::ifstream f(p, std::ios::binary);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

TEST_P(Monkey, PlaysEveryScreenWithoutAFault) {
  const int seed = GetParam();
  const fs::path dir = fs::temp_directory_path() / ("lanefarer_monkey_" + std::to_string(seed) + "_" +
                                                    std::to_string(::getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  const std::string cmd = "cd '" + dir.string() + "' && timeout 1200 '" LANEFARER_BINARY "' --headless --data '" +
                          std::string(data ? data : "/nonexistent") + "' --save-dir save --seed " +
                          std::to_string(seed) + " --monkey 25000 --record monkey.txt > out.txt 2> err.txt";
  const int raw = std::system(cmd.c_str());
  const int status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  const std::string err = Read(dir / "err.txt");
  const bool report = err.find("Sanitizer") != std::string::npos || err.find("runtime error") != std::string::npos ||
                      err.find("terminate called") != std::string::npos;
  if (status != 0 || report) {
    const fs::path kept = fs::temp_directory_path() / ("lanefarer_monkey_failure_" + std::to_string(seed) + ".txt");
    fs::copy_file(dir / "monkey.txt", kept, fs::copy_options::overwrite_existing);
    // The recording stops at the fault: run on past it.
    std::ofstream(kept, std::ios::app) << "# the run failed after the input above\nframes 100000\nquit\n";
    ADD_FAILURE() << "seed " << seed << " exited with " << status << (status == 124 ? " (hung)" : "")
                  << "; its input is kept in " << kept << " (replay: lanefarer --headless --script " << kept
                  << ")\n"
                  << err.substr(0, 4000);
  }
  fs::remove_all(dir);
}

INSTANTIATE_TEST_SUITE_P(FixedSeeds, Monkey, ::testing::Values(101, 202, 303, 404));

}  // namespace
