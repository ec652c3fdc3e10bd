#include "audio/audio_gen.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>

#include "audio/clips.h"
#include "audio/music_score.h"
#include "audio/sound_effects.h"

namespace assetgen {
namespace {

bool MakeFolder(const std::string& folder) {
  std::error_code ec;
  std::filesystem::create_directories(folder, ec);
  if (ec) std::fprintf(stderr, "assetgen: cannot make %s: %s\n", folder.c_str(), ec.message().c_str());
  return !ec;
}

}  // namespace

bool GenerateAudio(const std::string& dataDir) {
  const std::string sounds = dataDir + "/sounds";
  const std::string music = dataDir + "/music";
  const std::string anim = dataDir + "/anim";
  if (!MakeFolder(sounds) || !MakeFolder(music) || !MakeFolder(anim)) return false;

  // Two lines of work side by side (the generator runs on small machines):
  // the music on one, the sounds, the clips and the rest of the music on
  // the other. Each file's bytes depend only on its own inputs.
  bool musicOk = true;
  std::thread second([&] { musicOk = GenerateTrack(music, 2) && GenerateTrack(music, 3); });
  bool ok = GenerateSounds(sounds) && GenerateClips(anim) && GenerateTrack(music, 4) && GenerateTrack(music, 5);
  second.join();
  return ok && musicOk;
}

}  // namespace assetgen
