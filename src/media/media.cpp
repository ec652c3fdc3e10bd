#include "media/media.h"

#include "media/clip_player.h"
#include "media/media_backend.h"
#include "media/music.h"
#include "media/mute.h"
#include "media/sound_bank.h"
#include "media/sound_channels.h"
#include "shell/game_state.h"
#include "shell/paths.h"

namespace lf {
namespace {

constexpr std::size_t kLogLimit = 256;
std::vector<MediaCall> g_log;

void Record(MediaCall call) {
  if (g_log.size() >= kLogLimit) g_log.erase(g_log.begin());
  g_log.push_back(std::move(call));
}

void PlayClip(const std::string& file) {
  Record({MediaCall::Kind::Clip, 0, 0, file});
  PlayClipFile(DataPath(file));
}

// The disc as the game reads it: track 1 holds data, 2..5 the music, each
// track starting at its own first frame (a position in tracks, minutes,
// seconds and frames, with the track in the low byte).
void ReadTrackTable() {
  G.TrackCount = kLastMusicTrack;
  for (int t = 1; t <= kLastMusicTrack; ++t) G.TrackStart[t] = t;
}

}  // namespace

const std::vector<MediaCall>& MediaLog() { return g_log; }
void ClearMediaLog() { g_log.clear(); }

void LoadSoundBank() {
  for (int i = 1; i <= 33; ++i) G.SoundFile[i] = std::to_string(i) + ".wav";
  // Every sound is read here, once: a sound played later reads nothing.
  if (!Muted())
    for (int i = 1; i <= 33; ++i) BankedSoundOf(i);
}

void PlaySoundFx(int s, int c) {
  Record({MediaCall::Kind::Sound, s, c, {}});
  const int channel = TakeSoundChannel(c);
  if (channel < 0 || s < 1 || s > 33) return;  // out of the callers' bounds: the statement fails
  if (Muted()) return;
  if (SameSoundPlays(channel, s)) return;  // it plays on
  const BankedSound& sound = BankedSoundOf(s);
  MarkSoundStart(channel, s, sound.Frames);
  CurrentMediaBackend().PlaySound(channel, sound.File, sound.Wave ? &*sound.Wave : nullptr);
}

void PlayTrack(int n) {
  Record({MediaCall::Kind::Track, n, 0, {}});
  ReadTrackTable();
  if (Muted()) return;
  const std::vector<std::string> run = TrackRun(n);
  if (run.empty()) {
    CurrentMediaBackend().StopMusic();
  } else {
    CurrentMediaBackend().PlayMusic(run);
  }
}

void StopTrack() {
  Record({MediaCall::Kind::StopTrack, 0, 0, {}});
  CurrentMediaBackend().StopMusic();
}

void Quelmar() { PlayClip("anim/tarvish.mpg"); }
void Quelmar2() { PlayClip("anim/quelmar.mpg"); }
void PlayIntro() { PlayClip("anim/intro.mpg"); }
void PlayCredits() { PlayClip("anim/credits.mpg"); }
void VideoLane() {
  switch (G.CurrentQuadrant) {
    case 1: PlayClip("anim/star_lane.mpg"); break;
    case 2: PlayClip("anim/star_lane.mpg"); PlayClip("anim/dees.mpg"); break;
    case 3: PlayClip("anim/star_lane.mpg"); PlayClip("anim/artefact.mpg"); break;
    case 4: PlayClip("anim/end.mpg"); PlayClip("anim/credits.mpg"); break;
    default: break;
  }
}

}  // namespace lf
