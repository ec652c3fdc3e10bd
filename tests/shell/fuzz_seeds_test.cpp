// The seeds the fuzz targets start from (fuzz/corpus) still read as what
// they stand for: a seed the readers refuse at its first bytes would leave
// the fuzzer probing only the refusal.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "display/screen.h"
#include "media/wav_reader.h"
#include "shell/game_state.h"
#include "shell/save_layout.h"
#include "shell/state_json.h"

namespace lf {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Seeds(const std::string& target) {
  const fs::path dir = fs::path(LANEFARER_SCENARIOS).parent_path().parent_path() / "fuzz" / "corpus" / target;
  std::vector<fs::path> files;
  for (const auto& e : fs::directory_iterator(dir)) files.push_back(e.path());
  return files;
}

std::vector<std::uint8_t> Bytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A save seed is its file's number, then a real save's text, cut short
// where the file is long: it reads whole or runs out, nothing else.
TEST(FuzzSeeds, SavedFilesReadAsFarAsTheyGo) {
  auto game = std::make_unique<Game>();
  int whole = 0;
  for (const fs::path& seed : Seeds("save_reader")) {
    const auto bytes = Bytes(seed);
    ASSERT_FALSE(bytes.empty()) << seed;
    const int file = bytes[0] % kSaveFileCount;
    const std::string stem = seed.stem().string();
    EXPECT_EQ(stem.substr(0, stem.find('_')) + ".sav", kSaveFileNames[static_cast<std::size_t>(file)]) << seed;
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()) + 1, bytes.size() - 1);
    const std::string problem = ReadPositionFile(*game, file, text);
    if (problem.empty())
      ++whole;
    else
      EXPECT_EQ(problem, UpperName(file) + " ENDS TOO EARLY") << seed;
  }
  EXPECT_GE(whole, 10);
}

TEST(FuzzSeeds, PicturesLoadInEveryDepthAndCoding) {
  ResetGame();
  const auto seeds = Seeds("bmp_picture");
  EXPECT_GE(seeds.size(), 10u);
  for (const fs::path& seed : seeds) {
    const auto bytes = Bytes(seed);
    ASSERT_EQ(bytes.at(0), 0) << seed << ": a seed is read as it stands";
    const Bitmap picture = BitmapFromBytes({bytes.begin() + 1, bytes.end()}, seed.string());
    EXPECT_TRUE(picture.Loaded()) << seed;
  }
}

TEST(FuzzSeeds, WavesParse) {
  for (const fs::path& seed : Seeds("wav_reader")) {
    std::string why;
    EXPECT_TRUE(ParseWave(Bytes(seed), &why)) << seed << ": " << why;
  }
}

TEST(FuzzSeeds, StatesRestore) {
  auto game = std::make_unique<Game>();
  for (const fs::path& seed : Seeds("state_restore")) {
    const auto bytes = Bytes(seed);
    auto state = nlohmann::json::parse(bytes.begin(), bytes.end());
    state.erase("MediaCalls");
    EXPECT_NO_THROW(RestoreState(*game, state)) << seed;
  }
}

}  // namespace
}  // namespace lf
