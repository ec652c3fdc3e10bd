#include "media/sound_channels.h"

#include <array>

#include "shell/game_state.h"

namespace lf {
namespace {
std::array<bool, kSoundChannels> g_held{};
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

void ResetSoundChannels() { g_held.fill(false); }

}  // namespace lf
