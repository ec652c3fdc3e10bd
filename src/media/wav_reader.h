// Reading a wave file the way the game does: the whole file into memory, a
// byte search for "fmt" and then for "data", nothing else interpreted.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lf {

// The 18-byte format record that follows "fmt" (its chunk length between).
struct WaveFormat {
  std::uint16_t FormatTag = 0;      // 1 integer PCM, 3 float
  std::uint16_t Channels = 0;
  std::uint32_t SamplesPerSec = 0;
  std::uint32_t AvgBytesPerSec = 0;
  std::uint16_t BlockAlign = 0;
  std::uint16_t BitsPerSample = 0;
  std::uint16_t Size = 0;
};

struct WaveSound {
  WaveFormat Format;
  std::vector<std::uint8_t> Samples;
};

// Finds the format record and the samples in the bytes of a wave file. An
// empty result when the search fails, the lengths run past the bytes, there
// are no samples or the format is one the mixer cannot take; why goes to
// *why.
std::optional<WaveSound> ParseWave(const std::vector<std::uint8_t>& bytes, std::string* why = nullptr);

// Reads the file and parses it; a file that cannot be used (missing, not a
// regular file, unreadable, not a sound) is silence, named on stderr with
// --verbose.
std::optional<WaveSound> LoadWAVIntoDSB(const std::string& FName);

}  // namespace lf
