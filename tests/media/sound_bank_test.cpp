// The sound bank in memory: each file read once, a sound asked again on a
// channel where it still plays playing on, and files that are no sound.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "media/media.h"
#include "media/media_backend.h"
#include "media/sound_bank.h"
#include "media/sound_channels.h"
#include "media/temp_folder.h"
#include "shell/game_state.h"
#include "shell/loop_fixture.h"
#include "shell/paths.h"

namespace lf {
namespace {

namespace fs = std::filesystem;

// A mono 16-bit 22050 Hz sound of `samples` samples.
void WriteSound(const fs::path& file, std::uint32_t samples) {
  std::vector<std::uint8_t> b;
  auto put = [&](const std::string& s) { b.insert(b.end(), s.begin(), s.end()); };
  auto put16 = [&](unsigned v) { b.push_back(v & 0xFF); b.push_back(v >> 8 & 0xFF); };
  auto put32 = [&](std::uint32_t v) { for (int i = 0; i < 4; ++i) b.push_back(v >> (8 * i) & 0xFF); };
  put("RIFF"); put32(0); put("WAVE");
  put("fmt "); put32(16); put16(1); put16(1); put32(22050); put32(44100); put16(2); put16(16);
  put("data"); put32(samples * 2);
  b.resize(b.size() + samples * 2, 0x10);
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
}

// Keeps whether each request came with samples.
class SampleBackend : public MediaBackend {
 public:
  std::vector<bool> withSamples;
  void PlaySound(int, const std::string&, const WaveSound* wave) override { withSamples.push_back(wave != nullptr); }
  void PlayMusic(const std::vector<std::string>&) override {}
  void StopMusic() override {}
};

class SoundBank : public testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    ResetSoundChannels();
    ForgetSoundBank();
    SetMediaBackend(&backend);
    folder = ScratchFolder("bank");
    SetDataFolder(folder.string());
  }
  void TearDown() override {
    SetMediaBackend(nullptr);
    SetVerbose(false);
    ForgetSoundBank();
    SetDataFolder("data");
    fs::remove_all(folder);
  }
  fs::path Sound(int n) const { return folder / "sounds" / (std::to_string(n) + ".wav"); }

  RecordingBackend backend;
  fs::path folder;
};

TEST_F(SoundBank, ASoundAskedWhereItStillPlaysPlaysOnAndStartsAgainOnceItEnded) {
  WriteSound(Sound(2), 11025);  // half a second: 30 frames
  WriteSound(Sound(4), 2205);
  LoadSoundBank();
  ASSERT_EQ(BankedSoundOf(2).Frames, 30);

  G.Frame = 1000;
  PlaySoundFx(2, 1);
  for (int f = 1; f < 30; ++f) {
    G.Frame = 1000 + f;
    PlaySoundFx(2, 1);  // plays on
  }
  EXPECT_EQ(backend.SoundCount(), 1);
  PlaySoundFx(2, 3);  // another channel is another sound
  EXPECT_EQ(backend.SoundCount(), 2);
  G.Frame = 1030;  // ended on channel 1
  PlaySoundFx(2, 1);
  EXPECT_EQ(backend.SoundCount(), 3);
  PlaySoundFx(4, 1);  // another sound cuts it...
  PlaySoundFx(2, 1);  // ...so this one starts anew
  EXPECT_EQ(backend.SoundCount(), 5);
  // The game's log still holds every call.
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Sound, 2, 1, {}}));
}

TEST_F(SoundBank, EachFileIsReadOnceAtTheBankAndNotWhenItPlays) {
  WriteSound(Sound(7), 2205);
  LoadSoundBank();
  fs::remove(Sound(7));
  SampleBackend samples;
  SetMediaBackend(&samples);
  PlaySoundFx(7, 3);
  G.Frame += 100;
  PlaySoundFx(7, 3);
  EXPECT_EQ(samples.withSamples, (std::vector<bool>{true, true}));
  // A changed name or data folder is read anew.
  G.SoundFile[7] = "8.wav";
  EXPECT_FALSE(BankedSoundOf(7).Wave);
}

TEST_F(SoundBank, AFolderOrAFifoInPlaceOfASoundIsAMissingFile) {
  fs::create_directories(Sound(4));  // "sounds/4.wav/"
  fs::create_directories(folder / "sounds");
  ASSERT_EQ(mkfifo(Sound(5).c_str(), 0600), 0);
  SetVerbose(true);
  testing::internal::CaptureStderr();
  LoadSoundBank();
  SampleBackend samples;
  SetMediaBackend(&samples);
  PlaySoundFx(4, 1);
  PlaySoundFx(5, 2);
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_EQ(samples.withSamples, (std::vector<bool>{false, false}));
  EXPECT_NE(said.find("4.wav: not a regular file"), std::string::npos) << said;
  EXPECT_NE(said.find("5.wav: not a regular file"), std::string::npos) << said;
}

using OrbitQuestionSound = test::LoopTest;

// The ENTER ORBIT question asks for its notice every frame it stands; the
// player hears it once a play, not a buzz of restarts.
TEST_F(OrbitQuestionSound, AStandingQuestionPlaysItsNoticeOnceAPlay) {
  const fs::path folder = ScratchFolder("orbit_sound");
  WriteSound(folder / "sounds" / "2.wav", 22050);  // one second: 60 frames
  SetDataFolder(folder.string());
  ForgetSoundBank();
  RecordingBackend backend;
  SetMediaBackend(&backend);
  LoadSoundBank();

  OnBridge();
  G.StatusSlot[DockedSlot].Active = False;
  G.PlanetCount = 1;  // a body where the ship stands
  G.Planet[1].X = G.ShipX;
  G.Planet[1].Y = G.ShipY;
  G.Planet[1].Width = G.Planet[1].Height = 64;
  G.OrbitState = 1;
  G.OrbitOfferOpen = True;
  Frames(300);
  EXPECT_EQ(G.QuestionPending, True);
  EXPECT_GE(Sounds(2, 1), 200) << "the game asks every frame";
  EXPECT_GE(backend.SoundCount(), 5);
  EXPECT_LE(backend.SoundCount(), 6);

  SetMediaBackend(nullptr);
  ForgetSoundBank();
  SetDataFolder("data");
  fs::remove_all(folder);
}

}  // namespace
}  // namespace lf
