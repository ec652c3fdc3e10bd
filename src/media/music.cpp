#include "media/music.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "shell/paths.h"

namespace lf {

std::string TrackFile(int n) {
  char name[32];
  std::snprintf(name, sizeof name, "music/track%02d.ogg", n);
  return DataPath(name);
}

std::vector<std::string> TrackRun(int n) {
  std::vector<std::string> run;
  if (n < kFirstMusicTrack || n > kLastMusicTrack) return run;
  for (int t = n; t <= kLastMusicTrack; ++t) {
    std::string file = TrackFile(t);
    std::error_code ec;
    if (std::filesystem::is_regular_file(file, ec)) {
      run.push_back(std::move(file));
    } else {
      ReportMissing(file, "missing; the track is silent");
    }
  }
  return run;
}

}  // namespace lf
