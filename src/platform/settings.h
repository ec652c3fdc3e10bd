// The player's settings file, settings.ini in the configuration folder:
// one "key = value" a line, '#' starts a comment. A missing file is written
// with every default and a comment on each line; a damaged or hand-edited
// one is read as far as it goes, the rest defaulted, and what was ignored is
// named in one line. Headless runs never read it: they repeat from their
// seed and script alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lf {

struct Settings {
  int windowScale = 0;  // 0: the largest scale that fits the desktop, up to 3
  bool fullscreen = false;
  int soundVolume = 100;  // 0..100
  int musicVolume = 100;  // 0..100
  bool clips = true;      // the clips between screens
  bool tooltips = true;   // tool tips on when the game starts
  bool operator==(const Settings&) const = default;
};

inline constexpr int kMaxVolume = 100;

// Reads a settings text. `ignored` gets a comma-separated account of the
// lines, keys and values that were not taken ("" when all were).
Settings ParseSettings(std::string_view text, std::string& ignored);

// The file's text for these values, a comment beside every line.
std::string SettingsText(const Settings& s);

// $XDG_CONFIG_HOME/lanefarer/settings.ini when that is an absolute path,
// else $HOME/.config/lanefarer/settings.ini, else none.
std::optional<std::string> SettingsPath(const char* xdgConfigHome, const char* home);

// Loads the file at `path`, writing it with the defaults when it does not
// exist. Problems go to `report` as one line each (never fatal).
Settings LoadSettings(const std::string& path, std::string& report);

// Writes the file (through a temporary file and a rename); false with
// `error` set when it cannot.
bool SaveSettings(const std::string& path, const Settings& s, std::string& error);

}  // namespace lf
