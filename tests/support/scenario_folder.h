// A scratch folder of the test's own holding copies of the scenario files
// (scripts and restored states), where a script's relative paths land, and
// the headless game run in it: its exit status, its dumps and its output.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

namespace lf::test {

class ScenarioFolderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = "lanefarer_" + std::string(info->test_suite_name()) + "_" + info->name() + "_" +
                       std::to_string(::getpid());
    for (char& c : name)
      if (c == '/') c = '_';  // parameterised tests
    dir = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    for (const auto& entry : std::filesystem::directory_iterator(LANEFARER_SCENARIOS))
      if (entry.path().extension() == ".txt" || entry.path().extension() == ".json")
        std::filesystem::copy_file(entry.path(), dir / entry.path().filename());
  }
  void TearDown() override {
    if (!dir.empty()) std::filesystem::remove_all(dir);
  }

  // The generated data set, or a folder that does not exist when the build
  // has none (the game then draws nothing and goes on).
  static std::string Data() {
    const char* d = std::getenv("LANEFARER_TEST_DATA");
    return d ? d : "/nonexistent-lanefarer-data";
  }
  static bool HaveData() { return std::getenv("LANEFARER_TEST_DATA") != nullptr; }

  // Runs the game headless on the script; standard output and errors go to
  // out.txt and err.txt. Returns the exit status, -1 when it did not exit.
  int Run(const std::string& script, const std::string& seed = "5", const std::string& data = Data(),
          const std::string& extra = "") const {
    const std::string cmd = "cd '" + dir.string() + "' && " + environment + " '" LANEFARER_BINARY "' --headless " + extra + " --seed " +
                            seed + " --data '" + data + "' --save-dir '" + (dir / "save").string() + "' --script " +
                            script + " > out.txt 2> err.txt";
    const int raw = std::system(cmd.c_str());
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }

  // A state dumped by the script; an empty object (and a failure) when the
  // dump is missing.
  nlohmann::json Dump(const std::string& name) const {
    std::ifstream f(dir / name);
    EXPECT_TRUE(f) << name;
    return f ? nlohmann::json::parse(f) : nlohmann::json::object();
  }
  std::string Text(const std::string& name) const {
    std::ifstream f(dir / name, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
  }
  std::string Err() const { return Text("err.txt"); }
  void Write(const std::string& name, const std::string& text) const { std::ofstream(dir / name) << text; }

  std::filesystem::path dir;
  // Variables set for the game's run, as NAME=value words.
  std::string environment;
};

}  // namespace lf::test
