// The player's settings file: defaults written on first start, hand-edited
// and damaged files read as far as they go, and places it cannot be written.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/settings.h"

namespace {

namespace fs = std::filesystem;
using lf::Settings;

fs::path Scratch(const std::string& name) {
  const auto dir = fs::temp_directory_path() / ("lanefarer_settings_" + name + "_" + std::to_string(::getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  return dir;
}

std::string Read(const fs::path& p) {
  std::ifstream f(p);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

TEST(Settings, TheWrittenDefaultsReadBackWithACommentOnEveryLine) {
  const fs::path dir = Scratch("defaults");
  const std::string path = (dir / "lanefarer" / "settings.ini").string();
  std::string report;
  EXPECT_EQ(lf::LoadSettings(path, report), Settings{});
  EXPECT_EQ(report, "");
  const std::string text = Read(path);
  std::istringstream lines(text);
  int settingLines = 0;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_NE(line.find('#'), std::string::npos) << line;
    if (line.find('=') != std::string::npos && line[0] != '#') ++settingLines;
  }
  EXPECT_EQ(settingLines, 6);
  std::string ignored;
  EXPECT_EQ(lf::ParseSettings(text, ignored), Settings{});
  EXPECT_EQ(ignored, "");

  Settings changed;
  changed.windowScale = 4;
  changed.fullscreen = true;
  changed.soundVolume = 0;
  changed.musicVolume = 35;
  changed.clips = false;
  changed.tooltips = false;
  std::string error;
  ASSERT_TRUE(lf::SaveSettings(path, changed, error)) << error;
  EXPECT_EQ(lf::LoadSettings(path, report), changed);
  EXPECT_FALSE(fs::exists(path + ".new"));
  fs::remove_all(dir);
}

TEST(Settings, BadLinesAreNamedAndTheRestIsTaken) {
  std::string ignored;
  const Settings s = lf::ParseSettings(
      "window_scale = 99\n"          // beyond the largest scale
      "fullscreen = maybe\n"
      "sound_volume = -5\n"
      "music_volume = 101\n"          // above the maximum
      "clips=off   # spaces are optional\n"
      "colour = blue\n"
      "just words\n"
      "tooltips = no\r\n"
      "window_scale = 2x\n",
      ignored);
  Settings expected;
  expected.clips = false;
  expected.tooltips = false;
  EXPECT_EQ(s, expected);
  for (const char* named : {"window_scale = \"99\"", "fullscreen = \"maybe\"", "sound_volume = \"-5\"",
                            "music_volume = \"101\"", "unknown key \"colour\"", "line 7", "window_scale = \"2x\""})
    EXPECT_NE(ignored.find(named), std::string::npos) << named << " in " << ignored;
}

TEST(Settings, GarbageAndEmptyFilesGiveTheDefaults) {
  std::string ignored;
  EXPECT_EQ(lf::ParseSettings("", ignored), Settings{});
  EXPECT_EQ(ignored, "");
  constexpr char kGarbage[] = "\x00\xff=\xfe\n==\n=5\nsound_volume=\n";
  const std::string garbage(kGarbage, sizeof kGarbage - 1);
  EXPECT_EQ(lf::ParseSettings(garbage, ignored), Settings{});
  EXPECT_FALSE(ignored.empty());
}

TEST(Settings, AFolderOrAnUnwritablePlaceNeverStopsTheGame) {
  const fs::path dir = Scratch("places");
  // The settings path is a folder.
  fs::create_directories(dir / "asfolder" / "settings.ini");
  std::string report;
  EXPECT_EQ(lf::LoadSettings((dir / "asfolder" / "settings.ini").string(), report), Settings{});
  EXPECT_NE(report.find("not a regular file"), std::string::npos) << report;
  std::string error;
  EXPECT_FALSE(lf::SaveSettings((dir / "asfolder" / "settings.ini").string(), Settings{}, error));

  // Its folder would have to be made inside a plain file.
  std::ofstream(dir / "plain") << "x";
  const std::string under = (dir / "plain" / "lanefarer" / "settings.ini").string();
  EXPECT_EQ(lf::LoadSettings(under, report), Settings{});
  EXPECT_NE(report.find("cannot write"), std::string::npos) << report;
  fs::remove_all(dir);
}

TEST(Settings, ThePathFollowsTheConfigurationHome) {
  EXPECT_EQ(lf::SettingsPath("/cfg", "/home/p"), "/cfg/lanefarer/settings.ini");
  EXPECT_EQ(lf::SettingsPath("relative", "/home/p"), "/home/p/.config/lanefarer/settings.ini");
  EXPECT_EQ(lf::SettingsPath(nullptr, "/home/p"), "/home/p/.config/lanefarer/settings.ini");
  EXPECT_EQ(lf::SettingsPath(nullptr, nullptr), std::nullopt);
}

}  // namespace
