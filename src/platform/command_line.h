// The program's command line.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lf {

struct Options {
  bool help = false;
  bool version = false;
  bool fullscreen = false;
  int windowScale = 0;  // 0: chosen from the desktop
  bool verbose = false;
  bool mute = false;
  std::optional<std::string> data;
  std::optional<std::string> saveDir;
  bool headless = false;
  std::uint64_t seed = 1;
  std::optional<std::string> script;  // "-" reads the script from standard input
  std::optional<std::string> record;  // write the session's input as a script
  std::int64_t monkey = 0;            // headless: frames of random input (0: none)
};

struct CommandLineError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline constexpr int kMaxWindowScale = 8;

// `args` without the program name. Options take their value as the next
// word or after '=' (--data=DIR). Throws CommandLineError.
Options ParseCommandLine(const std::vector<std::string>& args);

std::string Usage();
std::string VersionText();

}  // namespace lf
