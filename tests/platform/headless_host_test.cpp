#include <gtest/gtest.h>

#include <cstdio>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "platform/headless_host.h"
#include "shell/game_state.h"
#include "shell/program.h"

namespace lf {
namespace {

namespace fs = std::filesystem;
using Kind = InputEvent::Kind;

struct Driver {
  std::ostringstream err;
  HeadlessHost host;
  explicit Driver(const std::string& script, std::uint64_t seed = 1) : host(ParseScript(script), seed, err) {}

  // One yield; the status the program ends with, or -1 if it goes on.
  int Yield(std::vector<InputEvent>& out) {
    out.clear();
    try {
      host.PumpInput(out);
    } catch (const ProgramEnd& end) {
      return end.status;
    }
    return -1;
  }
  // Yields until the program ends; returns how many yields ran.
  int RunToEnd(int& status) {
    std::vector<InputEvent> in;
    int n = 0;
    while ((status = Yield(in)) < 0) ++n;
    return n;
  }
};

fs::path TempDir() { return fs::temp_directory_path() / ("lanefarer_headless_" + std::to_string(::getpid())); }

fs::path TempFile(const std::string& name) {
  fs::create_directories(TempDir());
  return TempDir() / name;
}

struct HeadlessDriver : ::testing::Test {
  void TearDown() override {
    std::error_code ec;
    fs::remove_all(TempDir(), ec);
  }
};

TEST_F(HeadlessDriver, RunsExactlyTheFramesTheScriptAsksFor) {
  int status = -1;
  Driver a("frames 10\n");
  EXPECT_EQ(a.RunToEnd(status), 10);
  EXPECT_EQ(status, 0);

  Driver b("frames 3\nframes 0\nframes 4\nquit\nframes 100\n");
  EXPECT_EQ(b.RunToEnd(status), 7);
  EXPECT_EQ(status, 0);

  Driver empty("");
  EXPECT_EQ(empty.RunToEnd(status), 0);
  EXPECT_EQ(status, 0);
}

TEST_F(HeadlessDriver, InputArrivesInTheNextYieldWithTheCursorMovedFirst) {
  Driver d("frames 2\nclick 100 200\nkey 38\nframes 1\nrclick 5 6\nmove 7 8\nframes 2\n");
  std::vector<InputEvent> in;
  int x = -1, y = -1;
  ASSERT_EQ(d.Yield(in), -1);
  ASSERT_EQ(d.Yield(in), -1);
  EXPECT_TRUE(in.empty());
  d.host.GetCursorPos(x, y);
  EXPECT_EQ(x, 320);  // the cursor starts at the centre

  ASSERT_EQ(d.Yield(in), -1);  // third yield: the click and the key
  ASSERT_EQ(in.size(), 2u);
  EXPECT_EQ(in[0].kind, Kind::MouseDown);
  EXPECT_EQ(in[0].button, 1);
  EXPECT_EQ(in[1].kind, Kind::KeyDown);
  EXPECT_EQ(in[1].key, 38);
  d.host.GetCursorPos(x, y);
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, 200);

  ASSERT_EQ(d.Yield(in), -1);  // right press, then a move: the cursor ends at the move
  ASSERT_EQ(in.size(), 1u);
  EXPECT_EQ(in[0].button, 2);
  d.host.GetCursorPos(x, y);
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, 8);

  ASSERT_EQ(d.Yield(in), -1);  // nothing new in the frame after
  EXPECT_TRUE(in.empty());
  EXPECT_EQ(d.Yield(in), 0);
  EXPECT_EQ(d.host.Yields(), 5);
}

TEST_F(HeadlessDriver, GameMovesOfTheCursorHoldUntilScriptedInput) {
  Driver d("frames 1\nmove 10 10\nframes 1\n");
  std::vector<InputEvent> in;
  d.Yield(in);
  d.host.SetCursorPos(900, 420);  // the game pins the cursor to the strip
  int x, y;
  d.host.GetCursorPos(x, y);
  EXPECT_EQ(x, 639);
  EXPECT_EQ(y, 420);
  d.Yield(in);
  d.host.GetCursorPos(x, y);
  EXPECT_EQ(x, 10);
}

