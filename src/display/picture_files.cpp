#include "display/picture_files.h"

#include <unordered_map>

namespace lf {
namespace {

std::unordered_map<const SDL_Surface*, std::string>& Files() {
  static std::unordered_map<const SDL_Surface*, std::string> files;
  return files;
}

}  // namespace

void NotePictureFile(const SDL_Surface* surface, std::string file) {
  if (surface) Files()[surface] = std::move(file);
}

void ForgetPictureFile(const SDL_Surface* surface) { Files().erase(surface); }

const std::string& PictureFile(const Bitmap& bitmap) {
  static const std::string kNone;
  const auto it = Files().find(bitmap.Surface());
  return it == Files().end() ? kNone : it->second;
}

}  // namespace lf
