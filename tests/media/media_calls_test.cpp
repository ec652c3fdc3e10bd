// The game's side of sound and music: which channel a sound goes to, which
// tracks a disc plays from a track on, and what a muted game still records.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "media/temp_folder.h"
#include "media/media.h"
#include "media/media_backend.h"
#include "media/mute.h"
#include "media/sound_channels.h"
#include "shell/game_state.h"
#include "shell/paths.h"

namespace lf {
namespace {

using Request = RecordingBackend::Request;

class MediaCalls : public testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    ResetSoundChannels();
    ClearMediaLog();
    SetMediaBackend(&backend);
    folder = ScratchFolder("media");
    std::filesystem::create_directories(folder / "music");
    SetDataFolder(folder.string());
    LoadSoundBank();
  }
  void TearDown() override {
    SetMediaBackend(nullptr);
    SetMuted(false);
    SetDataFolder("data");
    std::filesystem::remove_all(folder);
  }
  void MakeTrack(int n) { std::ofstream(TrackName(n)) << "x"; }
  std::string TrackName(int n) const {
    return (folder / "music" / ("track0" + std::to_string(n) + ".ogg")).string();
  }
  std::vector<int> SoundChannels() const {
    std::vector<int> out;
    for (const auto& r : backend.Requests())
      if (r.kind == Request::Kind::Sound) out.push_back(r.channel);
    return out;
  }

  RecordingBackend backend;
  std::filesystem::path folder;
};

TEST_F(MediaCalls, ASoundGoesToItsChannelAndFile) {
  PlaySoundFx(8, 2);
  ASSERT_EQ(backend.Requests().size(), 1u);
  EXPECT_EQ(backend.Requests()[0], (Request{Request::Kind::Sound, 2, {(folder / "sounds" / "8.wav").string()}}));
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Sound, 8, 2, {}}));
}

TEST_F(MediaCalls, AnyChannelTakesTheLowestThatHoldsNothing) {
  PlaySoundFx(4, 1);
  PlaySoundFx(2, -1);
  PlaySoundFx(2, -1);
  PlaySoundFx(7, 3);
  PlaySoundFx(2, -1);
  EXPECT_EQ(SoundChannels(), (std::vector<int>{1, 0, 2, 3, 4}));
}

TEST_F(MediaCalls, WithAllEightHeldAnyChannelCutsARandomOne) {
  for (int c = 0; c < kSoundChannels; ++c) PlaySoundFx(2, c);
  // The random pick is Int(Rnd * 8) from the game's generator.
  Game copy = G;
  std::vector<int> expected;
  for (int i = 0; i < 40; ++i) expected.push_back(static_cast<int>(Rnd() * 8));
  G = copy;
  backend.Clear();
  for (int i = 0; i < 40; ++i) PlaySoundFx(2, -1);
  EXPECT_EQ(SoundChannels(), expected);
  EXPECT_GT(std::set<int>(expected.begin(), expected.end()).size(), 4u);
}

TEST_F(MediaCalls, TheSameSoundTwiceOnOneChannelIsOneSound) {
  // The mixer cuts a channel when it plays on it: both requests go to the
  // same channel, so the second cuts the first.
  PlaySoundFx(9, 3);
  PlaySoundFx(9, 3);
  EXPECT_EQ(SoundChannels(), (std::vector<int>{3, 3}));
}

TEST_F(MediaCalls, CallsOutOfBoundsPlayNothing) {
  PlaySoundFx(2, 8);
  PlaySoundFx(34, 1);
  PlaySoundFx(0, 1);
  EXPECT_TRUE(SoundChannels().empty());
  EXPECT_EQ(MediaLog().size(), 3u);
}

TEST_F(MediaCalls, ATrackRunsOnToTheLastAndMissingTracksAreSilence) {
  for (int t = 2; t <= 5; ++t) MakeTrack(t);
  PlayTrack(3);
  ASSERT_FALSE(backend.Requests().empty());
  EXPECT_EQ(backend.Requests().back(),
            (Request{Request::Kind::Music, 0, {TrackName(3), TrackName(4), TrackName(5)}}));
  EXPECT_EQ(G.TrackCount, 5);
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 3, 0, {}}));

  std::filesystem::remove(TrackName(4));
  PlayTrack(2);
  EXPECT_EQ(backend.Requests().back(), (Request{Request::Kind::Music, 0, {TrackName(2), TrackName(3), TrackName(5)}}));

  std::filesystem::remove(TrackName(5));
  backend.Clear();
  PlayTrack(5);  // nothing left to play: what played stops
  PlayTrack(1);  // the data track
  EXPECT_EQ(backend.Requests(), (std::vector<Request>{{Request::Kind::StopMusic, 0, {}}, {Request::Kind::StopMusic, 0, {}}}));

  StopTrack();
  EXPECT_EQ(backend.Requests().back().kind, Request::Kind::StopMusic);
  EXPECT_EQ(MediaLog().back().kind, MediaCall::Kind::StopTrack);
}

TEST_F(MediaCalls, MutedTheCallsAreKeptAndTheChannelsStillTurn) {
  SetMuted(true);
  MakeTrack(4);
  for (int i = 0; i < 9; ++i) PlaySoundFx(2, -1);
  PlayTrack(4);
  EXPECT_TRUE(backend.Requests().empty());
  EXPECT_EQ(MediaLog().size(), 10u);
  // The random cut still draws from the generator, so a muted run replays
  // a recorded game exactly as one with sound.
  for (int c = 0; c < kSoundChannels; ++c) EXPECT_TRUE(SoundChannelHeld(c));
}

TEST_F(MediaCalls, HeadlessClipsAreRecordedInOrder) {
  G.CurrentQuadrant = 3;
  VideoLane();
  G.CurrentQuadrant = 4;
  VideoLane();
  Quelmar();
  std::vector<std::string> files;
  for (const auto& c : MediaLog()) files.push_back(c.file);
  EXPECT_EQ(files, (std::vector<std::string>{"anim/star_lane.mpg", "anim/artefact.mpg", "anim/end.mpg",
                                             "anim/credits.mpg", "anim/tarvish.mpg"}));
}

}  // namespace
}  // namespace lf
