// Pictures that lie about their size, files that are not files, and
// pictures smaller than what the game cuts from them: each is skipped, the
// game goes on, and --verbose names it once.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "display/bmp_header.h"
#include "display/screen.h"
#include "media/temp_folder.h"
#include "shell/data_file.h"
#include "shell/game_state.h"
#include "shell/paths.h"

namespace lf {
namespace {

namespace fs = std::filesystem;

// The damaged headers beside this file (tests/display/pictures), each one
// that stalled or aborted the game when the BMP reader was given it.
fs::path Pictures() { return fs::path(LANEFARER_SCENARIOS).parent_path() / "display" / "pictures"; }

std::vector<std::uint8_t> Bytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class PictureFiles : public testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    folder = ScratchFolder("pictures");
    fs::create_directories(folder / "gfx");
    SetDataFolder(folder.string());
  }
  void TearDown() override {
    SetVerbose(false);
    SetDataFolder("data");
    fs::remove_all(folder);
  }
  // Loads a file placed as "\gfx\<name>" with --verbose; what was said.
  std::string LoadVerbose(const std::string& name, Bitmap& out) {
    SetVerbose(true);
    testing::internal::CaptureStderr();
    out = LoadBitmapIntoDXS("\\gfx\\" + name);
    return testing::internal::GetCapturedStderr();
  }
  fs::path folder;
};

TEST_F(PictureFiles, EveryDamagedHeaderIsRefusedBeforeTheReaderSeesIt) {
  int damaged = 0;
  for (const auto& entry : fs::directory_iterator(Pictures())) {
    const std::string name = entry.path().filename().string();
    if (name.rfind("good_", 0) == 0) continue;
    ++damaged;
    EXPECT_TRUE(BmpHeaderFault(Bytes(entry.path()))) << name;
    fs::copy_file(entry.path(), folder / "gfx" / name);
    Bitmap b;
    const std::string said = LoadVerbose(name, b);
    EXPECT_FALSE(b.Loaded()) << name;
    // One line, naming the file.
    EXPECT_NE(said.find(name), std::string::npos) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  }
  EXPECT_GE(damaged, 10);
  EXPECT_EQ(G.ProgressCount, damaged) << "a refused picture still counts as a load";
}

TEST_F(PictureFiles, ASoundPictureLoadsAtItsSize) {
  fs::copy_file(Pictures() / "good_4x2.bmp", folder / "gfx" / "good_4x2.bmp");
  EXPECT_FALSE(BmpHeaderFault(Bytes(Pictures() / "good_4x2.bmp")));
  Bitmap b;
  EXPECT_EQ(LoadVerbose("good_4x2.bmp", b), "");
  ASSERT_TRUE(b.Loaded());
  EXPECT_EQ(b.Width(), 4);
  EXPECT_EQ(b.Height(), 2);
}

TEST_F(PictureFiles, TheLimitsAdmitEverySheetTheGameDrawsAndNoMore) {
  // A header of a width x height 24-bit picture with its rows present.
  auto header = [](std::int32_t w, std::int32_t h, std::size_t pixels) {
    std::vector<std::uint8_t> b(54 + pixels, 0);
    b[0] = 'B';
    b[1] = 'M';
    auto put32 = [&](std::size_t at, std::uint32_t v) {
      for (int i = 0; i < 4; ++i) b[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
    };
    put32(10, 54);
    put32(14, 40);
    put32(18, static_cast<std::uint32_t>(w));
    put32(22, static_cast<std::uint32_t>(h));
    b[26] = 1;
    b[28] = 24;
    return b;
  };
  // The widest sheet of the data set, an opponent's strip, 16100x144.
  EXPECT_FALSE(BmpHeaderFault(header(16100, 144, static_cast<std::size_t>(48300 + 0) * 144)));
  // Stored top row first.
  EXPECT_FALSE(BmpHeaderFault(header(8, -8, 24 * 8)));
  EXPECT_TRUE(BmpHeaderFault(header(8, 8, 24 * 8 - 1))) << "one byte short of the last row";
  EXPECT_TRUE(BmpHeaderFault(header(4096, 4096, 0)));
}

TEST_F(PictureFiles, AFolderOrAFifoInPlaceOfAPictureReadsAsMissing) {
  fs::create_directories(folder / "gfx" / "folder.bmp");
  ASSERT_EQ(mkfifo((folder / "gfx" / "fifo.bmp").c_str(), 0600), 0);
  Bitmap b;
  EXPECT_NE(LoadVerbose("folder.bmp", b).find("not a regular file"), std::string::npos);
  EXPECT_FALSE(b.Loaded());
  EXPECT_NE(LoadVerbose("fifo.bmp", b).find("not a regular file"), std::string::npos);
  EXPECT_FALSE(b.Loaded());
  std::string why;
  EXPECT_FALSE(ReadDataFile((folder / "gfx" / "fifo.bmp").string(), 100, &why));
  EXPECT_EQ(why, "not a regular file");
  EXPECT_FALSE(ReadDataFile((folder / "gfx" / "none.bmp").string(), 100, &why));
  EXPECT_EQ(why, "missing");
}

TEST_F(PictureFiles, APictureSmallerThanItsRectanglesIsSkippedAndNamedOnce) {
  fs::copy_file(Pictures() / "good_4x2.bmp", folder / "gfx" / "small.bmp");
  Bitmap b;
  ASSERT_EQ(LoadVerbose("small.bmp", b), "");
  testing::internal::CaptureStderr();
  SetSrc(0, 0, 4, 2);
  EXPECT_TRUE(BltFast(10, 10, b, false));
  SetSrc(4, 0, 8, 2);  // a second frame the picture does not have
  EXPECT_FALSE(BltFast(10, 10, b, true));
  EXPECT_FALSE(BltFast(20, 10, b, true));
  SetSrc(0, 0, 4, 2);
  EXPECT_FALSE(BltFast(638, 10, b, true)) << "off the screen: skipped by rule, not a fault of the picture";
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  EXPECT_NE(said.find("small.bmp: smaller (4x2)"), std::string::npos) << said;
}

}  // namespace
}  // namespace lf
