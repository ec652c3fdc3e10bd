// The default data set generator: writes every picture, sound, track and
// clip the game reads into the folder it is given.
//   assetgen DATA                 everything
//   assetgen DATA --only PREFIX   only the bitmaps whose path starts with PREFIX
//                                 (for example gfx/fonts/), and no sound
#include <cstdio>
#include <filesystem>
#include <string>

#include "audio/audio_gen.h"
#include "generate.h"

namespace {

int Usage() {
  std::fprintf(stderr, "usage: assetgen DATA_FOLDER [--only PATH_PREFIX]\n");
  return 2;
}

bool Writable(const std::string& dir) {
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  if (ec) {
    std::fprintf(stderr, "assetgen: cannot create the data folder %s: %s\n", dir.c_str(), ec.message().c_str());
    return false;
  }
  const std::string probe = dir + "/.assetgen_probe";
  std::FILE* f = std::fopen(probe.c_str(), "wb");
  if (!f) {
    std::fprintf(stderr, "assetgen: cannot write into the data folder %s\n", dir.c_str());
    return false;
  }
  std::fclose(f);
  std::remove(probe.c_str());
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::string dataDir, only;
  bool onlyGiven = false;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--only") {
      if (i + 1 >= argc) return Usage();
      only = argv[++i];
      onlyGiven = true;
    } else if (!a.empty() && a[0] == '-') {
      return Usage();
    } else if (dataDir.empty()) {
      dataDir = a;
    } else {
      return Usage();
    }
  }
  if (dataDir.empty()) return Usage();
  if (!Writable(dataDir)) return 1;
  if (!assetgen::GenerateBitmaps(dataDir, only)) return 1;
  if (!onlyGiven && !assetgen::GenerateAudio(dataDir)) return 1;
  return 0;
}
