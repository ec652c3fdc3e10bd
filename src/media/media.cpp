#include "media/media.h"

#include "shell/game_state.h"

namespace lf {
namespace {

constexpr std::size_t kLogLimit = 256;
std::vector<MediaCall> g_log;

void Record(MediaCall call) {
  if (g_log.size() >= kLogLimit) g_log.erase(g_log.begin());
  g_log.push_back(std::move(call));
}

void PlayClip(const std::string& file) { Record({MediaCall::Kind::Clip, 0, 0, file}); }

}  // namespace

const std::vector<MediaCall>& MediaLog() { return g_log; }
void ClearMediaLog() { g_log.clear(); }

void LoadSoundBank() {
  for (int i = 1; i <= 33; ++i) G.SoundFile[i] = std::to_string(i) + ".wav";
}

void PlaySoundFx(int s, int c) { Record({MediaCall::Kind::Sound, s, c, {}}); }
void PlayTrack(int n) { Record({MediaCall::Kind::Track, n, 0, {}}); }
void StopTrack() { Record({MediaCall::Kind::StopTrack, 0, 0, {}}); }

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
