// The headless game on a data folder with damaged files: pictures whose
// headers lie about their size, a picture smaller than what is cut from it,
// FIFOs and folders in place of files. Each is skipped, named once with
// --verbose, and the game goes on.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

// A copy of the data folder made of links, with real folders, so that single
// files can be put in place of their links.
void Mirror(const fs::path& from, const fs::path& to) {
  fs::create_directories(to);
  for (const auto& entry : fs::directory_iterator(from)) {
    const fs::path target = to / entry.path().filename();
    if (entry.is_directory())
      Mirror(entry.path(), target);
    else
      fs::create_symlink(entry.path(), target);
  }
}

std::string Read(const fs::path& file) {
  std::ifstream f(file, std::ios::binary);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

TEST(DamagedData, EveryDamagedFileIsSkippedAndNamedOnceAndTheGameGoesOn) {
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  if (!data) GTEST_SKIP() << "no generated data folder";
  const fs::path dir = fs::temp_directory_path() / ("lanefarer_damaged_" + std::to_string(::getpid()));
  fs::remove_all(dir);
  const fs::path damaged = dir / "data";
  Mirror(data, damaged);
  const fs::path pictures = fs::path(LANEFARER_SCENARIOS).parent_path() / "display" / "pictures";
  auto replace = [&](const char* file, const char* with) {
    fs::remove(damaged / file);
    fs::copy_file(pictures / with, damaged / file);
  };
  replace("gfx/back2.bmp", "declares_65535_square.bmp");
  replace("gfx/back.bmp", "four_bytes_changed.bmp");
  replace("gfx/dest.bmp", "cut_short.bmp");
  replace("gfx/fonts/font_sml.bmp", "good_4x2.bmp");  // far smaller than its letters
  fs::remove(damaged / "gfx/misc/heart.bmp");
  ASSERT_EQ(mkfifo((damaged / "gfx/misc/heart.bmp").c_str(), 0600), 0);
  fs::remove(damaged / "sounds/4.wav");
  fs::create_directories(damaged / "sounds/4.wav");
  fs::remove(damaged / "sounds/2.wav");
  ASSERT_EQ(mkfifo((damaged / "sounds/2.wav").c_str(), 0600), 0);

  // The menu, a new game and its picture, the station hand-over; Load onto
  // the bridge; every officer's page, each with its press sound; a message.
  {
    std::ofstream f(dir / "tour.txt");
    // An officer aboard, or the crewless bridge would be a lost game at once.
    f << "frames 3\nclick 320 150\nframes 3\nclick 320 240\nframes 5\nkey 27\nframes 2\n"
         "restore officer.json\nclick 320 270\nframes 30\n";
    std::ofstream(dir / "officer.json") << R"({"CrewPost": {"1": {"Person": 1, "Health": 100}}})";
    for (const char* face : {"60 80", "60 200", "60 340", "580 80", "580 200", "580 340"})
      f << "click " << face << "\nframes 10\n";
    f << "restore message.json\nframes 200\ndump tour.json\n";
    std::ofstream(dir / "message.json") << R"({"MessagePending": -1, "PromptAge": -1, "PromptLine": {"2": "A LINE IN A FONT TOO SMALL"}})";
  }
  const std::string cmd = "cd '" + dir.string() + "' && timeout 300 '" LANEFARER_BINARY "' --headless --verbose --seed 3 --data '" +
                          damaged.string() + "' --save-dir '" + (dir / "save").string() +
                          "' --script tour.txt > out.txt 2> err.txt";
  const int raw = std::system(cmd.c_str());
  ASSERT_TRUE(WIFEXITED(raw));
  const std::string err = Read(dir / "err.txt");
  EXPECT_EQ(WEXITSTATUS(raw), 0) << err;
  EXPECT_NE(Read(dir / "tour.json").find("\"BridgeActive\": -1"), std::string::npos);
  // (A headless run plays no sound and reads none: the damaged sounds are
  // there to show they stop nothing; the sound bank's own tests name them.)
  for (const char* file : {"gfx/back2.bmp", "gfx/back.bmp", "gfx/dest.bmp", "gfx/fonts/font_sml.bmp",
                           "gfx/misc/heart.bmp"}) {
    const std::string named = (damaged / file).string() + ":";
    std::size_t count = 0;
    for (std::size_t at = err.find(named); at != std::string::npos; at = err.find(named, at + 1)) ++count;
    EXPECT_EQ(count, 1u) << file << " in:\n" << err;
  }
  fs::remove_all(dir);
}

}  // namespace
