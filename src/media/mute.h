// --mute: the game runs without music and sounds.
#pragma once

namespace lf {
void SetMuted(bool);
bool Muted();
}  // namespace lf
