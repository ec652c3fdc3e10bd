// Encodes stereo samples to an Ogg Vorbis file with libvorbis.
#pragma once

#include <string>

#include "audio/synth.h"

namespace assetgen {

// left and right at `rate` Hz, variable bit rate at `quality` (-0.1 .. 1);
// false when the file cannot be written.
bool WriteOgg(const std::string& file, const Samples& left, const Samples& right, int rate, float quality,
              const std::string& title);

}  // namespace assetgen
