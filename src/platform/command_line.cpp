#include "platform/command_line.h"

#include <charconv>
#include <cstdint>

namespace lf {
namespace {

template <class T>
T NumberOption(const std::string& name, const std::string& text, T lo, T hi) {
  T value{};
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size() || text.empty())
    throw CommandLineError(name + " needs a number, not \"" + text + "\"");
  if (value < lo || value > hi)
    throw CommandLineError(name + " must be " + std::to_string(lo) + ".." + std::to_string(hi));
  return value;
}

}  // namespace

Options ParseCommandLine(const std::vector<std::string>& args) {
  Options o;
  bool seedGiven = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    std::string name = args[i];
    std::optional<std::string> inlineValue;
    if (name.rfind("--", 0) == 0) {
      if (const auto eq = name.find('='); eq != std::string::npos) {
        inlineValue = name.substr(eq + 1);
        name.resize(eq);
      }
    }
    auto value = [&]() -> std::string {
      if (inlineValue) return *inlineValue;
      if (i + 1 >= args.size()) throw CommandLineError(name + " needs a value");
      return args[++i];
    };
    auto flag = [&](bool& target) {
      if (inlineValue) throw CommandLineError(name + " takes no value");
      target = true;
    };
    if (name == "--help" || name == "-h") flag(o.help);
    else if (name == "--version") flag(o.version);
    else if (name == "--fullscreen") flag(o.fullscreen);
    else if (name == "--verbose") flag(o.verbose);
    else if (name == "--mute") flag(o.mute);
    else if (name == "--headless") flag(o.headless);
    else if (name == "--window-scale") o.windowScale = NumberOption<int>(name, value(), 1, kMaxWindowScale);
    else if (name == "--seed") {
      o.seed = NumberOption<std::uint64_t>(name, value(), 0, UINT64_MAX);
      seedGiven = true;
    }
    else if (name == "--data") o.data = value();
    else if (name == "--save-dir") o.saveDir = value();
    else if (name == "--script") o.script = value();
    else if (name == "--record") o.record = value();
    else if (name == "--monkey") o.monkey = NumberOption<std::int64_t>(name, value(), 1, 1'000'000'000);
    else throw CommandLineError("unknown option \"" + args[i] + "\"");
  }
  for (const auto* option : {&o.data, &o.saveDir, &o.script, &o.record})
    if (*option && (*option)->empty()) throw CommandLineError("an empty folder or file name was given");
  if (!o.headless && o.script) throw CommandLineError("--script needs --headless");
  if (!o.headless && seedGiven) throw CommandLineError("--seed needs --headless");
  if (!o.headless && o.monkey) throw CommandLineError("--monkey needs --headless");
  if (o.monkey && o.script) throw CommandLineError("--monkey and --script exclude each other");
  return o;
}

std::string VersionText() { return std::string("lanefarer ") + LANEFARER_VERSION; }

std::string Usage() {
  return "usage: lanefarer [options]\n"
         "       lanefarer --headless [--seed N] [--script FILE | --monkey N] [--record FILE]\n"
         "                 [--data DIR] [--save-dir DIR]\n"
         "\n"
         "  --help             show this text and exit\n"
         "  --version          show the version and exit\n"
         "  --fullscreen       start in fullscreen (Alt+Enter or F11 toggles it)\n"
         "  --window-scale N   open the window at N times 640x480 (1..8; default: the largest that fits, up to 3)\n"
         "  --verbose          name each missing data file once on standard error\n"
         "  --mute             no sound or music\n"
         "  --data DIR         the data folder (default: $LANEFARER_DATA, data/ beside the program,\n"
         "                     ../share/lanefarer beside it, or ./data)\n"
         "  --save-dir DIR     the saved game folder (default: $XDG_DATA_HOME/lanefarer/save)\n"
         "  --headless         run without window or sound, as fast as possible, driven by a script\n"
         "  --seed N           headless: the random seed (default 1)\n"
         "  --script FILE      headless: the script to run ('-' reads standard input)\n"
         "  --monkey N         headless: N frames of random input instead of a script\n"
         "  --record FILE      write the session's input as a script that replays it headless\n"
         "\n"
         "Settings are read from $XDG_CONFIG_HOME/lanefarer/settings.ini (windowed runs only);\n"
         "F12 saves a screenshot.\n";
}

}  // namespace lf
