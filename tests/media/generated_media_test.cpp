// The generated default data set through the game's own readers: every
// sound parses with the wave search, every clip decodes to its length.
// Runs when LANEFARER_TEST_DATA names a generated data folder.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "media/clip_decoder.h"
#include "media/wav_reader.h"

namespace lf {
namespace {

std::string TestData() {
  const char* dir = std::getenv("LANEFARER_TEST_DATA");
  return dir && std::filesystem::is_directory(std::string(dir) + "/sounds") ? dir : "";
}

TEST(GeneratedMedia, EverySoundParsesThroughTheGamesReader) {
  const std::string data = TestData();
  if (data.empty()) GTEST_SKIP() << "LANEFARER_TEST_DATA is not a generated data folder";
  for (int n = 1; n <= 33; ++n) {
    const auto w = LoadWAVIntoDSB(data + "/sounds/" + std::to_string(n) + ".wav");
    ASSERT_TRUE(w) << n;
    EXPECT_EQ(w->Format.FormatTag, 1) << n;
    EXPECT_EQ(w->Format.BitsPerSample, 16) << n;
    EXPECT_EQ(w->Format.Channels, 1) << n;
    // Long enough to be heard, short enough for a sound effect.
    const double seconds = static_cast<double>(w->Samples.size()) / 2 / w->Format.SamplesPerSec;
    EXPECT_GE(seconds, 0.05) << n;
    EXPECT_LE(seconds, 3.0) << n;
  }
}

TEST(GeneratedMedia, EveryClipDecodesToItsLengthAt320By240) {
  const std::string data = TestData();
  if (data.empty()) GTEST_SKIP() << "LANEFARER_TEST_DATA is not a generated data folder";
  const struct {
    const char* file;
    int frames;
  } clips[] = {{"tarvish.mpg", 125}, {"quelmar.mpg", 100},   {"intro.mpg", 500}, {"credits.mpg", 550},
               {"star_lane.mpg", 200}, {"dees.mpg", 200}, {"artefact.mpg", 200}, {"end.mpg", 300}};
  for (const auto& c : clips) {
    ClipDecoder clip(data + "/anim/" + c.file);
    ASSERT_TRUE(clip.Ok()) << c.file;
    std::vector<std::uint8_t> rgb;
    double seconds = 0, last = -1;
    int frames = 0;
    long bright = 0;
    while (clip.NextFrame(rgb, seconds)) {
      ASSERT_EQ(rgb.size(), 320u * 240u * 3u);
      EXPECT_GT(seconds, last) << c.file << " frame " << frames;
      last = seconds;
      if (frames == c.frames / 2)
        for (std::uint8_t v : rgb) bright += v > 100;
      ++frames;
    }
    EXPECT_EQ(frames, c.frames) << c.file;
    EXPECT_NEAR(last, (c.frames - 1) / 25.0, 0.05) << c.file;
    EXPECT_GT(bright, 100) << c.file << ": the middle picture is not blank";
  }
}

TEST(GeneratedMedia, AFileThatIsNotAClipDoesNotOpen) {
  const std::string data = TestData();
  if (data.empty()) GTEST_SKIP() << "LANEFARER_TEST_DATA is not a generated data folder";
  EXPECT_FALSE(ClipDecoder(data + "/sounds/1.wav").Ok());
  EXPECT_FALSE(ClipDecoder(data + "/anim/no_such_clip.mpg").Ok());
}

}  // namespace
}  // namespace lf
