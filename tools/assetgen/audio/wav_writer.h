// Writes 16-bit PCM RIFF/WAVE files.
#pragma once

#include <string>

#include "audio/synth.h"

namespace assetgen {

// Mono samples in -1..1 at `rate` Hz; false when the file cannot be written.
bool WriteWav(const std::string& file, const Samples& mono, int rate);

}  // namespace assetgen
