// The eight sound channels as the game sees them (SoundChannel): a channel
// holds the buffer it last played until another sound takes its place, so
// once all eight have played, a sound on "any channel" cuts a random one.
#pragma once

#include <cstdint>

namespace lf {

constexpr int kSoundChannels = 8;

// The channel sound goes to for a call with channel c (0..7, or -1 for the
// lowest channel that holds nothing, else a random one), marked as held;
// -1 for a channel out of bounds, which plays nothing.
int TakeSoundChannel(int c);
bool SoundChannelHeld(int c);
// Whether sound s, the last started on channel c, still plays in this frame
// (it was started fewer than its length of frames ago); and the mark of a
// start. Asking a channel for the sound it still plays lets that sound play
// on rather than restart it, so a sound asked every frame does not buzz.
bool SameSoundPlays(int c, int s);
void MarkSoundStart(int c, int s, std::int64_t frames);
// All channels empty, as at start.
void ResetSoundChannels();

}  // namespace lf
