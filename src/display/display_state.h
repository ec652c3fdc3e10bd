// The display's share of the Game record: the shared source rectangle and
// the progress display. Bitmap handles live in Gfx (display/gfx.h), which
// is not part of a dump.
#pragma once

#include <cstdint>

#include "shell/numeric.h"

namespace lf {

struct DisplayState {
  std::int32_t SrcLeft = 0;
  std::int32_t SrcTop = 0;
  std::int32_t SrcRight = 0;
  std::int32_t SrcBottom = 0;
  std::int16_t ProgressMode = 0;
  std::int16_t ProgressCount = 0;
};

template <class V>
void VisitFields(V& v, DisplayState& s) {
  v("SrcLeft", s.SrcLeft);
  v("SrcTop", s.SrcTop);
  v("SrcRight", s.SrcRight);
  v("SrcBottom", s.SrcBottom);
  v("ProgressMode", s.ProgressMode);
  v("ProgressCount", s.ProgressCount);
}

}  // namespace lf
