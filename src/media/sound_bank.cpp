#include "media/sound_bank.h"

#include <array>
#include <cmath>

#include "shell/game_state.h"
#include "shell/paths.h"

namespace lf {
namespace {

struct BankEntry {
  bool Read = false;
  std::string Name;    // SoundFile[s] when it was read
  std::string Folder;  // the data folder when it was read
  BankedSound Sound;
};

std::array<BankEntry, 34> g_bank;

std::int64_t PlayFrames(const WaveSound& w) {
  const std::size_t frame = static_cast<std::size_t>(w.Format.Channels) * (w.Format.BitsPerSample / 8);
  if (frame == 0 || w.Format.SamplesPerSec == 0) return 0;
  const double seconds = static_cast<double>(w.Samples.size() / frame) / w.Format.SamplesPerSec;
  return static_cast<std::int64_t>(std::ceil(seconds * 60));
}

}  // namespace

const BankedSound& BankedSoundOf(int s) {
  static const BankedSound kSilence;
  if (s < 1 || s > 33) return kSilence;
  BankEntry& e = g_bank[static_cast<std::size_t>(s)];
  const std::string& name = G.SoundFile[s];
  if (e.Read && e.Name == name && e.Folder == DataFolder()) return e.Sound;
  e.Read = true;
  e.Name = name;
  e.Folder = DataFolder();
  e.Sound.File = DataPath("sounds/" + name);
  e.Sound.Wave = LoadWAVIntoDSB(e.Sound.File);
  e.Sound.Frames = e.Sound.Wave ? PlayFrames(*e.Sound.Wave) : 0;
  return e.Sound;
}

void ForgetSoundBank() {
  for (BankEntry& e : g_bank) e = BankEntry{};
}

}  // namespace lf
