// --mute: no sound and no music. The media backend reads it before it opens
// the sound device.
#pragma once

namespace lf {

void SetMuted(bool on);
bool Muted();

}  // namespace lf
