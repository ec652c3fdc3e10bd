// The media share of the Game record: the sound bank's file names and the
// track table. What each channel plays lives in the media backend.
#pragma once

#include <cstdint>
#include <string>

#include "shell/table.h"

namespace lf {

struct MediaState {
  Table<std::string, 33> SoundFile{};
  std::int16_t TrackCount = 0;
  Table<std::int32_t, 30> TrackStart{};
};

template <class V>
void VisitFields(V& v, MediaState& s) {
  v("SoundFile", s.SoundFile);
  v("TrackCount", s.TrackCount);
  v("TrackStart", s.TrackStart);
}

}  // namespace lf
