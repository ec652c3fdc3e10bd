// The player's volumes for the sound device, 0..100 each.
#pragma once

namespace lf {

// Applies to the open sound device; does nothing when there is none.
void SetAudioVolumes(int sound, int music);

}  // namespace lf
