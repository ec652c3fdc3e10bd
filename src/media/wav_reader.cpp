#include "media/wav_reader.h"

#include <cstring>

#include "shell/data_file.h"
#include "shell/little_endian.h"
#include "shell/paths.h"

namespace lf {
namespace {

constexpr std::size_t kFormatRecord = 18;
// No sound of the game comes near this; a larger file is not a sound of it.
constexpr std::size_t kLargestSoundFile = 64u << 20;


// The first position at or after `from` where `word` stands, one byte at a time.
std::optional<std::size_t> Find(const std::vector<std::uint8_t>& bytes, std::size_t from, const char* word) {
  const std::size_t n = std::strlen(word);
  for (std::size_t i = from; i + n <= bytes.size(); ++i) {
    if (std::memcmp(bytes.data() + i, word, n) == 0) return i;
  }
  return std::nullopt;
}

bool Fail(std::string* why, const char* text) {
  if (why) *why = text;
  return false;
}

// Integer samples of 8, 16 or 32 bits or 32-bit floats, mono or stereo.
bool Playable(const WaveFormat& f, std::string* why) {
  const bool integer = f.FormatTag == 1 || f.FormatTag == 0xFFFE;
  const bool real = f.FormatTag == 3;
  if (!integer && !real) return Fail(why, "not PCM samples");
  if (integer && f.BitsPerSample != 8 && f.BitsPerSample != 16 && f.BitsPerSample != 32)
    return Fail(why, "sample width not 8, 16 or 32 bits");
  if (real && f.BitsPerSample != 32) return Fail(why, "float samples not 32 bits");
  if (f.Channels < 1 || f.Channels > 2) return Fail(why, "not mono or stereo");
  if (f.SamplesPerSec < 1000 || f.SamplesPerSec > 384000) return Fail(why, "sample rate out of range");
  return true;
}

std::optional<WaveSound> Bad(std::string* why, const char* text) {
  Fail(why, text);
  return std::nullopt;
}

}  // namespace

std::optional<WaveSound> ParseWave(const std::vector<std::uint8_t>& bytes, std::string* why) {
  const auto fmt = Find(bytes, 0, "fmt");
  if (!fmt) return Bad(why, "no \"fmt\" in the file");
  const std::size_t record = *fmt + 8;
  if (record > bytes.size() || bytes.size() - record < kFormatRecord)
    return Bad(why, "format record cut short");

  WaveSound out;
  const std::uint8_t* r = bytes.data() + record;
  out.Format = {U16(r), U16(r + 2), U32(r + 4), U32(r + 8), U16(r + 12), U16(r + 14), U16(r + 16)};

  const auto data = Find(bytes, record, "data");
  if (!data) return Bad(why, "no \"data\" in the file");
  const std::size_t start = *data + 8;
  if (start > bytes.size()) return Bad(why, "sample length cut short");
  const std::uint32_t length = U32(bytes.data() + *data + 4);
  if (length > bytes.size() - start) return Bad(why, "sample length past the end of the file");
  if (!Playable(out.Format, why)) return std::nullopt;

  const std::size_t frame = static_cast<std::size_t>(out.Format.Channels) * (out.Format.BitsPerSample / 8);
  const std::size_t whole = length / frame * frame;
  if (whole == 0) return Bad(why, "no samples");
  out.Samples.assign(bytes.begin() + static_cast<std::ptrdiff_t>(start),
                     bytes.begin() + static_cast<std::ptrdiff_t>(start + whole));
  return out;
}

std::optional<WaveSound> LoadWAVIntoDSB(const std::string& FName) {
  std::string why;
  const auto bytes = ReadDataFile(FName, kLargestSoundFile, &why);
  if (!bytes) {
    ReportMissing(FName, why);
    return std::nullopt;
  }
  auto sound = ParseWave(*bytes, &why);
  if (!sound) ReportMissing(FName, why);
  return sound;
}

}  // namespace lf
