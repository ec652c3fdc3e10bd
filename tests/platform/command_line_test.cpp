#include <gtest/gtest.h>

#include <set>

#include "platform/command_line.h"
#include "platform/folders.h"

namespace lf {
namespace {

TEST(CommandLine, ReadsEveryOption) {
  const auto o = ParseCommandLine({"--fullscreen", "--window-scale", "2", "--verbose", "--mute", "--data=/d",
                                   "--save-dir", "/s"});
  EXPECT_TRUE(o.fullscreen);
  EXPECT_EQ(o.windowScale, 2);
  EXPECT_TRUE(o.verbose);
  EXPECT_TRUE(o.mute);
  EXPECT_EQ(*o.data, "/d");
  EXPECT_EQ(*o.saveDir, "/s");
  EXPECT_FALSE(o.headless);

  const auto h = ParseCommandLine({"--headless", "--seed", "18446744073709551615", "--script", "-"});
  EXPECT_TRUE(h.headless);
  EXPECT_EQ(h.seed, 18446744073709551615ull);
  EXPECT_EQ(*h.script, "-");
  EXPECT_EQ(ParseCommandLine({"--headless"}).seed, 1u);
  EXPECT_TRUE(ParseCommandLine({"--help"}).help);
  EXPECT_TRUE(ParseCommandLine({"--version"}).version);
}

TEST(CommandLine, RejectsBadCommandLines) {
  const std::vector<std::vector<std::string>> bad = {
      {"--nope"},
      {"game.sav"},
      {"--window-scale"},
      {"--window-scale", "0"},
      {"--window-scale", "9"},
      {"--window-scale", "two"},
      {"--headless", "--seed", "-1"},
      {"--headless", "--seed", "1x"},
      {"--seed", "3"},             // only headless runs take a seed
      {"--script", "a.txt"},       // or a script
      {"--data"},
      {"--data="},
      {"--mute=yes"},
  };
  for (const auto& args : bad) EXPECT_THROW(ParseCommandLine(args), CommandLineError) << args[0];
}

TEST(Folders, DataFolderFollowsOptionThenEnvironmentThenBesideTheProgram) {
  std::set<std::string> dirs;
  const auto isDir = [&](const std::string& p) { return dirs.count(p) > 0; };
  EXPECT_EQ(ChooseDataFolder(std::string("/opt/d"), "/env", "/usr/bin", isDir), "/opt/d");
  EXPECT_EQ(ChooseDataFolder(std::nullopt, "/env", "/usr/bin", isDir), "/env");
  EXPECT_EQ(ChooseDataFolder(std::nullopt, "", "/usr/bin", isDir), "data");  // an empty variable counts as unset
  dirs = {"/usr/bin/../share/lanefarer"};
  EXPECT_EQ(ChooseDataFolder(std::nullopt, nullptr, "/usr/bin", isDir), "/usr/bin/../share/lanefarer");
  dirs.insert("/usr/bin/data");
  EXPECT_EQ(ChooseDataFolder(std::nullopt, nullptr, "/usr/bin", isDir), "/usr/bin/data");
  EXPECT_EQ(ChooseDataFolder(std::nullopt, nullptr, "", isDir), "data");
}

TEST(Folders, SaveFolderFollowsTheUsersDataHome) {
  EXPECT_EQ(ChooseSaveFolder(std::string("here"), "/x", "/home/a"), "here");
  EXPECT_EQ(ChooseSaveFolder(std::nullopt, "/x/share", "/home/a"), "/x/share/lanefarer/save");
  // A relative or empty XDG_DATA_HOME is ignored, as the convention asks.
  EXPECT_EQ(ChooseSaveFolder(std::nullopt, "rel", "/home/a"), "/home/a/.local/share/lanefarer/save");
  EXPECT_EQ(ChooseSaveFolder(std::nullopt, "", "/home/a"), "/home/a/.local/share/lanefarer/save");
  EXPECT_EQ(ChooseSaveFolder(std::nullopt, nullptr, nullptr), "save");
}

}  // namespace
}  // namespace lf
