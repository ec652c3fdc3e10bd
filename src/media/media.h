// Sounds, music and clips as the game calls them. What is heard or seen is
// up to the backend: SDL_mixer and FFmpeg in a window, a recorder headless.
#pragma once

#include <string>
#include <vector>

namespace lf {

// One call that reached the media layer, for tests and the dump.
struct MediaCall {
  enum class Kind { Sound, Track, StopTrack, Clip };
  Kind kind = Kind::Sound;
  int number = 0;   // sound 1..33 or track 2..5
  int channel = 0;  // sound channel 0..7
  std::string file; // clip file under the data folder
  bool operator==(const MediaCall&) const = default;
};

// The last calls, oldest first (kept to a bounded length).
const std::vector<MediaCall>& MediaLog();
void ClearMediaLog();

void LoadSoundBank();
// Sound s (1..33) on channel c (0..7), or on a free one with c = -1.
void PlaySoundFx(int s, int c);
void PlayTrack(int n);
void StopTrack();

// Clips: each blocks until it ends or a key or click cuts it short.
void Quelmar();
void Quelmar2();
void PlayIntro();
void PlayCredits();
void VideoLane();

}  // namespace lf
