#include "media/sound_channels.h"

#include <array>

#include "shell/game_state.h"

namespace lf {
namespace {
std::array<bool, kSoundChannels> g_held{};

struct ChannelPlay {
  int Sound = 0;
  std::int64_t Start = 0;
  std::int64_t Frames = 0;
};
std::array<ChannelPlay, kSoundChannels> g_play{};
}  // namespace

int TakeSoundChannel(int c) {
  if (c < -1 || c >= kSoundChannels) return -1;
  if (c == -1) {
    c = 0;
    while (c < kSoundChannels && g_held[c]) ++c;
    if (c == kSoundChannels) c = static_cast<int>(Int(Rnd() * kSoundChannels));
  }
  g_held[c] = true;
  return c;
}

bool SoundChannelHeld(int c) { return g_held[c]; }

bool SameSoundPlays(int c, int s) {
  if (c < 0 || c >= kSoundChannels) return false;
  const ChannelPlay& p = g_play[static_cast<std::size_t>(c)];
  return p.Sound == s && G.Frame >= p.Start && G.Frame - p.Start < p.Frames;
}

void MarkSoundStart(int c, int s, std::int64_t frames) {
  if (c < 0 || c >= kSoundChannels) return;
  g_play[static_cast<std::size_t>(c)] = {s, G.Frame, frames};
}

void ResetSoundChannels() {
  g_held.fill(false);
  g_play.fill({});
}

}  // namespace lf
