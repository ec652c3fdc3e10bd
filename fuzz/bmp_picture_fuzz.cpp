// A picture file as the display reads it: the header check, SDL's reader,
// the conversion to the screen's format, and blits of the whole picture and
// of a corner, keyed (run-length coded) and plain.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "display/bitmap.h"
#include "display/screen.h"
#include "shell/game_state.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::uint8_t> bytes(data, data + size);
  lf::Bitmap picture = lf::BitmapFromBytes(bytes, "fuzz.bmp");
  if (!picture.Loaded()) return 0;
  const int w = picture.Width(), h = picture.Height();
  for (const bool keyed : {true, false}) {
    lf::SetSrc(0, 0, w, h);
    lf::BltFast(0, 0, picture, keyed);
    lf::SetSrc(w / 2, h / 2, w, h);
    lf::BltFast(3, 5, picture, keyed);
  }
  return 0;
}
