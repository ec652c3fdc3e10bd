// The sound bank in memory: each sound file is read and parsed once, by the
// game's own wave search, and kept, so that playing a sound reads nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "media/wav_reader.h"

namespace lf {

struct BankedSound {
  std::string File;               // the file on disk
  std::optional<WaveSound> Wave;  // empty: the sound is silence
  std::int64_t Frames = 0;        // how long it plays, in frames of 1/60 s
};

// Sound s (1..33) of the bank as SoundFile names it in the data folder; read
// the first time it is asked for, and again only when its name or the data
// folder changed.
const BankedSound& BankedSoundOf(int s);
// Forgets every sound read (tests).
void ForgetSoundBank();

}  // namespace lf
