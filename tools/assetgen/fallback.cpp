#include <string>

#include "families.h"
#include "noise.h"

namespace assetgen {

void DrawFallback(const BitmapSpec& spec, Canvas& cv) {
  const int cols = spec.width / spec.frameW, rows = spec.height / spec.frameH;
  for (int i = 0; i < spec.frames && i < cols * rows; ++i) {
    const int x = (i % cols) * spec.frameW, y = (i / cols) * spec.frameH;
    SteelPlate(cv.cr(), x, y, spec.frameW, spec.frameH, HashString(spec.path) + uint32_t(i));
  }
}

}  // namespace assetgen
