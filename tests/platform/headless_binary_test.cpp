// Runs the built program headless, as a player's script would.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

namespace {

namespace fs = std::filesystem;

fs::path Scratch() {
  const auto dir = fs::temp_directory_path() / ("lanefarer_binary_" + std::to_string(::getpid()));
  fs::create_directories(dir);
  return dir;
}

// Each test leaves nothing behind in the temporary folder.
struct HeadlessBinary : ::testing::Test {
  void TearDown() override {
    std::error_code ec;
    fs::remove_all(Scratch(), ec);
  }
};

// Runs the program with `args` in the scratch folder; returns its exit status.
int RunGame(const std::string& args, std::string* err = nullptr) {
  const auto dir = Scratch();
  const std::string cmd = "cd '" + dir.string() + "' && '" LANEFARER_BINARY "' " + args + " >out.txt 2>err.txt";
  const int raw = std::system(cmd.c_str());
  if (err) {
    std::ifstream f(dir / "err.txt");
    std::stringstream s;
    s << f.rdbuf();
    *err = s.str();
  }
  return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
}

TEST_F(HeadlessBinary, RunsAScriptAndDumpsParsableState) {
  const auto dir = Scratch();
  std::ofstream(dir / "run.txt") << "frames 10\ndump state.json\n";
  std::string err;
  ASSERT_EQ(RunGame("--headless --seed 3 --data '" + dir.string() + "' --save-dir save --script run.txt", &err), 0)
      << err;
  std::ifstream f(dir / "state.json");
  const auto state = nlohmann::json::parse(f);
  ASSERT_TRUE(state.is_object());
  EXPECT_TRUE(state.contains("Frame"));
}

TEST_F(HeadlessBinary, BadScriptsAndCommandLinesExitWithTwo) {
  const auto dir = Scratch();
  std::ofstream(dir / "bad.txt") << "frames 1\nclick 1\n";
  std::string err;
  EXPECT_EQ(RunGame("--headless --script bad.txt", &err), 2);
  EXPECT_EQ(err, "script:2: expected \"click X Y\" (2 arguments, got 1)\n");
  EXPECT_EQ(RunGame("--headless --script no-such-script.txt", &err), 2);
  EXPECT_NE(err.find("no-such-script.txt"), std::string::npos);
  EXPECT_EQ(RunGame("--window-scale 0", &err), 2);
  EXPECT_NE(err.find("usage:"), std::string::npos);
  EXPECT_EQ(RunGame("--frobnicate"), 2);
  EXPECT_EQ(RunGame("--headless extra"), 2);
  EXPECT_EQ(RunGame("--version"), 0);
}

}  // namespace
