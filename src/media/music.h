// The music: the four track roles of the disc as files, DATA/music/track02.ogg
// .. track05.ogg. Track 1 of the disc held data and is never played.
#pragma once

#include <string>
#include <vector>

namespace lf {

constexpr int kFirstMusicTrack = 2;
constexpr int kLastMusicTrack = 5;

// The file of track n: DATA/music/trackNN.ogg.
std::string TrackFile(int n);

// What the disc plays from track n: n and every later track to the last, the
// missing files left out (they are silence). Empty for a track that is not
// on the disc.
std::vector<std::string> TrackRun(int n);

}  // namespace lf
