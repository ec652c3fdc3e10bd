#include "media/volume.h"

#include <algorithm>

#include <SDL.h>
#include <SDL_mixer.h>

namespace lf {

void SetAudioVolumes(int sound, int music) {
  if (SDL_WasInit(SDL_INIT_AUDIO) == 0) return;
  const auto mix = [](int v) { return std::clamp(v, 0, 100) * MIX_MAX_VOLUME / 100; };
  Mix_Volume(-1, mix(sound));
  Mix_VolumeMusic(mix(music));
}

}  // namespace lf
