// The wave reader: a byte search for the format record and the samples.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "media/wav_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::uint8_t> bytes(data, data + size);
  std::string why;
  const auto sound = lf::ParseWave(bytes, &why);
  if (!sound) {
    if (why.empty()) std::abort();  // a refusal always says why
    return 0;
  }
  // What the mixer is handed: whole frames, at least one, all from the file.
  const std::size_t frame = static_cast<std::size_t>(sound->Format.Channels) * (sound->Format.BitsPerSample / 8);
  if (frame == 0 || sound->Samples.empty() || sound->Samples.size() % frame != 0 || sound->Samples.size() > size)
    std::abort();
  return 0;
}