TEST_F(HeadlessDriver, SeedFollowsSeedAndFrameOnly) {
  ResetGame();
  Driver a("", 7), b("", 7), c("", 8);
  G.Frame = 120;
  EXPECT_EQ(a.host.ClockSeed(), b.host.ClockSeed());
  EXPECT_NE(a.host.ClockSeed(), c.host.ClockSeed());
  const auto at120 = a.host.ClockSeed();
  G.Frame = 121;
  EXPECT_NE(a.host.ClockSeed(), at120);
  EXPECT_EQ(HeadlessSeed(7, 120), at120);
}

TEST_F(HeadlessDriver, DumpsAndRestoresTheGameState) {
  ResetGame();
  const auto in = TempFile("in.json");
  const auto out = TempFile("out.json");
  std::ofstream(in) << R"({"Cash": 1234.5, "Planet": {"2": {"Width": 77}}})";
  Driver d("restore " + in.string() + "\ndump " + out.string() + "\n");
  int status = -1;
  d.RunToEnd(status);
  EXPECT_EQ(status, 0) << d.err.str();
  EXPECT_EQ(G.Cash, 1234.5);
  std::ifstream f(out);
  const auto dump = nlohmann::json::parse(f);
  EXPECT_EQ(dump["Cash"], 1234.5);
  EXPECT_EQ(dump["Planet"][2]["Width"], 77.0);
  EXPECT_TRUE(dump.contains("Frame"));
}

TEST_F(HeadlessDriver, ShotWritesTheLastPresentedFrame) {
  const auto png = TempFile("shot.png");
  fs::remove(png);
  Driver d("shot " + png.string() + "\n");
  std::vector<std::uint16_t> frame(640 * 480 + 64, 0);
  frame[0] = 0xF800;
  d.host.Present(frame.data(), 640 * 2);
  EXPECT_EQ(d.host.LastFrame()[0], 0xF800);
  int status = -1;
  d.RunToEnd(status);
  EXPECT_EQ(status, 0) << d.err.str();
  std::ifstream f(png, std::ios::binary);
  char magic[8] = {};
  f.read(magic, 8);
  EXPECT_EQ(std::string(magic + 1, 3), "PNG");
}

TEST_F(HeadlessDriver, AFailingLineEndsTheRunWithStatusTwo) {
  const auto bad = TempFile("bad.json");
  const auto wrongKey = TempFile("wrong.json");
  std::ofstream(bad) << "{\"Cash\": ";
  std::ofstream(wrongKey) << R"({"NoSuchThing": 1})";
  const auto missing = TempFile("missing.json");
  fs::remove(missing);
  const std::string unwritable = "/nonexistent-folder/x.json";

  struct Case {
    std::string script;
    std::string messageStart;
  };
  const Case cases[] = {
      {"frames 1\nrestore " + missing.string(), "script:2: cannot read \"" + missing.string() + "\""},
      {"restore " + bad.string(), "script:1: bad JSON in \"" + bad.string() + "\": "},
      {"# x\nrestore " + wrongKey.string(), "script:2: cannot restore \"" + wrongKey.string() + "\": "},
      {"dump " + unwritable, "script:1: cannot write \"" + unwritable + "\""},
      {"shot /nonexistent-folder/x.png", "script:1: cannot write \"/nonexistent-folder/x.png\""},
  };
  for (const auto& c : cases) {
    ResetGame();
    G.Cash = 5;
    Driver d(c.script);
    int status = -1;
    d.RunToEnd(status);
    EXPECT_EQ(status, 2) << c.script;
    EXPECT_EQ(d.err.str().rfind(c.messageStart, 0), 0u) << d.err.str();
    EXPECT_EQ(d.err.str().back(), '\n');
    EXPECT_EQ(G.Cash, 5);  // a failed restore leaves the game as it was
  }
}

}  // namespace
}  // namespace lf
