// The game's wave search on real files and on files made to trip it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "media/temp_folder.h"
#include "media/wav_reader.h"
#include "shell/paths.h"

namespace lf {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Put(Bytes& b, const std::string& s) { b.insert(b.end(), s.begin(), s.end()); }
void Put16(Bytes& b, unsigned v) { b.push_back(v & 0xFF); b.push_back(v >> 8 & 0xFF); }
void Put32(Bytes& b, std::uint32_t v) { for (int i = 0; i < 4; ++i) b.push_back(v >> (8 * i) & 0xFF); }

// A 16-byte PCM format chunk: mono 16-bit 22050 Hz.
void PutFmt(Bytes& b, unsigned channels = 1, unsigned bits = 16) {
  Put(b, "fmt ");
  Put32(b, 16);
  Put16(b, 1);
  Put16(b, channels);
  Put32(b, 22050);
  Put32(b, 22050 * channels * bits / 8);
  Put16(b, channels * bits / 8);
  Put16(b, bits);
}

void PutData(Bytes& b, std::uint32_t length, std::size_t actual) {
  Put(b, "data");
  Put32(b, length);
  for (std::size_t i = 0; i < actual; ++i) b.push_back(static_cast<std::uint8_t>(i * 7));
}

Bytes Riff() {
  Bytes b;
  Put(b, "RIFF");
  Put32(b, 0);
  Put(b, "WAVE");
  return b;
}

// Each parse runs on a copy of exactly the bytes given, on the heap, so that
// a read past them is caught by the address sanitizer.
std::optional<WaveSound> Parse(const Bytes& b, std::string* why = nullptr) { return ParseWave(Bytes(b), why); }

TEST(WavReader, ReadsAPlainFileAndSkipsUnknownChunksBeforeTheFormat) {
  Bytes b = Riff();
  Put(b, "LIST");
  Put32(b, 6);
  Put(b, "INFOab");
  PutFmt(b, 2, 16);
  PutData(b, 40, 40);
  const auto w = Parse(b);
  ASSERT_TRUE(w);
  EXPECT_EQ(w->Format.FormatTag, 1);
  EXPECT_EQ(w->Format.Channels, 2);
  EXPECT_EQ(w->Format.SamplesPerSec, 22050u);
  EXPECT_EQ(w->Format.BitsPerSample, 16);
  ASSERT_EQ(w->Samples.size(), 40u);
  EXPECT_EQ(w->Samples[1], 7);
}

TEST(WavReader, TheSearchIsForBytesNotChunks) {
  // "fmt" inside an earlier chunk is taken for the format: the record then
  // reads that chunk's bytes, as the game does.
  Bytes b = Riff();
  Put(b, "note");
  Put32(b, 4);
  Put(b, "fmt?");
  PutFmt(b);
  PutData(b, 8, 8);
  std::string why;
  EXPECT_FALSE(Parse(b, &why)) << "the record read from the wrong place is not PCM";
  EXPECT_FALSE(why.empty());

  // A "data" word inside the format record is found first: its length is
  // then read from the record's own bytes (here 0x0010 0001 + ...), far past
  // the end of the file.
  Bytes c = Riff();
  Put(c, "fmt ");
  Put32(c, 18);
  Put16(c, 1);
  Put16(c, 1);
  Put(c, "data");  // stands where the sample rate would
  Put32(c, 0x7FFFFFFF);
  Put16(c, 2);
  Put16(c, 16);
  Put16(c, 0);
  PutData(c, 8, 8);
  EXPECT_FALSE(Parse(c, &why));
  EXPECT_NE(why.find("past the end"), std::string::npos) << why;
}

TEST(WavReader, BadFilesGiveNothingAndNeverReadPastTheirBytes) {
  struct Case {
    const char* name;
    Bytes bytes;
  };
  std::vector<Case> cases;
  {
    Bytes b = Riff();
    PutData(b, 8, 8);
    cases.push_back({"no fmt", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b);
    Put(b, "dat");
    cases.push_back({"no data", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b);
    PutData(b, 0, 0);
    cases.push_back({"zero-length data", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b);
    PutData(b, 1000, 10);
    cases.push_back({"length past the end", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b);
    PutData(b, 0xFFFFFFFF, 4);
    cases.push_back({"length wraps", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b);
    Put(b, "data");
    Put16(b, 8);
    cases.push_back({"length field cut", b});
  }
  {
    Bytes b = Riff();
    Put(b, "fmt ");
    Put32(b, 16);
    Put16(b, 1);
    cases.push_back({"format record cut", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b, 1, 16);
    PutData(b, 1, 1);
    cases.push_back({"less than one sample frame", b});
  }
  {
    Bytes b = Riff();
    PutFmt(b, 6, 16);
    PutData(b, 24, 24);
    cases.push_back({"six channels", b});
  }
  cases.push_back({"empty", {}});
  cases.push_back({"just fmt", {'f', 'm', 't'}});
  for (const auto& c : cases) {
    std::string why;
    EXPECT_FALSE(Parse(c.bytes, &why)) << c.name;
    EXPECT_FALSE(why.empty()) << c.name;
    // Every shorter prefix of a bad file is bad too, and safe to read.
    for (std::size_t n = 0; n < c.bytes.size(); ++n) {
      EXPECT_FALSE(Parse(Bytes(c.bytes.begin(), c.bytes.begin() + static_cast<std::ptrdiff_t>(n)))) << c.name << n;
    }
  }
}

TEST(WavReader, AnOddLengthKeepsWholeSampleFrames) {
  Bytes b = Riff();
  PutFmt(b, 2, 16);
  PutData(b, 11, 11);
  const auto w = Parse(b);
  ASSERT_TRUE(w);
  EXPECT_EQ(w->Samples.size(), 8u);
}

class TempFolder {
 public:
  TempFolder() {
    path_ = ScratchFolder("wav");
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  std::string File(const std::string& name, const Bytes& bytes) const {
    const std::string p = (path_ / name).string();
    std::ofstream(p, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()),
                                             static_cast<std::streamsize>(bytes.size()));
    return p;
  }

 private:
  std::filesystem::path path_;
};

TEST(WavReader, AFileThatCannotBeUsedIsNamedOnStderrOnlyWhenVerbose) {
  TempFolder dir;
  Bytes bad = Riff();
  PutFmt(bad);
  Put(bad, "junk");
  const std::string quiet = dir.File("quiet.wav", bad);
  const std::string loud = dir.File("loud.wav", bad);

  SetVerbose(false);
  testing::internal::CaptureStderr();
  EXPECT_FALSE(LoadWAVIntoDSB(quiet));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

  SetVerbose(true);
  testing::internal::CaptureStderr();
  EXPECT_FALSE(LoadWAVIntoDSB(loud));
  EXPECT_FALSE(LoadWAVIntoDSB(dir.File("nothing_here", {}) + ".missing"));
  const std::string said = testing::internal::GetCapturedStderr();
  SetVerbose(false);
  EXPECT_NE(said.find("loud.wav"), std::string::npos) << said;
  EXPECT_NE(said.find("no \"data\""), std::string::npos) << said;
  EXPECT_NE(said.find("nothing_here.missing"), std::string::npos) << said;
}

TEST(WavReader, ReadsTheSystemsSoundFiles) {
  const std::filesystem::path folder = "/usr/share/sounds/alsa";
  std::error_code ec;
  if (!std::filesystem::is_directory(folder, ec)) GTEST_SKIP() << "alsa-utils sounds are not installed";
  int read = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".wav") continue;
    const auto w = LoadWAVIntoDSB(entry.path().string());
    ASSERT_TRUE(w) << entry.path();
    EXPECT_EQ(w->Format.FormatTag, 1);
    EXPECT_GE(w->Format.SamplesPerSec, 8000u);
    // Its samples are all of the data chunk, up to a whole frame.
    const auto size = std::filesystem::file_size(entry.path());
    EXPECT_LE(w->Samples.size() + 44, size);
    EXPECT_GT(w->Samples.size() * 10, size * 9);
    ++read;
  }
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace lf
