#include "platform/settings.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "platform/command_line.h"

namespace lf {
namespace {

namespace fs = std::filesystem;

std::string_view Trim(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t' || s.front() == '\r')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
  return s;
}

std::optional<int> Number(std::string_view v, int lo, int hi) {
  int n = 0;
  const auto [end, ec] = std::from_chars(v.data(), v.data() + v.size(), n);
  if (ec != std::errc() || end != v.data() + v.size() || v.empty() || n < lo || n > hi) return std::nullopt;
  return n;
}

std::optional<bool> Boolean(std::string_view v) {
  if (v == "true" || v == "on" || v == "yes" || v == "1") return true;
  if (v == "false" || v == "off" || v == "no" || v == "0") return false;
  return std::nullopt;
}

void Note(std::string& ignored, const std::string& what) {
  if (!ignored.empty()) ignored += ", ";
  ignored += what;
}

}  // namespace

Settings ParseSettings(std::string_view text, std::string& ignored) {
  Settings s;
  ignored.clear();
  int lineNo = 0;
  while (!text.empty()) {
    const std::size_t nl = text.find('\n');
    std::string_view line = text.substr(0, nl);
    text = nl == std::string_view::npos ? std::string_view() : text.substr(nl + 1);
    ++lineNo;
    if (const std::size_t hash = line.find('#'); hash != std::string_view::npos) line = line.substr(0, hash);
    line = Trim(line);
    if (line.empty()) continue;
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos) {
      Note(ignored, "line " + std::to_string(lineNo) + " (no '=')");
      continue;
    }
    const std::string_view key = Trim(line.substr(0, eq));
    const std::string_view value = Trim(line.substr(eq + 1));
    bool taken = true;
    if (key == "window_scale") {
      if (auto n = Number(value, 0, kMaxWindowScale)) s.windowScale = *n; else taken = false;
    } else if (key == "fullscreen") {
      if (auto b = Boolean(value)) s.fullscreen = *b; else taken = false;
    } else if (key == "sound_volume") {
      if (auto n = Number(value, 0, kMaxVolume)) s.soundVolume = *n; else taken = false;
    } else if (key == "music_volume") {
      if (auto n = Number(value, 0, kMaxVolume)) s.musicVolume = *n; else taken = false;
    } else if (key == "clips") {
      if (auto b = Boolean(value)) s.clips = *b; else taken = false;
    } else if (key == "tooltips") {
      if (auto b = Boolean(value)) s.tooltips = *b; else taken = false;
    } else {
      Note(ignored, "unknown key \"" + std::string(key) + "\"");
      continue;
    }
    if (!taken) Note(ignored, std::string(key) + " = \"" + std::string(value) + "\"");
  }
  return s;
}

std::string SettingsText(const Settings& s) {
  const auto b = [](bool v) { return v ? "true" : "false"; };
  std::ostringstream o;
  o << "# Lanefarer settings: one \"key = value\" a line; '#' starts a comment.\n"
    << "# The game rewrites this file when fullscreen or the window size changes.\n"
    << "window_scale = " << s.windowScale
    << "    # window size in whole multiples of 640x480, 1.." << kMaxWindowScale
    << "; 0 picks the largest that fits (up to 3)\n"
    << "fullscreen = " << b(s.fullscreen) << "    # true or false (Alt+Enter or F11 toggles it)\n"
    << "sound_volume = " << s.soundVolume << "    # sound effects, 0..100\n"
    << "music_volume = " << s.musicVolume << "    # music, 0..100\n"
    << "clips = " << b(s.clips) << "    # play the clips between screens: true or false\n"
    << "tooltips = " << b(s.tooltips) << "    # tool tips on when the game starts: true or false\n";
  return o.str();
}

std::optional<std::string> SettingsPath(const char* xdgConfigHome, const char* home) {
  if (xdgConfigHome && xdgConfigHome[0] == '/') return std::string(xdgConfigHome) + "/lanefarer/settings.ini";
  if (home && home[0] == '/') return std::string(home) + "/.config/lanefarer/settings.ini";
  return std::nullopt;
}

Settings LoadSettings(const std::string& path, std::string& report) {
  report.clear();
  std::error_code ec;
  const fs::file_status st = fs::status(path, ec);
  if (!fs::exists(st)) {
    const Settings defaults;
    std::string error;
    if (!SaveSettings(path, defaults, error)) report = "cannot write the settings file " + path + ": " + error;
    return defaults;
  }
  if (!fs::is_regular_file(st)) {
    report = "the settings file " + path + " is not a regular file; using the defaults";
    return Settings{};
  }
  std::ifstream f(path, std::ios::binary);
  std::stringstream text;
  if (!f || !(text << f.rdbuf())) {
    report = "cannot read the settings file " + path + "; using the defaults";
    return Settings{};
  }
  std::string ignored;
  const Settings s = ParseSettings(text.str(), ignored);
  if (!ignored.empty()) report = "settings file " + path + ": ignored " + ignored;
  return s;
}

bool SaveSettings(const std::string& path, const Settings& s, std::string& error) {
  std::error_code ec;
  const fs::path target(path);
  if (target.has_parent_path()) fs::create_directories(target.parent_path(), ec);
  if (ec) {
    error = ec.message();
    return false;
  }
  if (fs::exists(target, ec) && !fs::is_regular_file(target, ec)) {
    error = "it is not a regular file";
    return false;
  }
  const fs::path temp = target.string() + ".new";
  {
    std::ofstream f(temp, std::ios::binary | std::ios::trunc);
    if (f) f << SettingsText(s);
    if (!f || !f.flush()) {
      error = "cannot write " + temp.string();
      fs::remove(temp, ec);
      return false;
    }
  }
  fs::rename(temp, target, ec);
  if (ec) {
    error = ec.message();
    fs::remove(temp, ec);
    return false;
  }
  return true;
}

}  // namespace lf
