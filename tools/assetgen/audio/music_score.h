// The four music tracks, composed by a small sequencer: chords on pads, a
// bass line, arpeggios, a lead melody and synthesized drums, arranged in
// sections and encoded to Ogg Vorbis.
#pragma once

#include <string>

namespace assetgen {

constexpr int kMusicRate = 44100;

// Writes music/track02.ogg .. track05.ogg under `folder`: 2 the menu and the
// fight, 3 the station, 4 the bridge, 5 a hail. False when a file cannot be
// written.
bool GenerateMusic(const std::string& folder);

// Renders and writes one track (2..5); used by GenerateMusic, one track a
// call, so that tracks can be made side by side.
bool GenerateTrack(const std::string& folder, int track);

}  // namespace assetgen
