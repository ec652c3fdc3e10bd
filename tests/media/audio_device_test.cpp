// The SDL_mixer backend on SDL's dummy sound driver (no sound card needed):
// tracks run on to the last and stop, sounds convert and play.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "media/temp_folder.h"
#include "media/media.h"
#include "media/media_backend.h"
#include "media/sound_channels.h"
#include "shell/game_state.h"
#include "shell/paths.h"

namespace lf {
namespace {

// A short mono 16-bit tone as a wave file.
void WriteTone(const std::filesystem::path& file, double seconds, int rate, int bits) {
  const std::uint32_t frames = static_cast<std::uint32_t>(seconds * rate);
  const std::uint32_t bytes = frames * static_cast<std::uint32_t>(bits / 8);
  std::ofstream f(file, std::ios::binary);
  auto u16 = [&](unsigned v) { f.put(static_cast<char>(v & 0xFF)).put(static_cast<char>(v >> 8)); };
  auto u32 = [&](std::uint32_t v) { u16(v & 0xFFFF); u16(v >> 16); };
  f << "RIFF";
  u32(36 + bytes);
  f << "WAVEfmt ";
  u32(16);
  u16(1);
  u16(1);
  u32(static_cast<std::uint32_t>(rate));
  u32(static_cast<std::uint32_t>(rate * bits / 8));
  u16(static_cast<unsigned>(bits / 8));
  u16(static_cast<unsigned>(bits));
  f << "data";
  u32(bytes);
  for (std::uint32_t i = 0; i < frames; ++i) {
    if (bits == 8) {
      f.put(static_cast<char>(i % 40 < 20 ? 200 : 56));
    } else {
      u16(i % 40 < 20 ? 8000u : 0x10000u - 8000u);
    }
  }
}

class AudioDevice : public testing::Test {
 protected:
  void SetUp() override {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    folder = ScratchFolder("device");
    std::filesystem::create_directories(folder / "music");
    std::filesystem::create_directories(folder / "sounds");
    SetDataFolder(folder.string());
    ResetGame();
    ResetSoundChannels();
    LoadSoundBank();
    if (!OpenAudioBackend()) GTEST_SKIP() << "SDL's dummy sound driver did not open";
  }
  void TearDown() override {
    CloseAudioBackend();
    SetDataFolder("data");
    std::filesystem::remove_all(folder);
  }
  std::filesystem::path folder;
};

TEST_F(AudioDevice, ATrackRunsOnThroughTheLaterTracksAndStops) {
  // Wave files stand in for the tracks: the mixer knows them by their bytes.
  for (int t : {3, 5}) WriteTone(folder / "music" / ("track0" + std::to_string(t) + ".ogg"), 0.3, 22050, 16);
  std::ofstream(folder / "music" / "track04.ogg") << "not music at all";
  PlayTrack(3);
  std::vector<std::string> heard;
  const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (std::chrono::steady_clock::now() < until) {
    const std::string now = AudioBackendTrack();
    const std::string name = now.empty() ? "" : std::filesystem::path(now).filename().string();
    if (heard.empty() || heard.back() != name) heard.push_back(name);
    if (name.empty() && heard.size() > 1) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(heard, (std::vector<std::string>{"track03.ogg", "track05.ogg", ""}));
}

TEST_F(AudioDevice, StopTrackSilencesAndSoundsOfEveryWidthPlay) {
  WriteTone(folder / "music" / "track02.ogg", 5.0, 22050, 16);
  PlayTrack(2);
  EXPECT_EQ(std::filesystem::path(AudioBackendTrack()).filename(), "track02.ogg");
  StopTrack();
  EXPECT_EQ(AudioBackendTrack(), "");

  WriteTone(folder / "sounds" / "1.wav", 0.2, 11025, 8);
  WriteTone(folder / "sounds" / "2.wav", 0.2, 48000, 16);
  std::ofstream(folder / "sounds" / "3.wav") << "RIFF....WAVEfmt ";
  for (int i = 0; i < 20; ++i) PlaySoundFx(1 + i % 4, -1);  // 4.wav is missing: silence
  PlaySoundFx(2, 3);
  PlaySoundFx(2, 3);
}

}  // namespace
}  // namespace lf
