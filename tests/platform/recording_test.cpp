// Recorded sessions replay to the same state; F12 screenshots land in the
// player's pictures folder; the monkey plays every screen without a fault.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/recorder.h"
#include "platform/screenshot_file.h"
#include "platform/script.h"
#include "shell/host.h"

namespace {

namespace fs = std::filesystem;
using lf::InputEvent;

struct Recording : ::testing::Test {
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir = fs::temp_directory_path() / ("lanefarer_rec_" + std::string(info->name()) + "_" + std::to_string(::getpid()));
    fs::remove_all(dir);
    fs::create_directories(dir);
  }
  void TearDown() override { fs::remove_all(dir); }

  static std::string Data() {
    const char* d = std::getenv("LANEFARER_TEST_DATA");
    return d ? d : "/nonexistent-lanefarer-data";
  }
  int Run(const std::string& args, const std::string& env = "") {
    const std::string cmd = "cd '" + dir.string() + "' && " + env + " '" LANEFARER_BINARY "' --headless --data '" +
                            Data() + "' --save-dir save " + args + " > out.txt 2> err.txt";
    const int raw = std::system(cmd.c_str());
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }
  std::string Read(const std::string& name) const {
    std::ifstream f(dir / name, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
  }
  void Write(const std::string& name, const std::string& text) const { std::ofstream(dir / name) << text; }
  // The recorded script with a dump put in front of its last line, `quit`.
  void DumpAtEnd(const std::string& recorded, const std::string& out, const std::string& dump) const {
    std::string text = Read(recorded);
    const auto quit = text.rfind("quit\n");
    ASSERT_NE(quit, std::string::npos) << text;
    text.insert(quit, "dump " + dump + "\n");
    Write(out, text);
  }

  fs::path dir;
};

TEST(ScriptRecorder, GapsBetweenInputsBecomeFramesLines) {
  std::ostringstream out;
  {
    lf::ScriptRecorder r(out, 42);
    const std::vector<InputEvent> none;
    const std::vector<InputEvent> click{{InputEvent::Kind::MouseDown, 1, 0}};
    const std::vector<InputEvent> both{{InputEvent::Kind::MouseDown, 2, 0}, {InputEvent::Kind::KeyDown, 1, 27}};
    r.Yield(click, 320, 240, 320, 240);  // yield 1: before any frames line
    r.Yield(none, 320, 240, 320, 240);
    r.Yield(none, 320, 240, 100, 50);   // yield 3: the cursor moved
    r.Yield(none, 100, 50, 100, 50);
    r.Yield(both, 100, 50, 7, 8);       // yield 5: two presses where the cursor ended
    r.Yield(none, 7, 8, 7, 8);
    r.Finish();
    r.Finish();  // once only
  }
  const std::string text = out.str();
  const std::string body = text.substr(text.find("seed 42\n"));
  EXPECT_EQ(body,
            "seed 42\n"
            "click 320 240\n"
            "frames 2\n"
            "move 100 50\n"
            "frames 2\n"
            "rclick 7 8\n"
            "move 7 8\n"
            "key 27\n"
            "frames 2\n"
            "quit\n");
  EXPECT_NO_THROW(lf::ParseScript(text));
}

TEST(ScriptRecorder, AClosedWindowEndsTheScript) {
  std::ostringstream out;
  lf::ScriptRecorder r(out, 1);
  r.Yield({}, 0, 0, 0, 0);
  r.Yield({{InputEvent::Kind::Close, 1, 0}}, 0, 0, 0, 0);
  r.Yield({{InputEvent::Kind::MouseDown, 1, 0}}, 0, 0, 0, 0);
  r.Finish();
  const std::string text = out.str();
  EXPECT_EQ(text.substr(text.find("seed 1\n")), "seed 1\nframes 1\nquit\n");
}

TEST_F(Recording, ARecordedSessionReplaysToTheSameState) {
  // A new game, the opening picture, and clicks around the first screens.
  Write("play.txt",
        "frames 20\nclick 320 150\nframes 20\nclick 320 240\nframes 120\nclick 300 215\nframes 30\n"
        "move 500 300\nframes 3\nclick 620 140\nframes 40\nclick 620 140\nframes 40\nkey 37\nframes 5\n"
        "rclick 100 100\nframes 10\nkey 27\nframes 10\nclick 320 210\nframes 25\ndump a.json\nquit\n");
  ASSERT_EQ(Run("--seed 9 --script play.txt --record rec.txt"), 0) << Read("err.txt");
  DumpAtEnd("rec.txt", "replay.txt", "b.json");
  // Another seed on the command line: the recording's own seed wins.
  ASSERT_EQ(Run("--seed 1 --script replay.txt"), 0) << Read("err.txt");
  const auto a = nlohmann::json::parse(Read("a.json"));
  const auto b = nlohmann::json::parse(Read("b.json"));
  EXPECT_EQ(a["Frame"], b["Frame"]);
  EXPECT_TRUE(a == b) << "the replay differs from the recorded run";

  // Replayed with no data folder at all, the state is the same too.
  DumpAtEnd("rec.txt", "replay2.txt", "c.json");
  const std::string cmd = "cd '" + dir.string() + "' && '" LANEFARER_BINARY
                          "' --headless --data /nonexistent --save-dir save --script replay2.txt > /dev/null 2>&1";
  ASSERT_EQ(std::system(cmd.c_str()), 0);
  auto c = nlohmann::json::parse(Read("c.json"));
  auto a2 = a;
  // What was heard is not state.
  c.erase("MediaCalls");
  a2.erase("MediaCalls");
  EXPECT_TRUE(a2 == c) << "a replay with another data folder differs";
}

TEST_F(Recording, AMonkeySessionRecordsAScriptThatReplays) {
  ASSERT_EQ(Run("--seed 31 --monkey 3000 --record monkey.txt"), 0) << Read("err.txt");
  const std::string text = Read("monkey.txt");
  EXPECT_NE(text.find("seed 31\n"), std::string::npos);
  EXPECT_NE(text.find("click "), std::string::npos);
  ASSERT_EQ(Run("--script monkey.txt"), 0) << Read("err.txt");
}

TEST_F(Recording, F12SavesTheFrameInThePicturesFolder) {
  Write("shot.txt", "frames 30\nkey 123\nframes 2\nkey 123\nframes 2\nquit\n");
  ASSERT_EQ(Run("--script shot.txt", "XDG_PICTURES_DIR='" + (dir / "pics").string() + "'"), 0) << Read("err.txt");
  std::vector<fs::path> shots;
  for (const auto& e : fs::directory_iterator(dir / "pics" / "lanefarer")) shots.push_back(e.path());
  ASSERT_EQ(shots.size(), 2u);
  for (const auto& p : shots) {
    EXPECT_EQ(p.extension(), ".png");
    EXPECT_EQ(p.filename().string().rfind("lanefarer-", 0), 0u);
    EXPECT_GT(fs::file_size(p), 100u);
  }
  EXPECT_NE(Read("err.txt").find("screenshot saved as"), std::string::npos);
}

TEST_F(Recording, AScreenshotFolderThatCannotBeMadeIsOneLine) {
  Write("plain", "x");
  Write("shot.txt", "frames 5\nkey 123\nframes 5\nquit\n");
  ASSERT_EQ(Run("--script shot.txt", "XDG_PICTURES_DIR='" + (dir / "plain").string() + "'"), 0);
  EXPECT_NE(Read("err.txt").find("no screenshot: cannot make the folder"), std::string::npos) << Read("err.txt");
}

TEST(ScreenshotFile, FolderAndNameFollowTheDesktopsConventions) {
  EXPECT_EQ(lf::ScreenshotFolder("/pics", "/data", "/home/p"), "/pics/lanefarer");
  EXPECT_EQ(lf::ScreenshotFolder(nullptr, "/data", "/home/p"), "/data/lanefarer/screenshots");
  EXPECT_EQ(lf::ScreenshotFolder("rel", nullptr, "/home/p"), "/home/p/.local/share/lanefarer/screenshots");
  EXPECT_EQ(lf::ScreenshotFolder(nullptr, nullptr, nullptr), std::nullopt);
  std::tm t{};
  t.tm_year = 126;
  t.tm_mon = 10;
  t.tm_mday = 23;
  t.tm_hour = 9;
  t.tm_min = 5;
  t.tm_sec = 7;
  EXPECT_EQ(lf::ScreenshotName(t), "lanefarer-20261123-090507.png");
}

}  // namespace
