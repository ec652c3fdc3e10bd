#include "audio/wav_writer.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

namespace assetgen {
namespace {

void Put(std::string& out, const char* word) { out.append(word, 4); }
void Put16(std::string& out, unsigned v) {
  out += static_cast<char>(v & 0xFF);
  out += static_cast<char>(v >> 8 & 0xFF);
}
void Put32(std::string& out, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) out += static_cast<char>(v >> (8 * i) & 0xFF);
}

}  // namespace

bool WriteWav(const std::string& file, const Samples& mono, int rate) {
  const std::uint32_t dataBytes = static_cast<std::uint32_t>(mono.size() * 2);
  std::string out;
  out.reserve(44 + dataBytes);
  Put(out, "RIFF");
  Put32(out, 36 + dataBytes);
  Put(out, "WAVE");
  Put(out, "fmt ");
  Put32(out, 16);
  Put16(out, 1);
  Put16(out, 1);
  Put32(out, static_cast<std::uint32_t>(rate));
  Put32(out, static_cast<std::uint32_t>(rate * 2));
  Put16(out, 2);
  Put16(out, 16);
  Put(out, "data");
  Put32(out, dataBytes);
  for (float v : mono) {
    const double c = std::clamp(static_cast<double>(v), -1.0, 1.0);
    Put16(out, static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(c * 32767.0))));
  }
  std::ofstream f(file, std::ios::binary);
  f.write(out.data(), static_cast<std::streamsize>(out.size()));
  return static_cast<bool>(f);
}

}  // namespace assetgen
